<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AuthorizeDialog</name>
    <message>
        <location filename="../streaming/setup/authorizedialog.ui" line="+6"/>
        <source>Authorize</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Username:</source>
        <translation>Nom d&apos;utilisateur&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/authorizedialog.cpp" line="+12"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>BaseWidget</name>
    <message>
        <location filename="../streaming/setup/basewidget.ui" line="+50"/>
        <source>Provider:</source>
        <translation>Service&#xa0;:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Authorize</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Sign Up</source>
        <translation>S&apos;inscrire</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Page:</source>
        <translation>Page&#xa0;:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Page Refresh</source>
        <translation>Actualiser les pages</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Channel:</source>
        <translation>Chaîne&#xa0;:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Add Channel</source>
        <translation>Ajouter une chaîne</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Remove Channels</source>
        <translation>Supprimer des chaînes</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Edit Channel</source>
        <translation>Modifier la chaîne</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+60"/>
        <source>Server:</source>
        <translation>Serveur&#xa0;:</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>Find the best server</source>
        <translation>Trouver le meilleur serveur</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Add Server</source>
        <translation>Ajouter un serveur</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Remove Server</source>
        <translation>Supprimer le serveur</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Server Settings</source>
        <translation>Paramètres du serveur</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Stream Url:</source>
        <translation>URL du stream&#xa0;:</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stream Key:</source>
        <translation>Clé de stream&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Show Stream Key</source>
        <translation>Afficher la clé de stream</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Sharing Url:</source>
        <translation>URL de partage&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open URL</source>
        <translation>Ouvrir l&apos;URL</translation>
    </message>
    <message>
        <location filename="../streaming/provider/youtube.cpp" line="+197"/>
        <source>Main Server</source>
        <translation>Serveur principal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="../streaming/setup/servicetables.cpp" line="+31"/>
        <source>Backup Server</source>
        <translation>Serveur de secours</translation>
    </message>
</context>
<context>
    <name>ChannelEvents</name>
    <message>
        <location filename="../streaming/setup/channelevents.cpp" line="+66"/>
        <source>Channel</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
</context>
<context>
    <name>ChatRooms</name>
    <message>
        <location filename="../streaming/chat/chatrooms.cpp" line="+34"/>
        <source>Twitch: #%1</source>
        <translation>Twitch&#xa0;: #%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>YouTube: %1</source>
        <translation>YouTube&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ChatTwitch</name>
    <message>
        <location filename="../streaming/chat/chattwitch.cpp" line="+128"/>
        <source>The chat is not connected.</source>
        <translation>Le chat n’est pas connecté.</translation>
    </message>
</context>
<context>
    <name>ChatYouTube</name>
    <message>
        <location filename="../streaming/chat/chatyoutube.cpp" line="+116"/>
        <source>The chat is not connected.</source>
        <translation>Le chat n’est pas connecté.</translation>
    </message>
</context>
<context>
    <name>CodecPresetDialog</name>
    <message>
        <location filename="../streaming/codec/codecpresetdialog.ui" line="+14"/>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="+41"/>
        <source>Codec Settings</source>
        <translation>Paramètres du codec</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+286"/>
        <source>Codec:</source>
        <translation>Codec&#xa0;:</translation>
    </message>
    <message>
        <location line="-276"/>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>FrameRate:</source>
        <translation>Cadence&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>KeyFrame:</source>
        <translation>Image clé&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="+240"/>
        <source>Bitrate(kbps):</source>
        <translation>Débit (kbit/s)&#xa0;:</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+46"/>
        <location line="+50"/>
        <source>Preset:</source>
        <translation>Préréglage&#xa0;:</translation>
    </message>
    <message>
        <location line="-86"/>
        <location line="+46"/>
        <location line="+50"/>
        <source>Profile:</source>
        <translation>Profil&#xa0;:</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Tune:</source>
        <translation>Optimisation&#xa0;:</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>B-frames:</source>
        <translation>Images B&#xa0;:</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Channel:</source>
        <translation>Canaux&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>SampleRate:</source>
        <translation>Échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Bitrate:</source>
        <translation>Débit&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="-240"/>
        <source>Add Codec</source>
        <translation>Ajouter un codec</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+130"/>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>%1 (%2x%3)</source>
        <translation>%1 (%2x%3)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>CUSTOM</source>
        <translation>PERSONNALISÉE</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>AUTO</source>
        <translation>AUTO</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Quality:</source>
        <translation>Qualité&#xa0;:</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <location filename="../streaming/codec/codectables.cpp" line="+146"/>
        <source>UHD</source>
        <translation>UHD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>QHD</source>
        <translation>QHD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>FHD</source>
        <translation>FHD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>HDV</source>
        <translation>HDV</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>qHD</source>
        <translation>qHD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PAL</source>
        <translation>PAL</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NTSC</source>
        <translation>NTSC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>nHD</source>
        <translation>nHD</translation>
    </message>
    <message>
        <location line="+77"/>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Performance</source>
        <translation>Haute performance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Quality</source>
        <translation>Faible latence, haute qualité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Performance</source>
        <translation>Faible latence, haute performance</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
