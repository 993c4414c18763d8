<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 in good order</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 without effect</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>nothing stored yet</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 USB device seen</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 USB devices seen</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>no other product of the maker is connected</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>also connected: %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>a mixer is connected</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>found: %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 may be opened</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>every mixer that may be opened answers</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>reached</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>library %1, package %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>You may not open the mixer</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Your settings cannot be kept</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>The disk is full. Delete files that you do not need.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>The disk can only be read. Let an administrator change that.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>A file is in the place of the folder %1. Move it elsewhere.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>The folder %1 is not writable. Give yourself the right to write to it.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Your settings cannot be read</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 holds no settings. Remove it.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 is no file. Remove it.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>A stored setting is no choice</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1 is stored with a number that no choice has. Choose it anew.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>Earlier settings were set aside</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>They could not be read, and are kept in %1. Remove that file if you do not need it.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1 cannot be read. Give yourself the right to read it, or remove it.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Other products</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Device file</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Permission</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Answer</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Session bus</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Settings folder</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Settings files</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>no USB device seen</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>but no mixer</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>You may not open it</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>This computer shows no USB at all</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>Is this a virtual machine or a container? It needs a USB controller.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>This product has no settings here</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>No mixer found</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>The mixer cannot be opened</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>The file %1 is missing. Plug the mixer out and in again.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Another program holds the mixer</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Only one program at a time may use it so. End that program. The command below names it.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Plug it out and in again. The system says: %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 does not answer</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Switch it off and on again, and connect it without a hub. Your settings are kept.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>There is no session bus</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Changes made by other programs show up a little later. Log out and in again.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>This user has no home folder.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>The installation is not complete</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Files with versions are missing. Install the package again.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>turned off</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>At plug-in</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Settings cannot be sent to a mixer that is plugged in</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>No mixer</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 mixers  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Looking for one on USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Connected, but cannot be opened</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Does not answer: %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Connected, but does not answer</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Cannot be opened: %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Every setting goes to all of them: %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Serial number %1</translation>
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
        <translation>Sets the USB DJ mixers of the TRX-SELVA family.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Show this model while no mixer is connected.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>A profile needs a name.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>This name is too long.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>This name has characters that a name cannot have.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>This user has no home folder to keep profiles in.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>There is no profile %1 any more.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>There is a profile %1 already.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>There is a file %1 already.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>The file is named for another profile, %1. Import it.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 cannot be written: %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 is set to an unknown choice. Choose it anew first.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>This profile is from a newer version of this program.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>This profile is for a mixer that is not known here: %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>The mixer has no choice &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>This profile holds something that the mixer does not have: %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>This profile holds no settings.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>This file is no profile.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 refused it.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 did not answer.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 was unplugged.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 may not be opened.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Another program holds %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 did not take it.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Kept. No mixer is connected.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Kept, but not sent:</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Sent to %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Sent to one mixer.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Sent to %1 mixers.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 records</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 plays to</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Boost level</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>MIDI channel</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Unknown choice</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Sending to %1 mixers …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Sending …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>The mixer settings refused this choice.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Sent, but this computer could not keep it.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>This computer could not keep the choice.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>No mixer is connected.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Not all settings were sent:</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>All settings were sent.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Sent all but these; choose them anew: %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>This could not be changed: %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>A mixer was plugged in: %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>The input selector of CH%1 is not on USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>The signal of the mixer that the computer records on %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>The mixer channel that the computer plays %1 to.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>How loud you record.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>The MIDI channel that the mixer uses.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>Not possible in this session.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Turned off by an administrator.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Install the package trxctl for this.</translation>
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
        <translation>&amp;Look again</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>What was checked</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;lose</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Looking …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Pro&amp;files</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Profiles: %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>When a mixer is plugged in</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Send my settings to it</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>There is a profile %1 already. Replace it?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>No profiles yet</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Save as …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Import …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Export</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Name of the profile:</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Save profile</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Rename profile</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Delete the profile %1?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Export profile</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profiles (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Import profile</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 is for another mixer, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 loaded. Ctrl+Z takes it back.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Saved as %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 is called %2 now.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 is deleted.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 is written to %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 is among your profiles now. Choose it in the menu to load it.</translation>
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
        <translation>how loud you record</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>set by another program</translation>
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
        <translation>%1 %2: set by another program</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>Computer &amp;plays</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>to this mixer channel</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>Computer &amp;records</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>this signal of the mixer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Send all settings again</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Look again</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>&amp;Why is my mixer not found?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>&amp;About and versions</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>There is no session bus: changes made by other programs show up here a little later.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Play %1 here</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Record on %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Show &amp;details</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Unknown choice</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>good</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copy command</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Show &amp;details</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>The command is copied.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>not installed</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>About and versions</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;lose</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>This program</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware of the mixer</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Package</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Setup application</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Library</translation>
    </message>
</context>
</TS>
