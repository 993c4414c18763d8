<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CheckWords</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 in good order</source>
        <translation>%1 en ordre</translation>
    </message>
    <message>
        <source>%1 without effect</source>
        <translation>%1 sans effet</translation>
    </message>
    <message>
        <source>nothing stored yet</source>
        <translation>rien d’enregistré pour l’instant</translation>
    </message>
    <message>
        <source>1 USB device seen</source>
        <translation>1 appareil USB détecté</translation>
    </message>
    <message>
        <source>%1 USB devices seen</source>
        <translation>%1 appareils USB détectés</translation>
    </message>
    <message>
        <source>no other product of the maker is connected</source>
        <translation>aucun autre produit du fabricant n’est connecté</translation>
    </message>
    <message>
        <source>also connected: %1</source>
        <translation>également connecté : %1</translation>
    </message>
    <message>
        <source>a mixer is connected</source>
        <translation>une table de mixage est connectée</translation>
    </message>
    <message>
        <source>found: %1</source>
        <translation>trouvé : %1</translation>
    </message>
    <message>
        <source>%1 may be opened</source>
        <translation>%1 peut être ouverte</translation>
    </message>
    <message>
        <source>every mixer that may be opened answers</source>
        <translation>chaque table de mixage qui peut être ouverte répond</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>joint</translation>
    </message>
    <message>
        <source>library %1, package %2</source>
        <translation>bibliothèque %1, paquet %2</translation>
    </message>
    <message>
        <source>You may not open the mixer</source>
        <translation>Vous ne pouvez pas ouvrir la table de mixage</translation>
    </message>
    <message>
        <source>It is connected, but this computer lets only administrators use it. Let an administrator run the command below once, then plug the mixer in again.</source>
        <translation>Elle est connectée, mais cet ordinateur la réserve aux administrateurs. Demandez à un administrateur d’exécuter une fois la commande ci-dessous, puis rebranchez la table de mixage.</translation>
    </message>
    <message>
        <source>Your settings cannot be kept</source>
        <translation>Vos réglages ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>The disk is full. Delete files that you do not need.</source>
        <translation>Le disque est plein. Supprimez des fichiers inutiles.</translation>
    </message>
    <message>
        <source>The disk can only be read. Let an administrator change that.</source>
        <translation>Le disque est en lecture seule. Demandez à un administrateur de changer cela.</translation>
    </message>
    <message>
        <source>A file is in the place of the folder %1. Move it elsewhere.</source>
        <translation>Un fichier occupe la place du dossier %1. Déplacez-le.</translation>
    </message>
    <message>
        <source>The folder %1 is not writable. Give yourself the right to write to it.</source>
        <translation>Impossible d’écrire dans le dossier %1. Donnez-vous le droit d’y écrire.</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Vos réglages ne peuvent pas être lus</translation>
    </message>
    <message>
        <source>%1 holds no settings. Remove it.</source>
        <translation>%1 ne contient pas de réglages. Supprimez ce fichier.</translation>
    </message>
    <message>
        <source>%1 is no file. Remove it.</source>
        <translation>%1 n’est pas un fichier. Supprimez-le.</translation>
    </message>
    <message>
        <source>A stored setting is no choice</source>
        <translation>Un réglage enregistré n’est pas valable</translation>
    </message>
    <message>
        <source>%1 is stored with a number that no choice has. Choose it anew.</source>
        <translation>%1 est enregistré avec un numéro qui n’existe pas. Refaites ce choix.</translation>
    </message>
    <message>
        <source>Earlier settings were set aside</source>
        <translation>D’anciens réglages ont été mis de côté</translation>
    </message>
    <message>
        <source>They could not be read, and are kept in %1. Remove that file if you do not need it.</source>
        <translation>Ils n’ont pas pu être lus et se trouvent dans %1. Supprimez ce fichier si vous n’en avez pas besoin.</translation>
    </message>
    <message>
        <source>%1 cannot be read. Give yourself the right to read it, or remove it.</source>
        <translation>%1 ne peut pas être lu. Donnez-vous le droit de le lire, ou supprimez-le.</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Other products</source>
        <translation>Autres produits</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Table de mixage</translation>
    </message>
    <message>
        <source>Device file</source>
        <translation>Fichier de périphérique</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de session</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <translation>Dossier des réglages</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Fichiers des réglages</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>no USB device seen</source>
        <translation>aucun appareil USB détecté</translation>
    </message>
    <message>
        <source>but no mixer</source>
        <translation>mais pas de table de mixage</translation>
    </message>
    <message>
        <source>You may not open it</source>
        <translation>Vous ne pouvez pas l’ouvrir</translation>
    </message>
    <message>
        <source>This computer shows no USB at all</source>
        <translation>Aucun USB sur cet ordinateur</translation>
    </message>
    <message>
        <source>Is this a virtual machine or a container? It needs a USB controller.</source>
        <translation>Est-ce une machine virtuelle ou un conteneur ? Il lui faut un contrôleur USB.</translation>
    </message>
    <message>
        <source>This product has no settings here</source>
        <translation>Ce produit n’a pas de réglages ici</translation>
    </message>
    <message>
        <source>%1 is connected. It is not a mixer that this program can set. Connect a mixer of the TRX-SELVA family.</source>
        <translation>%1 est connecté. Ce programme ne peut pas le régler. Connectez une table de mixage de la famille TRX-SELVA.</translation>
    </message>
    <message>
        <source>No mixer found</source>
        <translation>Aucune table de mixage trouvée</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept.</source>
        <translation>Connectez la table de mixage en USB et allumez-la. Ce que vous choisissez entre-temps est conservé.</translation>
    </message>
    <message>
        <source>The mixer cannot be opened</source>
        <translation>Impossible d’ouvrir la table de mixage</translation>
    </message>
    <message>
        <source>The file %1 is missing. Plug the mixer out and in again.</source>
        <translation>Le fichier %1 manque. Débranchez puis rebranchez la table de mixage.</translation>
    </message>
    <message>
        <source>Another program holds the mixer</source>
        <translation>Un autre programme occupe la table de mixage</translation>
    </message>
    <message>
        <source>Only one program at a time may use it so. End that program. The command below names it.</source>
        <translation>Un seul programme à la fois peut l’utiliser ainsi. Fermez l’autre programme. La commande ci-dessous le nomme.</translation>
    </message>
    <message>
        <source>Plug it out and in again. The system says: %1.</source>
        <translation>Débranchez-la puis rebranchez-la. Message du système : %1.</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>Switch it off and on again, and connect it without a hub. Your settings are kept.</source>
        <translation>Éteignez-la puis rallumez-la, et connectez-la sans hub. Vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>There is no session bus</source>
        <translation>Il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>Changes made by other programs show up a little later. Log out and in again.</source>
        <translation>Les changements faits par d’autres programmes apparaissent un peu plus tard. Fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>This user has no home folder.</source>
        <translation>Cet utilisateur n’a pas de dossier personnel.</translation>
    </message>
    <message>
        <source>The installation is not complete</source>
        <translation>L’installation est incomplète</translation>
    </message>
    <message>
        <source>Files with versions are missing. Install the package again.</source>
        <translation>Des fichiers de version manquent. Réinstallez le paquet.</translation>
    </message>
    <message>
        <source>turned off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>At plug-in</source>
        <translation>Au branchement</translation>
    </message>
    <message>
        <source>Settings cannot be sent to a mixer that is plugged in</source>
        <translation>Les réglages ne peuvent pas être envoyés à une table de mixage branchée</translation>
    </message>