</context>
<context>
    <name>CustomServers</name>
    <message>
        <location filename="../streaming/setup/customservers.cpp" line="+67"/>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
</context>
<context>
    <name>DailyMotion</name>
    <message>
        <location filename="../streaming/provider/dailymotion.cpp" line="+39"/>
        <source>The authorization page went to an address that is not valid.</source>
        <translation>La page de connexion a redirigé vers une adresse non valide.</translation>
    </message>
</context>
<context>
    <name>EncoderItem</name>
    <message>
        <location filename="../streaming/recording/encoderitem.ui" line="+32"/>
        <source>Preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+7"/>
        <source>H.264 20MB, AAC 128K</source>
        <translation>H.264 20MB, AAC 128K</translation>
    </message>
    <message>
        <location filename="../streaming/recording/encoderitem.cpp" line="+59"/>
        <source>AUTO</source>
        <translation>AUTO</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
</context>
<context>
    <name>EncoderListWidget</name>
    <message>
        <location filename="../streaming/codec/encoderlistwidget.cpp" line="+32"/>
        <source>Add Codec</source>
        <translation>Ajouter un codec</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove Codec</source>
        <translation>Supprimer le codec</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codec Settings</source>
        <translation>Paramètres du codec</translation>
    </message>
    <message>
        <location line="+99"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
</context>
<context>
    <name>EventDialog</name>
    <message>
        <location filename="../streaming/setup/eventdialog.ui" line="+14"/>
        <source>Live Event</source>
        <translation>Événement en direct</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Start Time:</source>
        <translation>Début&#xa0;:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>End Time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Tag:</source>
        <translation>Mots-clés&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>ex) funny animals, amazing space, newton, super car</source>
        <translation>ex.&#xa0;: animaux drôles, espace fascinant, Newton, voiture de sport</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>StreamType:</source>
        <translation>Type de stream&#xa0;:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Privacy:</source>
        <translation>Visibilité&#xa0;:</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/eventdialog.cpp" line="+59"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>REGULAR LIVE</source>
        <translation>DIRECT STANDARD</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CONTINOUS LIVE</source>
        <translation>DIRECT CONTINU</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>unlimited live stream on Facebook</source>
        <translation>direct illimité sur Facebook</translation>
    </message>
