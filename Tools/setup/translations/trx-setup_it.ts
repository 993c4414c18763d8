<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 a posto</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 senza effetto</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>ancora niente di salvato</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 dispositivo USB trovato</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 dispositivi USB trovati</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>nessun altro prodotto della casa è collegato</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>collegato anche: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>un mixer è collegato</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>trovato: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 si può aprire</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>ogni mixer che si può aprire risponde</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>raggiunto</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>libreria %1, pacchetto %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Non puoi aprire il mixer</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>È collegato, ma questo computer lo permette solo agli amministratori. Fai eseguire una volta il comando qui sotto a un amministratore, poi ricollega il mixer.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Le impostazioni non si possono salvare</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>Il disco è pieno. Elimina i file che non ti servono.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>Il disco è di sola lettura. Chiedi a un amministratore di cambiarlo.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Un file occupa il posto della cartella %1. Spostalo.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>Non si può scrivere nella cartella %1. Datti il diritto di scriverci.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Le impostazioni non si possono leggere</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 non contiene impostazioni. Eliminalo.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 non è un file. Eliminalo.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Un’impostazione salvata non è valida</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1 è salvato con un numero che non esiste. Scegli di nuovo.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Impostazioni precedenti messe da parte</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Non si potevano leggere e sono in %1. Elimina quel file se non ti serve.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1 non si può leggere. Datti il diritto di leggerlo, oppure eliminalo.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Altri prodotti</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>File di dispositivo</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Permesso</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Risposta</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus di sessione</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Cartella delle impostazioni</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>File delle impostazioni</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>nessun dispositivo USB trovato</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>ma nessun mixer</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Non puoi aprirlo</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Questo computer non mostra alcun USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>È una macchina virtuale o un container? Serve un controller USB.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Questo prodotto non ha impostazioni qui</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 è collegato. Questo programma non può impostarlo. Collega un mixer della famiglia TRX-SELVA.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Nessun mixer trovato</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Collega il mixer via USB e accendilo. Quello che scegli intanto viene salvato.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Il mixer non si può aprire</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Manca il file %1. Scollega e ricollega il mixer.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Un altro programma occupa il mixer</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Così può usarlo un solo programma alla volta. Chiudi l’altro programma. Il comando qui sotto dice qual è.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Scollegalo e ricollegalo. Il sistema dice: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 non risponde</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Spegnilo e riaccendilo, e collegalo senza hub. Le impostazioni restano salvate.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Non c’è un bus di sessione</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Le modifiche di altri programmi appaiono un po’ più tardi. Esci e accedi di nuovo.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Questo utente non ha una cartella personale.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>L’installazione è incompleta</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Mancano file con le versioni. Reinstalla il pacchetto.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>disattivato</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivato</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Al collegamento</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Le impostazioni non possono essere inviate a un mixer che viene collegato</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Nessun mixer</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 mixer  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Ricerca sulle porte USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Collegato, ma non si può aprire</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Non risponde: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Collegato, ma non risponde</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Non si può aprire: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Ogni impostazione va a tutti: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Collegato</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Numero di serie %1</translation>
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
        <translation>Imposta i mixer USB per DJ della famiglia TRX-SELVA.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Mostra questo modello finché non è collegato un mixer.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Usa i colori light, dark, light-contrast o dark-contrast, qualunque siano quelli del desktop.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un profilo ha bisogno di un nome.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Questo nome è troppo lungo.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Questo nome contiene caratteri non ammessi.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Questo utente non ha una cartella personale per i profili.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>Il profilo %1 non esiste più.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Esiste già un profilo %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Esiste già un file %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>Il file ha il nome di un altro profilo, %1. Importalo.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 ha una scelta sconosciuta. Prima scegli di nuovo.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Questo profilo viene da una versione più recente di questo programma.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Questo profilo è per un mixer che qui non è noto: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>Il mixer non ha la scelta «%1».</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Questo profilo contiene qualcosa che il mixer non ha: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Questo profilo non contiene impostazioni.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Questo file non è un profilo.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 ha rifiutato.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 non ha risposto.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 è stato scollegato.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 non si può aprire: manca il permesso.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Un altro programma occupa %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 non l’ha accettato.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Salvato. Nessun mixer è collegato.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Salvato, ma non inviato:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Inviato a %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Inviato a un mixer.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Inviato a %1 mixer.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 registra</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 riproduce su</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Livello boost</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canale MIDI</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Scelta sconosciuta</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Invio a %1 mixer …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Invio …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Questa scelta non è stata accettata.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Inviato, ma questo computer non ha potuto salvarlo.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Questo computer non ha potuto salvare la scelta.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Nessun mixer è collegato.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Non tutte le impostazioni sono state inviate:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Tutte le impostazioni sono state inviate.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Inviate tutte tranne queste, da scegliere di nuovo: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Non è stato possibile cambiarlo: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>È stato collegato un mixer: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>Il selettore d’ingresso di CH%1 non è su USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>Il segnale del mixer che il computer registra su %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>Il canale del mixer su cui il computer riproduce %1.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>Il volume della registrazione.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>Il canale MIDI usato dal mixer.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>Non possibile in questa sessione.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Disattivato da un amministratore.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Installa per questo il pacchetto trxctl.</translation>
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
        <translation>&amp;Controlla di nuovo</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opia</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Cosa è stato controllato</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Controllo in corso …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Pro&amp;fili</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Profili: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Al collegamento</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Invia le impostazioni</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Esiste già un profilo %1. Sostituirlo?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Ancora nessun profilo</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Salva con nome …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Importa …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;limina</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nome del profilo:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Salva profilo</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Rinomina profilo</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Eliminare il profilo %1?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Esporta profilo</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profili (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Importa profilo</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 è per un altro mixer, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 caricato. Ctrl+Z annulla.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Salvato come %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 ora si chiama %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 è stato eliminato.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 è stato scritto in %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 è ora tra i tuoi profili. Sceglilo nel menu per caricarlo.</translation>
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
        <translation>quanto forte registri</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>da un altro programma</translation>
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
        <translation>%1: %2, impostato da un altro programma</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>Il computer ri&amp;produce</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>su questo canale del mixer</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>Il computer &amp;registra</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>questo segnale del mixer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Invia di nuovo tutte le impostazioni</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Cerca di nuovo</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>&amp;Perché il mio mixer non si trova?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>Informazioni e &amp;versioni</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Non c’è un bus di sessione: le modifiche di altri programmi appaiono qui un po’ più tardi.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Riproduci %1 qui</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Registra su %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostra &amp;dettagli</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Scelta sconosciuta</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>a posto</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copia il comando</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Mostra &amp;dettagli</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>Il comando è stato copiato.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Collega il mixer via USB e accendilo. Quello che scegli intanto viene salvato e inviato appena il mixer è collegato.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>non installato</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>Informazioni e versioni</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Imposta i mixer USB per DJ della famiglia TRX-SELVA. Una scelta va subito a ogni mixer collegato e resta salvata su questo computer.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Questo programma</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware del mixer</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Pacchetto</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Applicazione di setup</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Libreria</translation>
    </message>
</context>
</TS>