</context>
<context>
    <name>HeaderWords</name>
    <message>
        <source>No mixer</source>
        <translation>Aucune table de mixage</translation>
    </message>
    <message>
        <source>%1 mixers  ·  %2</source>
        <translation>%1 tables de mixage  ·  %2</translation>
    </message>
    <message>
        <source>Looking for one on USB</source>
        <translation>Recherche sur les ports USB</translation>
    </message>
    <message>
        <source>Connected, but cannot be opened</source>
        <translation>Connectée, mais impossible à ouvrir</translation>
    </message>
    <message>
        <source>Does not answer: %1</source>
        <translation>Ne répond pas : %1</translation>
    </message>
    <message>
        <source>Connected, but does not answer</source>
        <translation>Connectée, mais ne répond pas</translation>
    </message>
    <message>
        <source>Cannot be opened: %1</source>
        <translation>Impossible à ouvrir : %1</translation>
    </message>
    <message>
        <source>Every setting goes to all of them: %1</source>
        <translation>Chaque réglage est envoyé à toutes : %1</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connectée</translation>
    </message>
    <message>
        <source>Serial number %1</source>
        <translation>Numéro de série %1</translation>
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
        <translation>Règle les tables de mixage DJ USB de la famille TRX-SELVA.</translation>
    </message>
    <message>
        <source>Show this model while no mixer is connected.</source>
        <translation>Montrer ce modèle tant qu’aucune table de mixage n’est connectée.</translation>
    </message>
    <message>
        <source>Use light, dark, light-contrast or dark-contrast colours, whatever the desktop uses.</source>
        <translation>Utiliser les couleurs light, dark, light-contrast ou dark-contrast, quelles que soient celles du bureau.</translation>
    </message>