</context>
<context>
    <name>Facebook</name>
    <message>
        <location filename="../streaming/provider/facebook.cpp" line="+154"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>FileNamingDialog</name>
    <message>
        <location filename="../streaming/stores/filenamingdialog.ui" line="+14"/>
        <source>FileNaming</source>
        <translation>Nommage des fichiers</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Second</source>
        <translation>Seconde</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bitrate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location filename="../streaming/stores/filenamingdialog.cpp" line="+17"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FileTag</name>
    <message>
        <location filename="../streaming/stores/filetag.cpp" line="+73"/>
        <location line="+41"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location line="-19"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PGM CLEAN</source>
        <translation>PGM PROPRE</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PVW</source>
        <translation>PVW</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>PROGRAM</source>
        <translation>PROGRAMME</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLEAN PROGRAM</source>
        <translation>PROGRAMME PROPRE</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PREVIEW</source>
        <translation>APERÇU</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLEAN PREVIEW</source>
        <translation>APERÇU PROPRE</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <location filename="../streaming/stores/folderchooser.cpp" line="+9"/>
        <source>Open Directory</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>ImageSetup</name>
    <message>
        <location filename="../streaming/recording/imagesetup.ui" line="+14"/>
        <location line="+7"/>
        <source>Grab</source>
        <translation>Capture</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Select...</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Edit Naming</source>
        <translation>Modifier le nommage</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Grab to Media Bin:</source>
        <translation>Capturer dans le chutier&#xa0;:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Max Grab:</source>
        <translation>Captures max.&#xa0;:</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Source:</source>
        <translation>Source&#xa0;:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Add Presets</source>
        <translation>Ajouter des préréglages</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Remove Presets</source>
        <translation>Supprimer des préréglages</translation>
    </message>
    <message>
        <location filename="../streaming/recording/imagesetup.cpp" line="+30"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PGM(Clean)</source>
        <translation>PGM (propre)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PVW</source>
        <translation>PVW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>STILL 1</source>
        <translation>STILL 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>STILL 2</source>
        <translation>STILL 2</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Max Grab: %1</source>
        <translation>Captures max.&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+80"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 (%2, %3)</source>
        <translation>%1 (%2, %3)</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+16"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Check the maximum number of grab.</source>
        <translation>Vérifiez le nombre maximal de captures.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
</context>
<context>
    <name>IsoCorderSetup</name>
    <message>
        <location filename="../streaming/recording/isocordersetup.ui" line="+14"/>
        <source>ISO Corder</source>
        <translation>Enregistrement ISO</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Sources:</source>
        <translation>Sources&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Max ISO Recording:</source>
        <translation>Enregistrements ISO max.&#xa0;:</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+169"/>
        <source>Codec:</source>
        <translation>Codec&#xa0;:</translation>
    </message>
    <message>
        <location line="-159"/>
        <location line="+189"/>
        <location filename="../streaming/recording/isocodeclists.cpp" line="+124"/>
        <source>Bitrate(kbps):</source>
        <translation>Débit (kbit/s)&#xa0;:</translation>
    </message>
    <message>
        <location line="-179"/>
        <source>KeyFrame:</source>
        <translation>Image clé&#xa0;:</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+46"/>
        <location line="+46"/>
        <source>Preset:</source>
        <translation>Préréglage&#xa0;:</translation>
    </message>
    <message>
        <location line="-82"/>
        <location line="+46"/>
        <location line="+46"/>
        <source>Profile:</source>
        <translation>Profil&#xa0;:</translation>
    </message>
    <message>
        <location line="-82"/>
        <source>Tune:</source>
        <translation>Optimisation&#xa0;:</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>B-frames:</source>
        <translation>Images B&#xa0;:</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Channel:</source>
        <translation>Canaux&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>SampleRate:</source>
        <translation>Échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Audio Source:</source>
        <translation>Source audio&#xa0;:</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Edit Naming</source>
        <translation>Modifier le nommage</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Split File:</source>
        <translation>Découper&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isocodeclists.cpp" line="-107"/>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Performance</source>
        <translation>Haute performance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Quality</source>
        <translation>Faible latence, haute qualité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Performance</source>
        <translation>Faible latence, haute performance</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 kbps</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Quality:</source>
        <translation>Qualité&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isocordersetup.cpp" line="+97"/>
        <source>Max ISO Recording: %1</source>
        <translation>Enregistrements ISO max.&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Check the maximum number of isocorder.</source>
        <translation>Vérifiez le nombre maximal d&apos;enregistrements ISO.</translation>
    </message>
