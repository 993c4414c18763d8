<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 en orden</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 sin efecto</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>aún no hay nada guardado</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 dispositivo USB encontrado</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 dispositivos USB encontrados</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>no hay otro producto del fabricante conectado</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>también conectado: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>hay un mezclador conectado</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>encontrado: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 se puede abrir</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>todo mezclador que se puede abrir responde</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>accesible</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>biblioteca %1, paquete %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Usted no puede abrir el mezclador</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>Está conectado, pero en este ordenador solo pueden usarlo los administradores. Pida a un administrador que ejecute una vez la orden de abajo y vuelva a conectar el mezclador.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Sus ajustes no se pueden guardar</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>El disco está lleno. Borre archivos que no necesite.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>El disco es de solo lectura. Pida a un administrador que lo cambie.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Un archivo ocupa el lugar de la carpeta %1. Muévalo.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>No se puede escribir en la carpeta %1. Dese permiso para hacerlo.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Sus ajustes no se pueden leer</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 no contiene ajustes. Bórrelo.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 no es un archivo. Bórrelo.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Un ajuste guardado no es válido</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1 está guardado con un número que no existe. Elija de nuevo.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Se apartaron ajustes anteriores</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>No se podían leer y están en %1. Borre ese archivo si no lo necesita.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>No se puede leer %1. Dese permiso para leerlo o bórrelo.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Otros productos</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mezclador</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Archivo de dispositivo</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Permiso</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Respuesta</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de sesión</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Carpeta de ajustes</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Archivos de ajustes</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>ningún dispositivo USB encontrado</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>pero ningún mezclador</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>No puede abrirlo</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Este ordenador no muestra ningún USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>¿Es una máquina virtual o un contenedor? Necesita un controlador USB.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Este producto no tiene ajustes aquí</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 está conectado. Este programa no puede ajustarlo. Conecte un mezclador de la familia TRX-SELVA.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>No se encuentra ningún mezclador</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Conecte el mezclador por USB y enciéndalo. Lo que elija mientras tanto se guarda.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>No se puede abrir el mezclador</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Falta el archivo %1. Desconecte y vuelva a conectar el mezclador.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Otro programa ocupa el mezclador</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Así solo puede usarlo un programa a la vez. Cierre el otro programa. La orden de abajo dice cuál es.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Desconéctelo y vuelva a conectarlo. El sistema dice: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Apáguelo y enciéndalo de nuevo, y conéctelo sin concentrador. Sus ajustes quedan guardados.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>No hay bus de sesión</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Los cambios de otros programas aparecen un poco más tarde. Cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Este usuario no tiene carpeta personal.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>La instalación está incompleta</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Faltan archivos con versiones. Instale de nuevo el paquete.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Al conectar</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>No se pueden enviar los ajustes a un mezclador que se conecta</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Ningún mezclador</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 mezcladores  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Buscando en los puertos USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Conectado, pero no se puede abrir</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>No responde: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Conectado, pero no responde</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>No se puede abrir: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Cada ajuste va a todos: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Número de serie %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family.</source>
        <translation>Ajusta los mezcladores USB para DJ de la familia TRX-SELVA.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Mostrar este modelo mientras no haya un mezclador conectado.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Usar los colores light, dark, light-contrast o dark-contrast, sean cuales sean los del escritorio.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un perfil necesita un nombre.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Este nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Este nombre contiene caracteres no permitidos.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Este usuario no tiene carpeta personal para los perfiles.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>El perfil %1 ya no existe.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Ya hay un perfil %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Ya hay un archivo %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>El archivo lleva el nombre de otro perfil, %1. Impórtelo.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 tiene una opción desconocida. Elíjala antes de nuevo.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Este perfil es de una versión más nueva de este programa.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Este perfil es para un mezclador que aquí no se conoce: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>El mezclador no tiene la opción «%1».</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Este perfil contiene algo que el mezclador no tiene: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Este perfil no contiene ajustes.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Este archivo no es un perfil.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 lo rechazó.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 no respondió.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 se desconectó.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 no se puede abrir: falta permiso.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Otro programa ocupa %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 no lo aceptó.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Guardado. No hay ningún mezclador conectado.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Guardado, pero no enviado:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Enviado a %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Enviado a un mezclador.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Enviado a %1 mezcladores.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 graba</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 reproduce en</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Nivel de boost</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Opción desconocida</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Enviando a %1 mezcladores …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Enviando …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Esta opción no se aceptó.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Enviado, pero este ordenador no pudo guardarlo.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Este ordenador no pudo guardar la opción.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>No hay ningún mezclador conectado.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>No se enviaron todos los ajustes:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Se enviaron todos los ajustes.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Se enviaron todos menos estos; elíjalos de nuevo: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Esto no se pudo cambiar: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Se conectó un mezclador: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>El selector de entrada de CH%1 no está en USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>La señal del mezclador que el ordenador graba en %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>El canal del mezclador en el que el ordenador reproduce %1.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>El volumen de la grabación.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>El canal MIDI que usa el mezclador.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>No es posible en esta sesión.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Un administrador lo ha desactivado.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Instale para ello el paquete trxctl.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
</context>
<context>
    <name>setup::DetailsDialog</name>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Comprobar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Lo que se comprobó</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Comprobando …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Per&amp;files</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Perfiles: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Al conectarlo</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Enviar mis ajustes</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Ya hay un perfil %1. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Aún no hay perfiles</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Guardar como …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Importar …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nombre del perfil:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Cambiar nombre del perfil</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>¿Borrar el perfil %1?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Exportar perfil</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Perfiles (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Importar perfil</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 es para otro mezclador, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 cargado. Ctrl+Z lo deshace.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 se llama ahora %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 se ha borrado.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 se ha escrito en %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 está ahora entre sus perfiles. Elíjalo en el menú para cargarlo.</translation>
    </message>
</context>
<context>
    <name>setup::SettingCard</name>
    <message>
        <source>%1: %2</source>
        <comment>setting: choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>how loud you record</source>
        <translation>con qué volumen graba</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>por otro programa</translation>
    </message>
</context>
<context>
    <name>setup::SetupWindow</name>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>%1 %2: set by another program</source>
        <translation>%1: %2, cambiado por otro programa</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>El ordenador re&amp;produce</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>en este canal del mezclador</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>El ordenador &amp;graba</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>esta señal del mezclador</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Enviar de nuevo todos los ajustes</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>¿&amp;Por qué no se encuentra mi mezclador?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>&amp;Acerca de y versiones</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>No hay bus de sesión: los cambios de otros programas aparecen aquí un poco más tarde.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Reproducir %1 aquí</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Grabar en %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Ver &amp;detalles</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Opción desconocida</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>en orden</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copiar orden</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Ver &amp;detalles</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>El comando se ha copiado.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Conecte el mezclador por USB y enciéndalo. Lo que elija mientras tanto se guarda y se envía en cuanto esté conectado.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>no instalado</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>Acerca de y versiones</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Ajusta los mezcladores USB para DJ de la familia TRX-SELVA. Cada opción se envía al momento a todos los mezcladores conectados y se guarda en este ordenador.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Este programa</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware del mezclador</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquete</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Aplicación de ajuste</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
</context>
</TS>