</context>
<context>
    <name>ProfileFaultWords</name>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un profil a besoin d’un nom.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Ce nom est trop long.</translation>
    </message>
    <message>
        <source>This name has characters that a name cannot have.</source>
        <translation>Ce nom contient des caractères interdits dans un nom.</translation>
    </message>
    <message>
        <source>This user has no home folder to keep profiles in.</source>
        <translation>Cet utilisateur n’a pas de dossier personnel pour les profils.</translation>
    </message>
    <message>
        <source>There is no profile %1 any more.</source>
        <translation>Le profil %1 n’existe plus.</translation>
    </message>
    <message>
        <source>There is a profile %1 already.</source>
        <translation>Il existe déjà un profil %1.</translation>
    </message>
    <message>
        <source>There is a file %1 already.</source>
        <translation>Il existe déjà un fichier %1.</translation>
    </message>
    <message>
        <source>The file is named for another profile, %1. Import it.</source>
        <translation>Le fichier porte le nom d’un autre profil, %1. Importez-le.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossible de lire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossible d’écrire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 is set to an unknown choice. Choose it anew first.</source>
        <translation>%1 a un choix inconnu. Refaites d’abord ce choix.</translation>
    </message>
    <message>
        <source>This profile is from a newer version of this program.</source>
        <translation>Ce profil vient d’une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>This profile is for a mixer that is not known here: %1.</source>
        <translation>Ce profil est fait pour une table de mixage inconnue ici : %1.</translation>
    </message>
    <message>
        <source>The mixer has no choice &quot;%1&quot;.</source>
        <translation>La table de mixage n’a pas le choix « %1 ».</translation>
    </message>
    <message>
        <source>This profile holds something that the mixer does not have: %1.</source>
        <translation>Ce profil contient un réglage que la table de mixage n’a pas : %1.</translation>
    </message>
    <message>
        <source>This profile holds no settings.</source>
        <translation>Ce profil ne contient aucun réglage.</translation>
    </message>
    <message>
        <source>This file is no profile.</source>
        <translation>Ce fichier n’est pas un profil.</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 refused it.</source>
        <translation>%1 a refusé.</translation>
    </message>
    <message>
        <source>%1 did not answer.</source>
        <translation>%1 n’a pas répondu.</translation>
    </message>
    <message>
        <source>%1 was unplugged.</source>
        <translation>%1 a été débranchée.</translation>
    </message>
    <message>
        <source>%1 may not be opened.</source>
        <translation>%1 ne peut pas être ouverte : droits manquants.</translation>
    </message>
    <message>
        <source>Another program holds %1.</source>
        <translation>Un autre programme occupe %1.</translation>
    </message>
    <message>
        <source>%1 did not take it.</source>
        <translation>%1 ne l’a pas pris en compte.</translation>
    </message>
    <message>
        <source>Kept. No mixer is connected.</source>
        <translation>Enregistré. Aucune table de mixage n’est connectée.</translation>
    </message>
    <message>
        <source>Kept, but not sent:</source>
        <translation>Enregistré, mais pas envoyé :</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Envoyé à %1.</translation>
    </message>
    <message>
        <source>Sent to one mixer.</source>
        <translation>Envoyé à une table de mixage.</translation>
    </message>
    <message>
        <source>Sent to %1 mixers.</source>
        <translation>Envoyé à %1 tables de mixage.</translation>
    </message>
    <message>
        <source>USB %1</source>
        <translation>USB %1</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 enregistre</translation>
    </message>
    <message>
        <source>%1 plays to</source>
        <translation>%1 joue sur</translation>
    </message>
    <message>
        <source>Boost level</source>
        <translation>Niveau de boost</translation>
    </message>
    <message>
        <source>MIDI channel</source>
        <translation>Canal MIDI</translation>
    </message>
    <message>
        <source>Unknown choice</source>
        <translation>Choix inconnu</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sending to %1 mixers …</source>
        <translation>Envoi à %1 tables de mixage …</translation>
    </message>
    <message>
        <source>Sending …</source>
        <translation>Envoi …</translation>
    </message>
    <message>
        <source>The mixer settings refused this choice.</source>
        <translation>Ce choix a été refusé.</translation>
    </message>
    <message>
        <source>Sent, but this computer could not keep it.</source>
        <translation>Envoyé, mais cet ordinateur n’a pas pu l’enregistrer.</translation>
    </message>
    <message>
        <source>This computer could not keep the choice.</source>
        <translation>Cet ordinateur n’a pas pu enregistrer le choix.</translation>
    </message>
    <message>
        <source>No mixer is connected.</source>
        <translation>Aucune table de mixage n’est connectée.</translation>
    </message>
    <message>
        <source>Not all settings were sent:</source>
        <translation>Certains réglages n’ont pas été envoyés :</translation>
    </message>
    <message>
        <source>All settings were sent.</source>
        <translation>Tous les réglages ont été envoyés.</translation>
    </message>
    <message>
        <source>Sent all but these; choose them anew: %1.</source>
        <translation>Tous envoyés sauf ceux-ci, à choisir de nouveau : %1.</translation>
    </message>
    <message>
        <source>This could not be changed: %1.</source>
        <translation>Impossible de changer cela : %1.</translation>
    </message>
    <message>
        <source>A mixer was plugged in: %1</source>
        <translation>Une table de mixage a été branchée : %1</translation>
    </message>
    <message>
        <source>The input selector of CH%1 is not on USB</source>
        <translation>Le sélecteur d’entrée de CH%1 n’est pas sur USB</translation>
    </message>
    <message>
        <source>The signal of the mixer that the computer records on %1.</source>
        <translation>Le signal de la table de mixage que l’ordinateur enregistre sur %1.</translation>
    </message>
    <message>
        <source>The mixer channel that the computer plays %1 to.</source>
        <translation>Le canal de la table de mixage sur lequel l’ordinateur joue %1.</translation>
    </message>
    <message>
        <source>How loud you record.</source>
        <translation>Le niveau de l’enregistrement.</translation>
    </message>
    <message>
        <source>The MIDI channel that the mixer uses.</source>
        <translation>Le canal MIDI utilisé par la table de mixage.</translation>
    </message>
    <message>
        <source>Not possible in this session.</source>
        <translation>Impossible dans cette session.</translation>
    </message>
    <message>
        <source>Turned off by an administrator.</source>
        <translation>Désactivé par un administrateur.</translation>
    </message>
    <message>
        <source>Install the package trxctl for this.</source>
        <translation>Installez pour cela le paquet trxctl.</translation>
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
        <translation>&amp;Vérifier à nouveau</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>What was checked</source>
        <translation>Ce qui a été vérifié</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Looking …</source>
        <translation>Vérification …</translation>
    </message>
