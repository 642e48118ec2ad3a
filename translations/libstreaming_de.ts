<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AuthorizeDialog</name>
    <message>
        <location filename="../streaming/setup/authorizedialog.ui" line="+6"/>
        <source>Authorize</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/authorizedialog.cpp" line="+12"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>BaseWidget</name>
    <message>
        <location filename="../streaming/setup/basewidget.ui" line="+50"/>
        <source>Provider:</source>
        <translation>Dienst:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Authorize</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Sign Up</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Page:</source>
        <translation>Seite:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Page Refresh</source>
        <translation>Seiten aktualisieren</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Channel:</source>
        <translation>Kanal:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Add Channel</source>
        <translation>Kanal hinzufügen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Remove Channels</source>
        <translation>Kanäle entfernen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Edit Channel</source>
        <translation>Kanal bearbeiten</translation>
    </message>
    <message>
        <location line="+37"/>
        <location line="+60"/>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>Find the best server</source>
        <translation>Besten Server finden</translation>
    </message>
    <message>
        <location line="+60"/>
        <source>Add Server</source>
        <translation>Server hinzufügen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Remove Server</source>
        <translation>Server entfernen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Server Settings</source>
        <translation>Servereinstellungen</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Stream Url:</source>
        <translation>Stream-URL:</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stream Key:</source>
        <translation>Stream-Schlüssel:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Show Stream Key</source>
        <translation>Stream-Schlüssel anzeigen</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Sharing Url:</source>
        <translation>Link zum Teilen:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Open URL</source>
        <translation>URL öffnen</translation>
    </message>
    <message>
        <location filename="../streaming/provider/youtube.cpp" line="+197"/>
        <source>Main Server</source>
        <translation>Hauptserver</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="../streaming/setup/servicetables.cpp" line="+31"/>
        <source>Backup Server</source>
        <translation>Backup-Server</translation>
    </message>
</context>
<context>
    <name>ChannelEvents</name>
    <message>
        <location filename="../streaming/setup/channelevents.cpp" line="+66"/>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
</context>
<context>
    <name>ChatRooms</name>
    <message>
        <location filename="../streaming/chat/chatrooms.cpp" line="+34"/>
        <source>Twitch: #%1</source>
        <translation>Twitch: #%1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>YouTube: %1</source>
        <translation>YouTube: %1</translation>
    </message>
</context>
<context>
    <name>ChatTwitch</name>
    <message>
        <location filename="../streaming/chat/chattwitch.cpp" line="+128"/>
        <source>The chat is not connected.</source>
        <translation>Der Chat ist nicht verbunden.</translation>
    </message>
</context>
<context>
    <name>ChatYouTube</name>
    <message>
        <location filename="../streaming/chat/chatyoutube.cpp" line="+116"/>
        <source>The chat is not connected.</source>
        <translation>Der Chat ist nicht verbunden.</translation>
    </message>
</context>
<context>
    <name>CodecPresetDialog</name>
    <message>
        <location filename="../streaming/codec/codecpresetdialog.ui" line="+14"/>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="+41"/>
        <source>Codec Settings</source>
        <translation>Codec-Einstellungen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+286"/>
        <source>Codec:</source>
        <translation>Codec:</translation>
    </message>
    <message>
        <location line="-276"/>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <location line="+98"/>
        <source>FrameRate:</source>
        <translation>Bildrate:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>KeyFrame:</source>
        <translation>Keyframe:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="+240"/>
        <source>Bitrate(kbps):</source>
        <translation>Bitrate (kbps):</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+46"/>
        <location line="+50"/>
        <source>Preset:</source>
        <translation>Preset:</translation>
    </message>
    <message>
        <location line="-86"/>
        <location line="+46"/>
        <location line="+50"/>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Tune:</source>
        <translation>Tuning:</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>B-frames:</source>
        <translation>B-Frames:</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Channel:</source>
        <translation>Kanäle:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>SampleRate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Bitrate:</source>
        <translation>Bitrate:</translation>
    </message>
    <message>
        <location filename="../streaming/codec/codecpresetdialog.cpp" line="-240"/>
        <source>Add Codec</source>
        <translation>Codec hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>BENUTZERDEFINIERT</translation>
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
        <translation>Qualität:</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
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
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Performance</source>
        <translation>Hohe Leistung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Quality</source>
        <translation>Geringe Latenz, hohe Qualität</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Performance</source>
        <translation>Geringe Latenz, hohe Leistung</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Stereo</source>
        <translation>Stereo</translation>
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
        <translation>Server</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
