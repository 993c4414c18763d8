<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 in Ordnung</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 ohne Wirkung</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>noch nichts gespeichert</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 USB-Gerät gefunden</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 USB-Geräte gefunden</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>kein anderes Produkt des Herstellers ist angeschlossen</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>auch angeschlossen: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>ein Mischpult ist angeschlossen</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>gefunden: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 darf geöffnet werden</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>jedes Mischpult, das geöffnet werden darf, antwortet</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>erreicht</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>Bibliothek %1, Paket %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Sie dürfen das Mischpult nicht öffnen</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>Es ist angeschlossen, aber auf diesem Computer dürfen es nur Administratoren benutzen. Lassen Sie einen Administrator den Befehl unten einmal ausführen und stecken Sie das Mischpult dann neu an.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>Der Datenträger ist voll. Löschen Sie Dateien, die Sie nicht brauchen.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>Der Datenträger kann nur gelesen werden. Lassen Sie das von einem Administrator ändern.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Am Platz des Ordners %1 liegt eine Datei. Verschieben Sie sie.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden. Geben Sie sich das Recht dazu.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Ihre Einstellungen können nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 enthält keine Einstellungen. Entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 ist keine Datei. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Eine gespeicherte Einstellung ist ungültig</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1: Die gespeicherte Nummer gehört zu keiner Auswahl. Wählen Sie neu.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Frühere Einstellungen wurden beiseitegelegt</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Sie konnten nicht gelesen werden und liegen in %1. Entfernen Sie diese Datei, wenn Sie sie nicht brauchen.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1 kann nicht gelesen werden. Geben Sie sich das Recht dazu oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Andere Produkte</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mischpult</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Gerätedatei</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Berechtigung</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Sitzungsbus</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Einstellungsordner</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Einstellungsdateien</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>kein USB-Gerät gefunden</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>aber kein Mischpult</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Sie dürfen es nicht öffnen</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Dieser Computer zeigt gar kein USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>Ist das eine virtuelle Maschine oder ein Container? Dann fehlt ein USB-Controller.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Dieses Produkt hat hier keine Einstellungen</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 ist angeschlossen. Dieses Programm kann es nicht einstellen. Schließen Sie ein Mischpult der TRX-SELVA-Familie an.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Kein Mischpult gefunden</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Schließen Sie das Mischpult per USB an und schalten Sie es ein. Was Sie inzwischen wählen, bleibt gespeichert.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Das Mischpult lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Die Datei %1 fehlt. Stecken Sie das Mischpult ab und wieder an.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Ein anderes Programm belegt das Mischpult</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>So kann es nur ein Programm benutzen. Beenden Sie das andere Programm. Der Befehl unten nennt es.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Stecken Sie es ab und wieder an. Das System meldet: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Schalten Sie es aus und wieder ein und schließen Sie es ohne Hub an. Ihre Einstellungen bleiben gespeichert.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Änderungen anderer Programme erscheinen etwas später. Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Dieser Benutzer hat keinen persönlichen Ordner.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>Die Installation ist unvollständig</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Dateien mit Versionen fehlen. Installieren Sie das Paket neu.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>on</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Beim Anschließen</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Einstellungen können nicht an ein angeschlossenes Mischpult gesendet werden</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Kein Mischpult</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 Mischpulte  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Gesucht wird an den USB-Anschlüssen</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Angeschlossen, lässt sich aber nicht öffnen</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Antwortet nicht: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Angeschlossen, antwortet aber nicht</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Jede Einstellung geht an alle: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Angeschlossen</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Seriennummer %1</translation>
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
        <translation>Stellt die USB-DJ-Mischpulte der TRX-SELVA-Familie ein.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Dieses Modell zeigen, solange kein Mischpult angeschlossen ist.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Die Farben light, dark, light-contrast oder dark-contrast benutzen, unabhängig vom Desktop.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Ein Profil braucht einen Namen.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Dieser Name ist zu lang.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Dieser Name enthält Zeichen, die ein Name nicht haben kann.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Dieser Benutzer hat keinen persönlichen Ordner für Profile.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>Das Profil %1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Es gibt schon ein Profil %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Es gibt schon eine Datei %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>Die Datei trägt den Namen eines anderen Profils, %1. Importieren Sie sie.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 hat eine unbekannte Auswahl. Wählen Sie dort zuerst neu.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Dieses Profil stammt von einer neueren Version dieses Programms.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Dieses Profil ist für ein Mischpult, das hier nicht bekannt ist: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>Das Mischpult hat die Auswahl „%1“ nicht.</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Dieses Profil enthält etwas, was das Mischpult nicht hat: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Dieses Profil enthält keine Einstellungen.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Diese Datei ist kein Profil.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 hat abgelehnt.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 wurde abgesteckt.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 darf nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Ein anderes Programm belegt %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 hat es nicht übernommen.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Gespeichert. Kein Mischpult ist angeschlossen.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Gespeichert, aber nicht gesendet:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>An %1 gesendet.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>An ein Mischpult gesendet.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>An %1 Mischpulte gesendet.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 nimmt auf</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 spielt auf</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Boost-Pegel</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI-Kanal</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Unbekannte Auswahl</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Senden an %1 Mischpulte …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Senden …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Diese Auswahl wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Gesendet, aber dieser Computer konnte es nicht speichern.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Dieser Computer konnte die Auswahl nicht speichern.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Kein Mischpult ist angeschlossen.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Nicht alle Einstellungen wurden gesendet:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Alle Einstellungen wurden gesendet.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Alle gesendet außer diesen; wählen Sie sie neu: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Das konnte nicht geändert werden: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Ein Mischpult wurde angesteckt: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>Der Eingangswahlschalter von CH%1 steht nicht auf USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>Das Signal des Mischpults, das der Computer auf %1 aufnimmt.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>Der Kanal des Mischpults, auf dem der Computer %1 spielt.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>Wie laut aufgenommen wird.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>Der MIDI-Kanal, den das Mischpult verwendet.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>In dieser Sitzung nicht möglich.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Von einem Administrator ausgeschaltet.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Installieren Sie dafür das Paket trxctl.</translation>
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
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Was geprüft wurde</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Prüfung läuft …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Pro&amp;file</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Profile: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Beim Anstecken</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Einstellungen senden</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Es gibt schon ein Profil %1. Ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Noch keine Profile</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Speichern unter …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Name des Profils:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Profil %1 löschen?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Profil exportieren</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profile (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Profil importieren</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 ist für ein anderes Mischpult, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 geladen. Strg+Z macht es rückgängig.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 heißt jetzt %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 ist gelöscht.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 wurde nach %2 geschrieben.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 gehört jetzt zu Ihren Profilen. Wählen Sie es im Menü, um es zu laden.</translation>
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
        <translation>wie laut Sie aufnehmen</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>von anderem Programm</translation>
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
        <translation>%1: %2, von einem anderen Programm gesetzt</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>Computer spielt &amp;ab</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>auf diesem Mischpultkanal</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>Computer &amp;nimmt auf</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>dieses Signal des Mischpults</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Alle Einstellungen erneut senden</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>&amp;Warum wird mein Mischpult nicht gefunden?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>&amp;Über das Programm und Versionen</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Es gibt keinen Sitzungsbus: Änderungen anderer Programme erscheinen hier etwas später.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>%1 hier abspielen</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Auf %1 aufnehmen</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details zeigen</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Unbekannte Auswahl</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Befehl kopieren</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details zeigen</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>Der Befehl ist kopiert.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Schließen Sie das Mischpult per USB an und schalten Sie es ein. Was Sie inzwischen wählen, bleibt gespeichert und wird gesendet, sobald es da ist.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>nicht installiert</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>Über das Programm und Versionen</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Stellt die USB-DJ-Mischpulte der TRX-SELVA-Familie ein. Eine Auswahl geht sofort an jedes angeschlossene Mischpult und bleibt auf diesem Computer gespeichert.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Dieses Programm</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware des Mischpults</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Setup-Programm</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
</context>
</TS>