</context>
<context>
    <name>setup::Header</name>
    <message>
        <source>Pro&amp;files</source>
        <translation>Pro&amp;fils</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Profiles: %1</source>
        <translation>Profils : %1</translation>
    </message>
</context>
<context>
    <name>setup::PluggedInCard</name>
    <message>
        <source>When a mixer is plugged in</source>
        <translation>Au branchement</translation>
    </message>
    <message>
        <source>&amp;Send my settings to it</source>
        <translation>&amp;Envoyer mes réglages</translation>
    </message>
</context>
<context>
    <name>setup::ProfileMenu</name>
    <message>
        <source>There is a profile %1 already. Replace it?</source>
        <translation>Il existe déjà un profil %1. Le remplacer ?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>No profiles yet</source>
        <translation>Pas encore de profil</translation>
    </message>
    <message>
        <source>&amp;Save as …</source>
        <translation>&amp;Enregistrer sous …</translation>
    </message>
    <message>
        <source>&amp;Import …</source>
        <translation>&amp;Importer …</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nom du profil :</translation>
    </message>
    <message>
        <source>Save profile</source>
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>Rename profile</source>
        <translation>Renommer le profil</translation>
    </message>
    <message>
        <source>Delete the profile %1?</source>
        <translation>Supprimer le profil %1 ?</translation>
    </message>
    <message>
        <source>Export profile</source>
        <translation>Exporter le profil</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profils (*.json)</translation>
    </message>
    <message>
        <source>Import profile</source>
        <translation>Importer un profil</translation>
    </message>
