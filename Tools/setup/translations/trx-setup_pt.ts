<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 em ordem</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 sem efeito</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>ainda nada guardado</translation>
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
        <translation>nenhum outro produto do fabricante está conectado</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>também conectado: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>um mixer está conectado</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>encontrado: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 pode ser aberto</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>todos os mixers que podem ser abertos respondem</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>acessível</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>biblioteca %1, pacote %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Não há permissão para abrir o mixer</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>O mixer está conectado, mas neste computador só administradores podem usá-lo. Pedir a um administrador que execute uma vez o comando abaixo e conectar o mixer de novo.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>As definições não podem ser guardadas</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>O disco está cheio. Apagar ficheiros desnecessários.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>O disco só pode ser lido. Pedir a um administrador que mude isso.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Um ficheiro ocupa o lugar da pasta %1. Mover o ficheiro.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>Não é possível escrever na pasta %1. Dar a este utilizador o direito de escrita.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>As definições não podem ser lidas</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 não contém definições. Apagar o ficheiro.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 não é um ficheiro. Apagar.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Uma definição guardada não é válida</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1 está guardado com um número que não existe. Escolher de novo.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Definições anteriores foram postas de lado</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Não podiam ser lidas e estão em %1. Apagar esse ficheiro se não for necessário.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>Não é possível ler %1. Dar a este utilizador o direito de leitura ou apagar o ficheiro.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Outros produtos</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Ficheiro de dispositivo</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Permissão</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Resposta</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de sessão</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Pasta de definições</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Ficheiros de definições</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Instalação</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>nenhum dispositivo USB encontrado</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>mas nenhum mixer</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Não há permissão para abrir</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Este computador não mostra nenhum USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>É uma máquina virtual ou um contentor? É preciso um controlador USB.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Este produto não tem definições aqui</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 está conectado. Este programa não pode defini-lo. Conectar um mixer da família TRX-SELVA.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Nenhum mixer encontrado</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Conectar o mixer por USB e ligá-lo. O que for escolhido entretanto fica guardado.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Não é possível abrir o mixer</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Falta o ficheiro %1. Desconectar o mixer e conectá-lo de novo.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Outro programa ocupa o mixer</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Assim, só um programa de cada vez pode usá-lo. Terminar o outro programa. O comando abaixo diz qual é.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Desconectar e conectar de novo. O sistema diz: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Desligar e ligar o mixer e conectá-lo sem hub. As definições ficam guardadas.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Não há bus de sessão</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>As mudanças de outros programas aparecem um pouco mais tarde. Terminar a sessão e entrar de novo.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Este utilizador não tem pasta pessoal.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>A instalação está incompleta</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Faltam ficheiros com versões. Instalar o pacote de novo.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>desativado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ativado</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Ao ligar</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Não é possível enviar as definições para um mixer que é ligado</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Nenhum mixer</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 mixers  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Procura nas portas USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Conectado, mas não pode ser aberto</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Não responde: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Conectado, mas não responde</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Não pode ser aberto: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Cada definição vai para todos: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Número de série %1</translation>
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
        <translation>Define os mixers USB de DJ da família TRX-SELVA.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Mostrar este modelo enquanto nenhum mixer estiver conectado.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Usar as cores light, dark, light-contrast ou dark-contrast, sejam quais forem as do ambiente de trabalho.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Um perfil precisa de um nome.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Este nome é demasiado longo.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Este nome tem caracteres que um nome não pode ter.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Este utilizador não tem pasta pessoal para perfis.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>O perfil %1 já não existe.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Já existe um perfil %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Já existe um ficheiro %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>O ficheiro tem o nome de outro perfil, %1. Importar o ficheiro.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Não é possível escrever %1: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 tem uma opção desconhecida. Escolher primeiro de novo.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Este perfil é de uma versão mais recente deste programa.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Este perfil é para um mixer que aqui não é conhecido: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>O mixer não tem a opção “%1”.</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Este perfil contém algo que o mixer não tem: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Este perfil não contém definições.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Este ficheiro não é um perfil.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 recusou.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 não respondeu.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 foi desconectado.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 não pode ser aberto: falta permissão.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Outro programa ocupa %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 não aceitou.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Guardado. Nenhum mixer está conectado.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Guardado, mas não enviado:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Enviado para %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Enviado para um mixer.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Enviado para %1 mixers.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 grava</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 toca em</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Nível de boost</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Opção desconhecida</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>A enviar para %1 mixers …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>A enviar …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Esta opção não foi aceite.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Enviado, mas este computador não conseguiu guardar.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Este computador não conseguiu guardar a opção.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Nenhum mixer está conectado.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Nem todas as definições foram enviadas:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Todas as definições foram enviadas.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Enviadas todas menos estas, a escolher de novo: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Não foi possível mudar: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Um mixer foi conectado: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>O seletor de entrada de CH%1 não está em USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>O sinal do mixer que o computador grava em %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>O canal do mixer em que o computador reproduz %1.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>O volume da gravação.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>O canal MIDI que o mixer usa.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>Não é possível nesta sessão.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Desativado por um administrador.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Instalar para isso o pacote trxctl.</translation>
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
        <translation>&amp;Verificar de novo</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>O que foi verificado</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>A verificar …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Per&amp;fis</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Perfis: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Ao conectar o mixer</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Enviar definições</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Já existe um perfil %1. Substituir?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Ainda sem perfis</translation>
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
        <translation>&amp;Mudar o nome</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Apagar</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nome do perfil:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Mudar o nome do perfil</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Apagar o perfil %1?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Exportar perfil</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Perfis (*.json)</translation>
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
        <translation>%1 é para outro mixer, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 carregado. Ctrl+Z anula.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 chama-se agora %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 foi apagado.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 foi escrito em %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 está agora entre os perfis. Escolher no menu para carregar.</translation>
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
        <translation>volume da gravação</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>por outro programa</translation>
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
        <translation>%1: %2, mudado por outro programa</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>O computador &amp;toca</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>neste canal do mixer</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>O computador &amp;grava</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>este sinal do mixer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Enviar de novo todas as definições</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Procurar de novo</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>Por &amp;que não é encontrado o mixer?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>&amp;Sobre e versões</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Não há bus de sessão: as mudanças de outros programas aparecem aqui um pouco mais tarde.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Tocar %1 aqui</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Gravar em %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostrar &amp;detalhes</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Opção desconhecida</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>em ordem</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copiar comando</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostrar &amp;detalhes</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>O comando foi copiado.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Conectar o mixer por USB e ligá-lo. O que for escolhido entretanto fica guardado e é enviado assim que o mixer estiver presente.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>não instalado</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>Sobre e versões</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Define os mixers USB de DJ da família TRX-SELVA. Cada opção é enviada logo a todos os mixers conectados e fica guardada neste computador.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Este programa</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware do mixer</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Pacote</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Aplicação de definições</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
</context>
</TS>