</context>
<context>
    <name>IsoSourceItem</name>
    <message>
        <location filename="../streaming/recording/isosourceitem.ui" line="+46"/>
        <source>Record to Media Bin:</source>
        <translation>Enregistrer dans le chutier&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isosourceitem.cpp" line="+9"/>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CLIP 1</source>
        <translation>CLIP 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLIP 2</source>
        <translation>CLIP 2</translation>
    </message>
</context>
<context>
    <name>OutputLists</name>
    <message>
        <location filename="../streaming/output/outputlists.cpp" line="+35"/>
        <source>Display %1 (%2x%3)</source>
        <translation>Écran %1 (%2x%3)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VirtualCam</source>
        <translation>VirtualCam</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>(%1) %2</source>
        <translation>(%1) %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>%1 kHz Stereo</source>
        <translation>%1 kHz stéréo</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Disable</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>InternalKeyer</source>
        <translation>Incrustation interne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>ExternalKeyer</source>
        <translation>Incrustation externe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enable</source>
        <translation>Activé</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+24"/>
        <source>NONE</source>
        <translation>AUCUNE</translation>
    </message>
    <message>
        <location line="-22"/>
        <source>PGM(Clean)</source>
        <translation>PGM (propre)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Multiview %1</source>
        <translation>Multiview %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>PGM Clean</source>
        <translation>PGM propre</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PGM Delay</source>
        <translation>PGM différé</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>%1 (not found)</source>
        <translation>%1 (introuvable)</translation>
    </message>
</context>
<context>
    <name>OutputRow</name>
    <message>
        <location filename="../streaming/output/outputrow.cpp" line="+16"/>
        <source>SDI %1</source>
        <translation>SDI %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NDI %1</source>
        <translation>NDI %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DISPLAY %1</source>
        <translation>ÉCRAN %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>AUDIO %1</source>
        <translation>AUDIO %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>VIRTUAL CAM %1</source>
        <translation>CAMÉRA VIRTUELLE %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MULTIVIEW %1</source>
        <translation>MULTIVIEW %1</translation>
    </message>
</context>
<context>
    <name>OutputSetup</name>
    <message>
        <location filename="../streaming/output/outputsetup.ui" line="+14"/>
        <source>External Output</source>
        <translation>Sortie externe</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Max Resolution:</source>
        <translation>Résolution max.&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Max Output:</source>
        <translation>Sorties max.&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/output/outputsetup.cpp" line="+24"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Max Resolution: %1x%2</source>
        <translation>Résolution max.&#xa0;: %1x%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max Output: %1</source>
        <translation>Sorties max.&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>OutputWidget</name>
    <message>
        <location filename="../streaming/output/outputwidget.ui" line="+28"/>
        <source>Output:</source>
        <translation>Sortie&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Video Source</source>
        <translation>Source vidéo</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Source</source>
        <translation>Source audio</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Alpha Keyer</source>
        <translation>Incrustation alpha</translation>
    </message>
    <message>
        <location filename="../streaming/output/outputwidget.cpp" line="+9"/>
        <source>Output %1:</source>
        <translation>Sortie %1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PlayoutItem</name>
    <message>
        <location filename="../streaming/output/playoutitem.ui" line="+35"/>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Video Source</source>
        <translation>Source vidéo</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Source</source>
        <translation>Source audio</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Alpha Keyer</source>
        <translation>Incrustation alpha</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Device</source>
        <translation>Périphérique audio</translation>
    </message>
    <message>
        <location filename="../streaming/output/playoutitem.cpp" line="+151"/>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cannot start output.</source>
        <translation>Impossible de démarrer la sortie.</translation>
    </message>
</context>
<context>
    <name>PlayoutSetup</name>
    <message>
        <location filename="../streaming/output/playoutsetup.ui" line="+14"/>
        <source>Playout</source>
        <translation>Playout</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>SDI</source>
        <translation>SDI</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>VirtualCam</source>
        <translation>VirtualCam</translation>
    </message>
