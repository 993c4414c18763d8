<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 in orde</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 zonder effect</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>nog niets bewaard</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 USB-apparaat gevonden</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 USB-apparaten gevonden</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>er is geen ander product van de fabrikant aangesloten</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>ook aangesloten: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>er is een mengpaneel aangesloten</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>gevonden: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 mag worden geopend</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>elk mengpaneel dat mag worden geopend, antwoordt</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>bereikt</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>bibliotheek %1, pakket %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Je mag het mengpaneel niet openen</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>Het is aangesloten, maar op deze computer mogen alleen beheerders het gebruiken. Laat een beheerder de opdracht hieronder één keer uitvoeren en sluit het mengpaneel daarna opnieuw aan.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Je instellingen kunnen niet worden bewaard</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>De schijf is vol. Verwijder bestanden die je niet nodig hebt.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>De schijf kan alleen worden gelezen. Laat een beheerder dat veranderen.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Op de plaats van de map %1 staat een bestand. Verplaats het.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>In de map %1 kan niet worden geschreven. Geef jezelf het recht daartoe.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Je instellingen kunnen niet worden gelezen</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 bevat geen instellingen. Verwijder het.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 is geen bestand. Verwijder het.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Een bewaarde instelling is ongeldig</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1: het bewaarde nummer hoort bij geen enkele keuze. Kies opnieuw.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Eerdere instellingen zijn apart gezet</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Ze konden niet worden gelezen en staan in %1. Verwijder dat bestand als je het niet nodig hebt.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1 kan niet worden gelezen. Geef jezelf het recht daartoe of verwijder het.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Andere producten</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mengpaneel</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Apparaatbestand</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Toestemming</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwoord</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Sessiebus</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Instellingenmap</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Instellingenbestanden</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installatie</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>geen USB-apparaat gevonden</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>maar geen mengpaneel</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Je mag het niet openen</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Deze computer toont helemaal geen USB</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>Is dit een virtuele machine of een container? Dan is een USB-controller nodig.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Dit product heeft hier geen instellingen</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 is aangesloten. Dit programma kan het niet instellen. Sluit een mengpaneel van de TRX-SELVA-familie aan.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Geen mengpaneel gevonden</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Sluit het mengpaneel aan via USB en zet het aan. Wat je intussen kiest, wordt bewaard.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Het mengpaneel kan niet worden geopend</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Het bestand %1 ontbreekt. Koppel het mengpaneel los en sluit het opnieuw aan.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Een ander programma houdt het mengpaneel bezet</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Zo kan maar één programma het gebruiken. Sluit het andere programma. De opdracht hieronder noemt het.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Koppel het los en sluit het opnieuw aan. Het systeem meldt: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwoordt niet</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Zet het uit en weer aan en sluit het aan zonder hub. Je instellingen blijven bewaard.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Er is geen sessiebus</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Wijzigingen van andere programma’s verschijnen iets later. Meld je af en weer aan.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Deze gebruiker heeft geen persoonlijke map.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>De installatie is niet volledig</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Er ontbreken bestanden met versies. Installeer het pakket opnieuw.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>uitgeschakeld</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ingeschakeld</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Bij het aansluiten</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Instellingen kunnen niet naar een aangesloten mengpaneel worden gestuurd</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Geen mengpaneel</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 mengpanelen  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Er wordt op USB gezocht</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Aangesloten, maar kan niet worden geopend</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Antwoordt niet: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Aangesloten, maar antwoordt niet</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Elke instelling gaat naar alle: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Aangesloten</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Serienummer %1</translation>
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
        <translation>Stelt de USB-dj-mengpanelen van de TRX-SELVA-familie in.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Dit model tonen zolang er geen mengpaneel is aangesloten.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>De kleuren light, dark, light-contrast of dark-contrast gebruiken, wat het bureaublad ook gebruikt.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Een profiel heeft een naam nodig.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Deze naam is te lang.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Deze naam bevat tekens die niet in een naam mogen.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Deze gebruiker heeft geen persoonlijke map voor profielen.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>Het profiel %1 bestaat niet meer.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Er is al een profiel %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Er is al een bestand %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>Het bestand draagt de naam van een ander profiel, %1. Importeer het.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kan niet worden gelezen: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kan niet worden geschreven: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 staat op een onbekende keuze. Kies daar eerst opnieuw.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Dit profiel komt van een nieuwere versie van dit programma.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Dit profiel is voor een mengpaneel dat hier niet bekend is: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>Het mengpaneel heeft de keuze ‘%1’ niet.</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Dit profiel bevat iets wat het mengpaneel niet heeft: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Dit profiel bevat geen instellingen.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Dit bestand is geen profiel.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 weigerde het.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 antwoordde niet.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 is losgekoppeld.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 mag niet worden geopend.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Een ander programma houdt %1 bezet.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 nam het niet over.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Bewaard. Er is geen mengpaneel aangesloten.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Bewaard, maar niet verzonden:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Verzonden naar %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Verzonden naar één mengpaneel.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Verzonden naar %1 mengpanelen.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 neemt op</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 speelt af op</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Boostniveau</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI-kanaal</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Onbekende keuze</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Verzenden naar %1 mengpanelen …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Verzenden …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Deze keuze is niet aangenomen.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Verzonden, maar deze computer kon het niet bewaren.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Deze computer kon de keuze niet bewaren.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Er is geen mengpaneel aangesloten.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Niet alle instellingen zijn verzonden:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Alle instellingen zijn verzonden.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Alles verzonden behalve deze; kies ze opnieuw: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Dit kon niet worden gewijzigd: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Er is een mengpaneel aangesloten: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>De ingangskeuzeschakelaar van CH%1 staat niet op USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>Het signaal van het mengpaneel dat de computer op %1 opneemt.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>Het kanaal van het mengpaneel waarop de computer %1 afspeelt.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>Hoe luid er wordt opgenomen.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>Het MIDI-kanaal dat het mengpaneel gebruikt.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>In deze sessie niet mogelijk.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Uitgezet door een beheerder.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Installeer hiervoor het pakket trxctl.</translation>
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
        <translation>&amp;Opnieuw controleren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Wat is gecontroleerd</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;luiten</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Bezig met controleren …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Pro&amp;fielen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Profielen: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Bij het aansluiten</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Instellingen zenden</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Er is al een profiel %1. Vervangen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Vervangen</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Nog geen profielen</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Bewaren als …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Importeren …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Naam wijzigen</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporteren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Ver&amp;wijderen</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Naam van het profiel:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Profiel bewaren</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Naam van profiel wijzigen</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Profiel %1 verwijderen?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Profiel exporteren</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profielen (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Profiel importeren</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 is voor een ander mengpaneel, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 geladen. Ctrl+Z maakt het ongedaan.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Bewaard als %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 heet nu %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 is verwijderd.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 is geschreven naar %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 hoort nu bij je profielen. Kies het in het menu om het te laden.</translation>
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
        <translation>hoe hard je opneemt</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>door ander programma</translation>
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
        <translation>%1: %2, ingesteld door een ander programma</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>Computer s&amp;peelt af</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>op dit mengpaneelkanaal</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>Computer Computer neemt o&amp;pneemt op</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>dit signaal van het mengpaneel</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Alle instellingen opnieuw verzenden</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>Opnieuw &amp;zoeken</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>&amp;Waarom wordt mijn mengpaneel niet gevonden?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>O&amp;ver en versies</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Er is geen sessiebus: wijzigingen van andere programma’s verschijnen hier iets later.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>%1 hier afspelen</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Opnemen op %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details tonen</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Onbekende keuze</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>in orde</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>probleem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>Opdracht &amp;kopiëren</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details tonen</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>De opdracht is gekopieerd.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Sluit het mengpaneel aan via USB en zet het aan. Wat je intussen kiest, wordt bewaard en gestuurd zodra het er is.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>niet geïnstalleerd</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>Over en versies</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Stelt de USB-dj-mengpanelen van de TRX-SELVA-familie in. Een keuze gaat meteen naar elk aangesloten mengpaneel en blijft op deze computer bewaard.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;luiten</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Dit programma</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware van het mengpaneel</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Pakket</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Setup-programma</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliotheek</translation>
    </message>
</context>
</TS>