</context>
<context>
    <name>DailyMotion</name>
    <message>
        <location filename="../streaming/provider/dailymotion.cpp" line="+39"/>
        <source>The authorization page went to an address that is not valid.</source>
        <translation>Die Anmeldeseite hat zu einer ungültigen Adresse weitergeleitet.</translation>
    </message>
</context>
<context>
    <name>EncoderItem</name>
    <message>
        <location filename="../streaming/recording/encoderitem.ui" line="+32"/>
        <source>Preset name</source>
        <translation>Preset-Name</translation>
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
        <translation>Stereo</translation>
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
        <translation>Codec hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove Codec</source>
        <translation>Codec entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codec Settings</source>
        <translation>Codec-Einstellungen</translation>
    </message>
    <message>
        <location line="+99"/>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
</context>
<context>
    <name>EventDialog</name>
    <message>
        <location filename="../streaming/setup/eventdialog.ui" line="+14"/>
        <source>Live Event</source>
        <translation>Live-Event</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Start Time:</source>
        <translation>Beginn:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Tag:</source>
        <translation>Schlagwörter:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>ex) funny animals, amazing space, newton, super car</source>
        <translation>z. B. lustige Tiere, faszinierendes Weltall, Newton, Supersportwagen</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>StreamType:</source>
        <translation>Stream-Typ:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Privacy:</source>
        <translation>Sichtbarkeit:</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/eventdialog.cpp" line="+59"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>REGULAR LIVE</source>
        <translation>NORMALER LIVESTREAM</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CONTINOUS LIVE</source>
        <translation>DAUER-LIVESTREAM</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>unlimited live stream on Facebook</source>
        <translation>unbegrenzter Livestream auf Facebook</translation>
    </message>
</context>
<context>
    <name>Facebook</name>
    <message>
        <location filename="../streaming/provider/facebook.cpp" line="+154"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>FileNamingDialog</name>
    <message>
        <location filename="../streaming/stores/filenamingdialog.ui" line="+14"/>
        <source>FileNaming</source>
        <translation>Dateibenennung</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location filename="../streaming/stores/filenamingdialog.cpp" line="+17"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileTag</name>
    <message>
        <location filename="../streaming/stores/filetag.cpp" line="+73"/>
        <location line="+41"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="-19"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PGM CLEAN</source>
        <translation>PGM CLEAN</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PVW</source>
        <translation>PVW</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>PROGRAM</source>
        <translation>PROGRAMM</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLEAN PROGRAM</source>
        <translation>PROGRAMM CLEAN</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PREVIEW</source>
        <translation>VORSCHAU</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CLEAN PREVIEW</source>
        <translation>VORSCHAU CLEAN</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <location filename="../streaming/stores/folderchooser.cpp" line="+9"/>
        <source>Open Directory</source>
        <translation>Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>ImageSetup</name>
    <message>
        <location filename="../streaming/recording/imagesetup.ui" line="+14"/>
        <location line="+7"/>
        <source>Grab</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Location:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Select...</source>
        <translation>Auswählen…</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Edit Naming</source>
        <translation>Benennung bearbeiten</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Grab to Media Bin:</source>
        <translation>In Medienpool ablegen:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Max Grab:</source>
        <translation>Max. Standbilder:</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Preset name</source>
        <translation>Preset-Name</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Add Presets</source>
        <translation>Presets hinzufügen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Remove Presets</source>
        <translation>Presets entfernen</translation>
    </message>
    <message>
        <location filename="../streaming/recording/imagesetup.cpp" line="+30"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PGM(Clean)</source>
        <translation>PGM (Clean)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PVW</source>
        <translation>PVW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>None</source>
        <translation>Keiner</translation>
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
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Max Grab: %1</source>
        <translation>Max. Standbilder: %1</translation>
    </message>
    <message>
        <location line="+80"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
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
        <translation>Preset</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Check the maximum number of grab.</source>
        <translation>Prüfen Sie die maximale Anzahl an Standbildern.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