</context>
<context>
    <name>Provider</name>
    <message>
        <location filename="../streaming/provider/provider.cpp" line="+239"/>
        <source>The service sent a reply that could not be read.</source>
        <translation>Le service a envoyé une réponse illisible.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Signing in to %1 is not configured for this installation.</source>
        <translation>La connexion à %1 n&apos;est pas configurée pour cette installation.</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <location filename="../streaming/recording/recordingsetup.ui" line="+14"/>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Record to Media Bin:</source>
        <translation>Enregistrer dans le chutier&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+101"/>
        <source>Edit Naming</source>
        <translation>Modifier le nommage</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Split File:</source>
        <translation>Découper&#xa0;:</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Codec:</source>
        <translation>Codec&#xa0;:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Max Resolution:</source>
        <translation>Résolution max.&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Max Recording:</source>
        <translation>Enregistrements max.&#xa0;:</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Video Source:</source>
        <translation>Source vidéo&#xa0;:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Audio Source:</source>
        <translation>Source audio&#xa0;:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+1"/>
        <source>Add Presets</source>
        <translation>Ajouter des préréglages</translation>
    </message>
    <message>
        <location line="+14"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+1"/>
        <source>Remove Presets</source>
        <translation>Supprimer des préréglages</translation>
    </message>
    <message>
        <location filename="../streaming/recording/recordingsetup.cpp" line="-66"/>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CLIP 1</source>
        <translation>CLIP 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLIP 2</source>
        <translation>CLIP 2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Max Resolution: %1x%2</source>
        <translation>Résolution max.&#xa0;: %1x%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max Recording: %1</source>
        <translation>Enregistrements max.&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+110"/>
        <location line="+8"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location line="-8"/>
        <source>Please try again after recording is finished.</source>
        <translation>Veuillez réessayer une fois l&apos;enregistrement terminé.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check the maximum number of recording.</source>
        <translation>Vérifiez le nombre maximal d&apos;enregistrements.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
<context>
    <name>ServerDialog</name>
    <message>
        <location filename="../streaming/setup/serverdialog.ui" line="+14"/>
        <source>Custom Server</source>
        <translation>Serveur personnalisé</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Server:</source>
        <translation>Serveur&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>rtmp://host/application</source>
        <translation>rtmp://hôte/application</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>type : rtmp, rtmps, rtsp, srt, tcp, udp</source>
        <translation>type&#xa0;: rtmp, rtmps, rtsp, srt, tcp, udp</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Stream Key:</source>
        <translation>Clé de stream&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>streamKey</source>
        <translation>clé de stream</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+107"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-73"/>
        <source>Mode:</source>
        <translation>Mode&#xa0;:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Port:</source>
        <translation>Port&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Latency(ms):</source>
        <translation>Latence (ms)&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+146"/>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <location line="-118"/>
        <source>Key Length:</source>
        <translation>Longueur de clé&#xa0;:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Stream ID:</source>
        <translation>ID du stream&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Filter:</source>
        <translation>Filtre&#xa0;:</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Use authentication</source>
        <translation>Utiliser l&apos;authentification</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Username:</source>
        <translation>Nom d&apos;utilisateur&#xa0;:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/serverdialog.cpp" line="+34"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>fec</source>
        <translation>fec</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Encryption characters must be between 10 and 79 characters.</source>
        <translation>La phrase de chiffrement doit compter entre 10 et 79 caractères.</translation>
    </message>
</context>
<context>
    <name>SourceLists</name>
    <message>
        <location filename="../streaming/recording/sourcelists.cpp" line="+14"/>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>15 minutes</source>
        <translation>15 minutes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>30 minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>45 minutes</source>
        <translation>45 minutes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>2 hours</source>
        <translation>2 heures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>4 hours</source>
        <translation>4 heures</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>8 hours</source>
        <translation>8 heures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>12 hours</source>
        <translation>12 heures</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>24 hours</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PGM(Clean)</source>
        <translation>PGM (propre)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PVW</source>
        <translation>PVW</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>BUS A</source>
        <translation>BUS A</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>BUS B</source>
        <translation>BUS B</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>BUS A+B</source>
        <translation>BUS A+B</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>PGM+A</source>
        <translation>PGM+A</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>PGM+B</source>
        <translation>PGM+B</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>PGM+A+B</source>
        <translation>PGM+A+B</translation>
    </message>