</context>
<context>
    <name>setup::ProfileShelf</name>
    <message>
        <source>%1 is for another mixer, %2.</source>
        <translation>%1 est fait pour une autre table de mixage, %2.</translation>
    </message>
    <message>
        <source>%1 loaded. Ctrl+Z takes it back.</source>
        <translation>%1 chargé. Ctrl+Z annule.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous le nom %1.</translation>
    </message>
    <message>
        <source>%1 is called %2 now.</source>
        <translation>%1 s’appelle maintenant %2.</translation>
    </message>
    <message>
        <source>%1 is deleted.</source>
        <translation>%1 est supprimé.</translation>
    </message>
    <message>
        <source>%1 is written to %2.</source>
        <translation>%1 a été écrit dans %2.</translation>
    </message>
    <message>
        <source>%1 is among your profiles now. Choose it in the menu to load it.</source>
        <translation>%1 fait maintenant partie de vos profils. Choisissez-le dans le menu pour le charger.</translation>
    </message>
</context>
<context>
    <name>setup::SettingCard</name>
    <message>
        <source>%1: %2</source>
        <comment>setting: choice</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>how loud you record</source>
        <translation>votre niveau d’enregistrement</translation>
    </message>
    <message>
        <source>set by another program</source>
        <translation>par un autre programme</translation>
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
        <translation>%1 : %2, changé par un autre programme</translation>
    </message>
    <message>
        <source>Computer &amp;plays</source>
        <translation>L’ordinateur &amp;joue</translation>
    </message>
    <message>
        <source>to this mixer channel</source>
        <translation>sur ce canal de la table</translation>
    </message>
    <message>
        <source>Computer &amp;records</source>
        <translation>L’ordinateur en&amp;registre</translation>
    </message>
    <message>
        <source>this signal of the mixer</source>
        <translation>ce signal de la table de mixage</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Send all settings again</source>
        <translation>&amp;Renvoyer tous les réglages</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Chercher à nouveau</translation>
    </message>
    <message>
        <source>&amp;Why is my mixer not found?</source>
        <translation>&amp;Pourquoi ma table n’est-elle pas trouvée ?</translation>
    </message>
    <message>
        <source>&amp;About and versions</source>
        <translation>À propos et &amp;versions</translation>
    </message>
    <message>
        <source>There is no session bus: changes made by other programs show up here a little later.</source>
        <translation>Il n’y a pas de bus de session : les changements faits par d’autres programmes apparaissent ici un peu plus tard.</translation>
    </message>
    <message>
        <source>Play %1 here</source>
        <translation>Jouer %1 ici</translation>
    </message>
    <message>
        <source>Record on %1</source>
        <translation>Enregistrer sur %1</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Voir les &amp;détails</translation>
    </message>
</context>
<context>
    <name>setup::SignalList</name>
    <message>
        <source>Unknown choice</source>
        <translation>Choix inconnu</translation>
    </message>
</context>
<context>
    <name>setup::TroubleCard</name>
    <message>
        <source>good</source>
        <translation>en ordre</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copier la commande</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>Voir les &amp;détails</translation>
    </message>
    <message>
        <source>The command is copied.</source>
        <translation>La commande est copiée.</translation>
    </message>
    <message>
        <source>Connect the mixer by USB and switch it on. What you choose meanwhile is kept, and sent as soon as it is there.</source>
        <translation>Connectez la table de mixage en USB et allumez-la. Ce que vous choisissez entre-temps est conservé, puis envoyé dès qu’elle est là.</translation>
    </message>
</context>
<context>
    <name>setup::VersionsDialog</name>
    <message>
        <source>not installed</source>
        <translation>non installé</translation>
    </message>
    <message>
        <source>About and versions</source>
        <translation>À propos et versions</translation>
    </message>
    <message>
        <source>TRX Setup</source>
        <translation>TRX Setup</translation>
    </message>
    <message>
        <source>Sets the USB DJ mixers of the TRX-SELVA family. A choice is sent to every connected mixer at once and kept on this computer.</source>
        <translation>Règle les tables de mixage DJ USB de la famille TRX-SELVA. Un choix est envoyé aussitôt à toutes les tables de mixage connectées et conservé sur cet ordinateur.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>Ce programme</translation>
    </message>
    <message>
        <source>Firmware of the mixer</source>
        <translation>Firmware de la table de mixage</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>Setup application</source>
        <translation>Application de réglage</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
</context>
</TS>