</context>
<context>
    <name>IsoCorderSetup</name>
    <message>
        <location filename="../streaming/recording/isocordersetup.ui" line="+14"/>
        <source>ISO Corder</source>
        <translation>ISO-Aufnahme</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Sources:</source>
        <translation>Quellen:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Max ISO Recording:</source>
        <translation>Max. ISO-Aufnahmen:</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+169"/>
        <source>Codec:</source>
        <translation>Codec:</translation>
    </message>
    <message>
        <location line="-159"/>
        <location line="+189"/>
        <location filename="../streaming/recording/isocodeclists.cpp" line="+124"/>
        <source>Bitrate(kbps):</source>
        <translation>Bitrate (kbps):</translation>
    </message>
    <message>
        <location line="-179"/>
        <source>KeyFrame:</source>
        <translation>Keyframe:</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+46"/>
        <location line="+46"/>
        <source>Preset:</source>
        <translation>Preset:</translation>
    </message>
    <message>
        <location line="-82"/>
        <location line="+46"/>
        <location line="+46"/>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <location line="-82"/>
        <source>Tune:</source>
        <translation>Tuning:</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>B-frames:</source>
        <translation>B-Frames:</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Channel:</source>
        <translation>Kanäle:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>SampleRate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Audio Source:</source>
        <translation>Audioquelle:</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Location:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Edit Naming</source>
        <translation>Benennung bearbeiten</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Split File:</source>
        <translation>Datei teilen:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isocodeclists.cpp" line="-107"/>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High Performance</source>
        <translation>Hohe Leistung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Quality</source>
        <translation>Geringe Latenz, hohe Qualität</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Low-Latency High Performance</source>
        <translation>Geringe Latenz, hohe Leistung</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>%1 sec</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Stereo</source>
        <translation>Stereo</translation>
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
        <translation>%1 kbps</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isocordersetup.cpp" line="+97"/>
        <source>Max ISO Recording: %1</source>
        <translation>Max. ISO-Aufnahmen: %1</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Check the maximum number of isocorder.</source>
        <translation>Prüfen Sie die maximale Anzahl an ISO-Aufnahmen.</translation>
    </message>
</context>
<context>
    <name>IsoSourceItem</name>
    <message>
        <location filename="../streaming/recording/isosourceitem.ui" line="+46"/>
        <source>Record to Media Bin:</source>
        <translation>In Medienpool aufnehmen:</translation>
    </message>
    <message>
        <location filename="../streaming/recording/isosourceitem.cpp" line="+9"/>
        <source>None</source>
        <translation>Keiner</translation>
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
        <translation>Bildschirm %1 (%2x%3)</translation>
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
        <translation>Keiner</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>%1 kHz Stereo</source>
        <translation>%1 kHz Stereo</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Disable</source>
        <translation>Aus</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>InternalKeyer</source>
        <translation>Interner Keyer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>ExternalKeyer</source>
        <translation>Externer Keyer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enable</source>
        <translation>Ein</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+24"/>
        <source>NONE</source>
        <translation>KEINE</translation>
    </message>
    <message>
        <location line="-22"/>
        <source>PGM(Clean)</source>
        <translation>PGM (Clean)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Multiview %1</source>
        <translation>Multiview %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>PGM Clean</source>
        <translation>PGM Clean</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PGM Delay</source>
        <translation>PGM verzögert</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
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
        <translation>BILDSCHIRM %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>AUDIO %1</source>
        <translation>AUDIO %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>VIRTUAL CAM %1</source>
        <translation>VIRTUELLE KAMERA %1</translation>
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
        <translation>Externe Ausgabe</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Max Resolution:</source>
        <translation>Max. Auflösung:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Max Output:</source>
        <translation>Max. Ausgänge:</translation>
    </message>
    <message>
        <location filename="../streaming/output/outputsetup.cpp" line="+24"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Max Resolution: %1x%2</source>
        <translation>Max. Auflösung: %1x%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max Output: %1</source>
        <translation>Max. Ausgänge: %1</translation>
    </message>
</context>
<context>
    <name>OutputWidget</name>
    <message>
        <location filename="../streaming/output/outputwidget.ui" line="+28"/>
        <source>Output:</source>
        <translation>Ausgang:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Video Source</source>
        <translation>Videoquelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Source</source>
        <translation>Audioquelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Alpha Keyer</source>
        <translation>Alpha-Keyer</translation>
    </message>
    <message>
        <location filename="../streaming/output/outputwidget.cpp" line="+9"/>
        <source>Output %1:</source>
        <translation>Ausgang %1:</translation>
    </message>