</context>
<context>
    <name>StreamingSetup</name>
    <message>
        <location filename="../streaming/setup/streamingsetup.ui" line="+14"/>
        <location line="+7"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+374"/>
        <location line="+243"/>
        <source>Streaming</source>
        <translation>Streaming</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Codec:</source>
        <translation>Codec&#xa0;:</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Video Source:</source>
        <translation>Source vidéo&#xa0;:</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Audio Source:</source>
        <translation>Source audio&#xa0;:</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+12"/>
        <source>Select...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <location line="+20"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-473"/>
        <source>Edit Naming</source>
        <translation>Modifier le nommage</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Split File:</source>
        <translation>Découper&#xa0;:</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+172"/>
        <source>Max Resolution:</source>
        <translation>Résolution max.&#xa0;:</translation>
    </message>
    <message>
        <location line="-142"/>
        <location line="+156"/>
        <source>Max Streaming:</source>
        <translation>Streams max.&#xa0;:</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Preset Name:</source>
        <translation>Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+497"/>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-408"/>
        <location line="+1"/>
        <source>Add Presets</source>
        <translation>Ajouter des préréglages</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+1"/>
        <location line="+1"/>
        <source>Remove Presets</source>
        <translation>Supprimer des préréglages</translation>
    </message>
    <message>
        <location line="+32"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+373"/>
        <location line="+24"/>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-518"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location line="+174"/>
        <source>Deauthorize</source>
        <translation>Déconnexion</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Authorize</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>The service did not take the sign-in back. Forget it on this computer anyway?</source>
        <translation>Le service n&apos;a pas révoqué la connexion. L&apos;oublier quand même sur cet ordinateur&#xa0;?</translation>
    </message>
    <message>
        <location line="+234"/>
        <source>Check the maximum number of streams.</source>
        <translation>Vérifiez le nombre maximal de streams.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Check the same streaming url!</source>
        <translation>Cette URL de stream est déjà utilisée&#xa0;!</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Please try again after streaming is finished.</source>
        <translation>Veuillez réessayer une fois le stream terminé.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#xa0;?</translation>
    </message>
    <message>
        <location filename="../streaming/setup/servicetables.cpp" line="+158"/>
        <source>YouTube (sign in)</source>
        <translation>YouTube (connexion)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Facebook (sign in)</source>
        <translation>Facebook (connexion)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Twitch (sign in)</source>
        <translation>Twitch (connexion)</translation>
    </message>
</context>
<context>
    <name>WebDialog</name>
    <message>
        <location filename="../streaming/setup/webdialog.ui" line="+14"/>
        <source>Authorize</source>
        <translation>Connexion</translation>
    </message>
</context>
<context>
    <name>WebView</name>
    <message>
        <location filename="../streaming/provider/webview.cpp" line="+43"/>
        <source>Paste the address the web browser ended on and press Enter</source>
        <translation>Collez l&apos;adresse à laquelle le navigateur web est arrivé, puis appuyez sur Entrée</translation>
    </message>
    <message>
        <location line="+174"/>
        <source>The page at %1 could not be loaded.</source>
        <translation>La page sur %1 n&apos;a pas pu être chargée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 kept redirecting and could not be shown.</source>
        <translation>La page sur %1 redirige sans fin et ne peut pas être affichée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 did not finish loading and was stopped.</source>
        <translation>La page sur %1 ne s&apos;est pas chargée entièrement et a été arrêtée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 stopped working because the browser process showing it ended.</source>
        <translation>La page sur %1 ne fonctionne plus, car le processus du navigateur qui l&apos;affichait s&apos;est arrêté.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Close this window and try again.</source>
        <translation>Fermez cette fenêtre et réessayez.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No web browser is available on this system.</source>
        <translation>Aucun navigateur web n&apos;est disponible sur ce système.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open this address in a web browser to continue:</source>
        <translation>Ouvrez cette adresse dans un navigateur web pour continuer&#xa0;:</translation>
    </message>
</context>
</TS>