</context>
<context>
    <name>PlayoutItem</name>
    <message>
        <location filename="../streaming/output/playoutitem.ui" line="+35"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Video Source</source>
        <translation>Videoquelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Source</source>
        <translation>Audioquelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Alpha Keyer</source>
        <translation>Alpha-Keyer</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Audio Device</source>
        <translation>Audiogerät</translation>
    </message>
    <message>
        <location filename="../streaming/output/playoutitem.cpp" line="+151"/>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cannot start output.</source>
        <translation>Die Ausgabe kann nicht gestartet werden.</translation>
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
        <translation>Bildschirm</translation>
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
        <translation>Der Dienst hat eine Antwort gesendet, die nicht gelesen werden konnte.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Signing in to %1 is not configured for this installation.</source>
        <translation>Die Anmeldung bei %1 ist für diese Installation nicht eingerichtet.</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <location filename="../streaming/recording/recordingsetup.ui" line="+14"/>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Location:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Record to Media Bin:</source>
        <translation>In Medienpool aufnehmen:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+14"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+101"/>
        <source>Edit Naming</source>
        <translation>Benennung bearbeiten</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Split File:</source>
        <translation>Datei teilen:</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Codec:</source>
        <translation>Codec:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Max Resolution:</source>
        <translation>Max. Auflösung:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Max Recording:</source>
        <translation>Max. Aufnahmen:</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Video Source:</source>
        <translation>Videoquelle:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Audio Source:</source>
        <translation>Audioquelle:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Preset name</source>
        <translation>Preset-Name</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+1"/>
        <source>Add Presets</source>
        <translation>Presets hinzufügen</translation>
    </message>
    <message>
        <location line="+14"/>
        <location filename="../streaming/recording/recordingsetup.cpp" line="+1"/>
        <source>Remove Presets</source>
        <translation>Presets entfernen</translation>
    </message>
    <message>
        <location filename="../streaming/recording/recordingsetup.cpp" line="-66"/>
        <source>None</source>
        <translation>Keiner</translation>
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
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Max Resolution: %1x%2</source>
        <translation>Max. Auflösung: %1x%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max Recording: %1</source>
        <translation>Max. Aufnahmen: %1</translation>
    </message>
    <message>
        <location line="+110"/>
        <location line="+8"/>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <location line="-8"/>
        <source>Please try again after recording is finished.</source>
        <translation>Bitte versuchen Sie es nach dem Ende der Aufnahme erneut.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Check the maximum number of recording.</source>
        <translation>Prüfen Sie die maximale Anzahl an Aufnahmen.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>ServerDialog</name>
    <message>
        <location filename="../streaming/setup/serverdialog.ui" line="+14"/>
        <source>Custom Server</source>
        <translation>Eigener Server</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>rtmp://host/application</source>
        <translation>rtmp://host/anwendung</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>type : rtmp, rtmps, rtsp, srt, tcp, udp</source>
        <translation>Typ: rtmp, rtmps, rtsp, srt, tcp, udp</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Stream Key:</source>
        <translation>Stream-Schlüssel:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>streamKey</source>
        <translation>Stream-Schlüssel</translation>
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
        <translation>Modus:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Latency(ms):</source>
        <translation>Latenz (ms):</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+146"/>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <location line="-118"/>
        <source>Key Length:</source>
        <translation>Schlüssellänge:</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Stream ID:</source>
        <translation>Stream-ID:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Use authentication</source>
        <translation>Authentifizierung verwenden</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <location filename="../streaming/setup/serverdialog.cpp" line="+34"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>fec</source>
        <translation>fec</translation>
    </message>
    <message>
        <location line="+142"/>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Encryption characters must be between 10 and 79 characters.</source>
        <translation>Die Passphrase für die Verschlüsselung muss 10 bis 79 Zeichen lang sein.</translation>
    </message>
</context>
<context>
    <name>SourceLists</name>
    <message>
        <location filename="../streaming/recording/sourcelists.cpp" line="+14"/>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>15 minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>30 minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>45 minutes</source>
        <translation>45 Minuten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>2 hours</source>
        <translation>2 Stunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>4 hours</source>
        <translation>4 Stunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>8 hours</source>
        <translation>8 Stunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>12 hours</source>
        <translation>12 Stunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>24 hours</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PGM(Clean)</source>
        <translation>PGM (Clean)</translation>
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
        <translation>Codec:</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Video Source:</source>
        <translation>Videoquelle:</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Audio Source:</source>
        <translation>Audioquelle:</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Location:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+12"/>
        <source>Select...</source>
        <translation>Auswählen...</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <location line="+20"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-473"/>
        <source>Edit Naming</source>
        <translation>Benennung bearbeiten</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Split File:</source>
        <translation>Datei teilen:</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+172"/>
        <source>Max Resolution:</source>
        <translation>Max. Auflösung:</translation>
    </message>
    <message>
        <location line="-142"/>
        <location line="+156"/>
        <source>Max Streaming:</source>
        <translation>Max. Streams:</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Preset Name:</source>
        <translation>Preset-Name:</translation>
    </message>
    <message>
        <location line="+13"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+497"/>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="+7"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-408"/>
        <location line="+1"/>
        <source>Add Presets</source>
        <translation>Presets hinzufügen</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+1"/>
        <location line="+1"/>
        <source>Remove Presets</source>
        <translation>Presets entfernen</translation>
    </message>
    <message>
        <location line="+32"/>
        <location filename="../streaming/setup/streamingsetup.cpp" line="+373"/>
        <location line="+24"/>
        <source>Preset</source>
        <translation>Preset</translation>
    </message>
    <message>
        <location filename="../streaming/setup/streamingsetup.cpp" line="-518"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+174"/>
        <source>Deauthorize</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Authorize</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>The service did not take the sign-in back. Forget it on this computer anyway?</source>
        <translation>Der Dienst hat die Anmeldung nicht zurückgenommen. Soll sie trotzdem auf diesem Computer vergessen werden?</translation>
    </message>
    <message>
        <location line="+234"/>
        <source>Check the maximum number of streams.</source>
        <translation>Prüfen Sie die maximale Anzahl an Streams.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Check the same streaming url!</source>
        <translation>Diese Stream-URL wird bereits verwendet!</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Please try again after streaming is finished.</source>
        <translation>Bitte versuchen Sie es nach dem Ende des Streams erneut.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Are you sure you want to remove this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich entfernen?</translation>
    </message>
    <message>
        <location filename="../streaming/setup/servicetables.cpp" line="+158"/>
        <source>YouTube (sign in)</source>
        <translation>YouTube (Anmeldung)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Facebook (sign in)</source>
        <translation>Facebook (Anmeldung)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Twitch (sign in)</source>
        <translation>Twitch (Anmeldung)</translation>
    </message>
</context>
<context>
    <name>WebDialog</name>
    <message>
        <location filename="../streaming/setup/webdialog.ui" line="+14"/>
        <source>Authorize</source>
        <translation>Anmelden</translation>
    </message>
</context>
<context>
    <name>WebView</name>
    <message>
        <location filename="../streaming/provider/webview.cpp" line="+43"/>
        <source>Paste the address the web browser ended on and press Enter</source>
        <translation>Fügen Sie die Adresse ein, bei der der Webbrowser angekommen ist, und drücken Sie die Eingabetaste</translation>
    </message>
    <message>
        <location line="+174"/>
        <source>The page at %1 could not be loaded.</source>
        <translation>Die Seite auf %1 konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 kept redirecting and could not be shown.</source>
        <translation>Die Seite auf %1 leitet immer wieder weiter und kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 did not finish loading and was stopped.</source>
        <translation>Die Seite auf %1 wurde nicht fertig geladen und wurde angehalten.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The page at %1 stopped working because the browser process showing it ended.</source>
        <translation>Die Seite auf %1 funktioniert nicht mehr, weil der Browser-Prozess, der sie anzeigte, beendet wurde.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Close this window and try again.</source>
        <translation>Schließen Sie dieses Fenster und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No web browser is available on this system.</source>
        <translation>Auf diesem System ist kein Webbrowser verfügbar.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open this address in a web browser to continue:</source>
        <translation>Öffnen Sie diese Adresse in einem Webbrowser, um fortzufahren:</translation>
    </message>
</context>
</TS>
