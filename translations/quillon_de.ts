<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AppOptions</name>
    <message>
        <location filename="../apps/quillon/appoptions.cpp" line="+13"/>
        <source>Quillon output console: the reference host of the streaming library.</source>
        <translation>Quillon-Ausgabekonsole: der Referenz-Host der Streaming-Bibliothek.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Keep presets, servers, setup, licence and project files in &lt;dir&gt;.</source>
        <translation>Presets, Server, Setup-, Lizenz- und Projektdateien in &lt;ordner&gt; ablegen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+3"/>
        <source>dir</source>
        <translation>ordner</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Render every window and dialog to PNG files in &lt;dir&gt; and exit.</source>
        <translation>Jedes Fenster und jeden Dialog als PNG-Datei in &lt;ordner&gt; speichern und beenden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show the texts in &lt;language&gt; (de, fr or en) instead of the system&apos;s language.</source>
        <translation>Die Texte in &lt;sprache&gt; (de, fr oder en) statt in der Systemsprache anzeigen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>language</source>
        <translation>sprache</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>--data needs a directory.</source>
        <translation>--data braucht einen Ordner.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>--screenshots needs a directory.</source>
        <translation>--screenshots braucht einen Ordner.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>--lang needs a language code such as de, fr or en.</source>
        <translation>--lang braucht einen Sprachcode wie de, fr oder en.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Unknown language: %1. Use a code such as de, fr or en.</source>
        <translation>Unbekannte Sprache: %1. Verwenden Sie einen Code wie de, fr oder en.</translation>
    </message>
</context>
<context>
    <name>CameraSources</name>
    <message>
        <location filename="../host/capture/camerasources.cpp" line="+8"/>
        <source>CAM %1</source>
        <translation>CAM %1</translation>
    </message>
</context>
<context>
    <name>ChatPanel</name>
    <message>
        <location filename="../apps/quillon/chatpanel.cpp" line="+20"/>
        <source>Live Chat</source>
        <translation>Live-Chat</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Super Chats</source>
        <translation>Super Chats</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Sign in to Twitch or YouTube in the streaming dialog to use the chat.</source>
        <translation>Melden Sie sich im Streaming-Dialog bei Twitch oder YouTube an, um den Chat zu nutzen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not connected.</source>
        <translation>Nicht verbunden.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>the account is no longer signed in</source>
        <translation>das Konto ist nicht mehr angemeldet</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connecting to %1…</source>
        <translation>Verbindung mit %1 wird hergestellt …</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Chat: connecting to %1.</source>
        <translation>Chat: Verbindung mit %1 wird hergestellt.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Super Chats could not be loaded: %1</source>
        <translation>Die Super Chats konnten nicht geladen werden: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Recent Super Chats of the channel:</source>
        <translation>Letzte Super Chats des Kanals:</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n Super Chat(s) shown.</source>
        <translation>
            <numerusform>%n Super Chat angezeigt.</numerusform>
            <numerusform>%n Super Chats angezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connected to %1.</source>
        <translation>Mit %1 verbunden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Chat: connected to %1.</source>
        <translation>Chat: mit %1 verbunden.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Not sent: %1</source>
        <translation>Nicht gesendet: %1</translation>
    </message>
    <message numerus="yes">
        <location line="+14"/>
        <source>Connected to %1. A busy chat: %Ln message(s) not shown.</source>
        <translation>
            <numerusform>Mit %1 verbunden. Viel los im Chat: %Ln Nachricht nicht angezeigt.</numerusform>
            <numerusform>Mit %1 verbunden. Viel los im Chat: %Ln Nachrichten nicht angezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The chat connection failed: %1. Choose Reconnect to try again.</source>
        <translation>Die Chat-Verbindung ist fehlgeschlagen: %1. Wählen Sie „Neu verbinden“, um es erneut zu versuchen.</translation>
    </message>
    <message>
        <location line="-66"/>
        <location line="+69"/>
        <source>Chat: %1</source>
        <translation>Chat: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the chat server refused the connection</source>
        <translation>der Chat-Server hat die Verbindung abgelehnt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server closed the connection</source>
        <translation>der Chat-Server hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server was not found</source>
        <translation>der Chat-Server wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server did not answer</source>
        <translation>der Chat-Server hat nicht geantwortet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the network is not reachable</source>
        <translation>das Netzwerk ist nicht erreichbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>network error %1</source>
        <translation>Netzwerkfehler %1</translation>
    </message>
</context>
<context>
    <name>DataDirectory</name>
    <message>
        <location filename="../apps/quillon/datadirectory.cpp" line="+28"/>
        <source>The data folder %1 could not be created.</source>
        <translation>Der Datenordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 could not be written (%2); the defaults are used.</source>
        <translation>%1 konnte nicht geschrieben werden (%2); die Standardwerte werden verwendet.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 written with the defaults.</source>
        <translation>%1 mit den Standardwerten geschrieben.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 could not be read (%2); the defaults are used.</source>
        <translation>%1 konnte nicht gelesen werden (%2); die Standardwerte werden verwendet.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 at offset %2</source>
        <translation>%1 an Position %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not a JSON object</source>
        <translation>kein JSON-Objekt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 is not valid (%2); the defaults are used and the file is left as it is.</source>
        <translation>%1 ist ungültig (%2); die Standardwerte werden verwendet, die Datei bleibt unverändert.</translation>
    </message>
</context>
<context>
    <name>DeviceOutputs</name>
    <message>
        <location filename="../host/capture/deviceoutputs.cpp" line="+20"/>
        <source>SDI card</source>
        <translation>SDI-Karten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>virtual camera</source>
        <translation>die virtuelle Kamera</translation>
    </message>
    <message>
        <location line="+24"/>
        <location line="+18"/>
        <source>%1 is not connected.</source>
        <translation>%1 ist nicht angeschlossen.</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>%1 cannot send a picture.</source>
        <translation>%1 kann kein Bild ausgeben.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 does not offer the format &quot;%2&quot;.</source>
        <translation>%1 bietet das Format „%2“ nicht an.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is already in use by %2.</source>
        <translation>%1 wird bereits von %2 verwendet.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 shows %2 at %3.</source>
        <translation>%1 zeigt %2 in %3.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (stand-in): this machine has no %2 driver; %3 is accepted and nothing is sent.</source>
        <translation>%1 (Platzhalter): Dieser Rechner hat keinen Treiber für %2; %3 wird angenommen, gesendet wird nichts.</translation>
    </message>
</context>
<context>
    <name>EncodingLogFormatter</name>
    <message>
        <location filename="../apps/quillon/encodinglogformatter.cpp" line="+15"/>
        <source>Start streaming</source>
        <translation>Stream starten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop streaming</source>
        <translation>Stream stoppen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start recording</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop recording</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start output kind %1</source>
        <translation>Ausgabe der Art %1 starten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop output kind %1</source>
        <translation>Ausgabe der Art %1 stoppen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>no codec</source>
        <translation>kein Codec</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>(no URL)</source>
        <translation>(keine URL)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source> (key %1)</source>
        <translation> (Schlüssel %1)</translation>
    </message>
</context>
<context>
    <name>EngineHost</name>
    <message>
        <location filename="../apps/quillon/enginehost.cpp" line="+23"/>
        <source>Engine: FFmpeg at %1.</source>
        <translation>Engine: FFmpeg unter %1.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Engine: FFmpeg at %1 did not answer; it is asked again when an output starts.</source>
        <translation>Engine: FFmpeg unter %1 hat nicht geantwortet; es wird beim Start eines Ausgangs erneut gefragt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Engine: FFmpeg is not installed; outputs cannot start.</source>
        <translation>Engine: FFmpeg ist nicht installiert; Ausgänge können nicht starten.</translation>
    </message>
</context>
<context>
    <name>FfmpegBackend</name>
    <message>
        <location filename="../host/engine/ffmpegbackend.cpp" line="+60"/>
        <source>&quot;%1&quot; has no file format to record into.</source>
        <translation>„%1“ hat kein Dateiformat für die Aufnahme.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The folder %1 cannot be written; choose another location for &quot;%2&quot;.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden; wählen Sie einen anderen Speicherort für „%2“.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the encoder did not answer</source>
        <translation>der Encoder hat nicht geantwortet</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the encoder refused them</source>
        <translation>der Encoder hat sie abgelehnt</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 cannot encode the settings of &quot;%2&quot; here: %3</source>
        <translation>%1 kann die Einstellungen von „%2“ hier nicht kodieren: %3</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>&quot;%1&quot; cannot start: FFmpeg at %2 does not answer.</source>
        <translation>„%1“ kann nicht starten: FFmpeg unter %2 antwortet nicht.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; cannot start: FFmpeg is not installed.</source>
        <translation>„%1“ kann nicht starten: FFmpeg ist nicht installiert.</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>The still cannot be grabbed: FFmpeg at %1 does not answer.</source>
        <translation>Das Standbild kann nicht aufgenommen werden: FFmpeg unter %1 antwortet nicht.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The still cannot be grabbed: FFmpeg is not installed.</source>
        <translation>Das Standbild kann nicht aufgenommen werden: FFmpeg ist nicht installiert.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The folder %1 cannot be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The still could not be written to %1.</source>
        <translation>Das Standbild konnte nicht nach %1 geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>FfmpegCodecMap</name>
    <message>
        <location filename="../host/engine/ffmpegcodecmap.cpp" line="+127"/>
        <source>&quot;%1&quot; has neither video nor audio to encode.</source>
        <translation>„%1“ hat weder Video noch Audio zum Kodieren.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>The video codec &quot;%1&quot; is unknown to the engine.</source>
        <translation>Der Videocodec „%1“ ist der Engine unbekannt.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+239"/>
        <source>%1 needs the encoder %2, which the installed FFmpeg does not have.</source>
        <translation>%1 benötigt den Encoder %2, den das installierte FFmpeg nicht hat.</translation>
    </message>
    <message>
        <location line="-235"/>
        <source>%1 video cannot be written into %2.</source>
        <translation>%1-Video kann nicht in %2 geschrieben werden.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>%1 cannot be written interlaced; choose a progressive frame rate.</source>
        <translation>%1 kann nicht im Zeilensprungverfahren geschrieben werden; wählen Sie eine progressive Bildrate.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The frame size %1x%2 is odd; %3 needs an even width and height.</source>
        <translation>Die Bildgröße %1x%2 ist ungerade; %3 braucht eine gerade Breite und Höhe.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>MPEG-2 cannot run at %1 frames per second.</source>
        <translation>MPEG-2 kann nicht mit %1 Bildern pro Sekunde laufen.</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+51"/>
        <location line="+18"/>
        <source>%1 has no encoder preset &quot;%2&quot;.</source>
        <translation>%1 hat kein Encoder-Preset „%2“.</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>%1 has no tune &quot;%2&quot;; choose another tune.</source>
        <translation>%1 hat kein Tune „%2“; wählen Sie ein anderes Tune.</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+23"/>
        <source>%1 has no profile number %2.</source>
        <translation>%1 hat kein Profil Nummer %2.</translation>
    </message>
    <message>
        <location line="-18"/>
        <source>The H.264 baseline profile cannot be interlaced; choose main or high.</source>
        <translation>Das H.264-Profil Baseline kann kein Zeilensprungverfahren; wählen Sie Main oder High.</translation>
    </message>
    <message>
        <location line="+88"/>
        <source>DNxHD is written at 1920x1080 or 1280x720 only, not %1x%2.</source>
        <translation>DNxHD wird nur mit 1920x1080 oder 1280x720 geschrieben, nicht mit %1x%2.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Apple ProRes has no profile number %1.</source>
        <translation>Apple ProRes hat kein Profil Nummer %1.</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The audio codec &quot;%1&quot; is unknown to the engine.</source>
        <translation>Der Audiocodec „%1“ ist der Engine unbekannt.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 audio cannot be written into %2.</source>
        <translation>%1-Audio kann nicht in %2 geschrieben werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 in %2 cannot run at %3 Hz; it takes %4.</source>
        <translation>%1 in %2 kann nicht mit %3 Hz laufen; möglich sind %4.</translation>
    </message>
</context>
<context>
    <name>FfmpegCommand</name>
    <message>
        <location filename="../host/engine/ffmpegcommand.cpp" line="+85"/>
        <source>The container &quot;%1&quot; is unknown to the engine.</source>
        <translation>Das Containerformat „%1“ ist der Engine unbekannt.</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>A still cannot be written as &quot;%1&quot;; choose png, jpg, bmp, tiff, gif, webp or tga.</source>
        <translation>Ein Standbild kann nicht als „%1“ geschrieben werden; wählen Sie png, jpg, bmp, tiff, gif, webp oder tga.</translation>
    </message>
</context>
<context>
    <name>FfmpegOutput</name>
    <message>
        <location filename="../host/engine/ffmpegoutput.cpp" line="+50"/>
        <source>Stream &quot;%1&quot;</source>
        <translation>Stream „%1“</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stream file &quot;%1&quot;</source>
        <translation>Stream-Datei „%1“</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recording &quot;%1&quot;</source>
        <translation>Aufnahme „%1“</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>%1 is running again: %2</source>
        <translation>%1 läuft wieder: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 is running: %2</source>
        <translation>%1 läuft: %2</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>%1 stopped: %2</source>
        <translation>%1 gestoppt: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The encoder %1 could not be started.</source>
        <translation>Der Encoder %1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The encoder stopped unexpectedly.</source>
        <translation>Der Encoder wurde unerwartet beendet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The encoder ended with code %1.</source>
        <translation>Der Encoder endete mit Code %1.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The encoder ended by itself: %1</source>
        <translation>Der Encoder hat sich selbst beendet: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 failed: %2 Try %3 of %4 in %5 s.</source>
        <translation>%1 fehlgeschlagen: %2 Versuch %3 von %4 in %5 s.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 failed: %2 Gave up after %3 tries.</source>
        <translation>%1 fehlgeschlagen: %2 Nach %3 Versuchen aufgegeben.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 failed: %2 The file so far is kept: %3</source>
        <translation>%1 fehlgeschlagen: %2 Die bisherige Datei bleibt erhalten: %3</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 failed: %2</source>
        <translation>%1 fehlgeschlagen: %2</translation>
    </message>
</context>
<context>
    <name>FfmpegStreamTarget</name>
    <message>
        <location filename="../host/engine/ffmpegstreamtarget.cpp" line="+79"/>
        <location line="+90"/>
        <source>The stream URL &quot;%1&quot; is not one the engine can send to (rtmp, rtmps, srt, rtsp, tcp or udp).</source>
        <translation>An die Stream-URL „%1“ kann die Engine nicht senden (rtmp, rtmps, srt, rtsp, tcp oder udp).</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>The SRT packet filter &quot;%1&quot; is not supported by the installed FFmpeg; choose &quot;none&quot;.</source>
        <translation>Der SRT-Paketfilter „%1“ wird vom installierten FFmpeg nicht unterstützt; wählen Sie „none“.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The SRT server &quot;%1&quot; has no port.</source>
        <translation>Der SRT-Server „%1“ hat keinen Port.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The SRT mode &quot;%1&quot; is unknown; choose caller, listener or rendezvous.</source>
        <translation>Der SRT-Modus „%1“ ist unbekannt; wählen Sie caller, listener oder rendezvous.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Encryption characters must be between 10 and 79 characters.</source>
        <translation>Das Verschlüsselungspasswort muss zwischen 10 und 79 Zeichen lang sein.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The SRT key length must be 16, 24 or 32, not %1.</source>
        <translation>Die SRT-Schlüssellänge muss 16, 24 oder 32 sein, nicht %1.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>The stream URL &quot;%1&quot; needs a port.</source>
        <translation>Die Stream-URL „%1“ braucht einen Port.</translation>
    </message>
</context>
<context>
    <name>FileOutputInterface</name>
    <message>
        <location filename="../host/interface/fileoutputinterface.cpp" line="+78"/>
        <source>Setup file could not be read: %1</source>
        <translation>Die Setup-Datei konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not a JSON object</source>
        <translation>kein JSON-Objekt</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The unusable setup file %1 could not be kept aside; it is left unchanged.</source>
        <translation>Die unbrauchbare Setup-Datei %1 konnte nicht beiseitegelegt werden; sie bleibt unverändert.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Couldn&apos;t write the setup file %1: %2</source>
        <translation>Die Setup-Datei %1 konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <location filename="../apps/quillon/hostsession.cpp" line="+28"/>
        <source>Data folder: %1</source>
        <translation>Datenordner: %1</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Licence: %1 streams, %2 recordings, %3 ISO recordings, %4 outputs, up to %5x%6.</source>
        <translation>Lizenz: %1 Streams, %2 Aufnahmen, %3 ISO-Aufnahmen, %4 Ausgänge, bis %5x%6.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Project: %1x%2 %3, %4 Hz audio.</source>
        <translation>Projekt: %1x%2 %3, Audio mit %4 Hz.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Video outputs: %1 SDI, %2 NDI, %3 display, %4 virtual camera; %5 audio devices.</source>
        <translation>Videoausgänge: %1 SDI, %2 NDI, %3 Bildschirm, %4 virtuelle Kamera; %5 Audiogeräte.</translation>
    </message>
    <message numerus="yes">
        <location line="+19"/>
        <source>Seeded %n starter codec preset(s).</source>
        <translation>
            <numerusform>%n Start-Codec-Preset angelegt.</numerusform>
            <numerusform>%n Start-Codec-Presets angelegt.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codec presets: %1, saved servers: %2.</source>
        <translation>Codec-Presets: %1, gespeicherte Server: %2.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Setup file damaged: kept as %1, defaults in use.</source>
        <translation>Setup-Datei beschädigt: als %1 aufbewahrt, Standardwerte aktiv.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The setup file was damaged and has been kept as %1; starting with default settings.</source>
        <translation>Die Setup-Datei war beschädigt und wurde als %1 aufbewahrt; Start mit den Standardeinstellungen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setup file damaged: defaults in use, changes are not saved.</source>
        <translation>Setup-Datei beschädigt: Standardwerte aktiv, Änderungen werden nicht gespeichert.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The setup file %1 is damaged and could not be kept aside; starting with default settings, and changes are not saved.</source>
        <translation>Die Setup-Datei %1 ist beschädigt und konnte nicht beiseitegelegt werden; Start mit den Standardeinstellungen, Änderungen werden nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>IsoRecorder</name>
    <message>
        <location filename="../apps/quillon/isorecorder.cpp" line="+22"/>
        <source>ISO recording runs already; the new settings apply when it is stopped and started again.</source>
        <translation>Die ISO-Aufnahme läuft bereits; die neuen Einstellungen gelten, sobald sie beendet und neu gestartet wird.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>ISO recording: no source is selected; nothing started.</source>
        <translation>ISO-Aufnahme: Keine Quelle ausgewählt; nichts gestartet.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>ISO recording: &quot;%1&quot; is not a camera of this switcher; skipped.</source>
        <translation>ISO-Aufnahme: „%1“ ist keine Kamera dieses Mischers; übersprungen.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>ISO recording of &quot;%1&quot; did not start.</source>
        <translation>Die ISO-Aufnahme von „%1“ wurde nicht gestartet.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Start ISO recording &quot;%1&quot;</source>
        <translation>ISO-Aufnahme „%1“ starten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start ISO recording &quot;%1&quot; -&gt; %2</source>
        <translation>ISO-Aufnahme „%1“ starten -&gt; %2</translation>
    </message>
    <message numerus="yes">
        <location line="+14"/>
        <source>Stop ISO recording: %n file(s).</source>
        <translation>
            <numerusform>ISO-Aufnahme beendet: %n Datei.</numerusform>
            <numerusform>ISO-Aufnahme beendet: %n Dateien.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../apps/quillon/mainwindow.ui" line="+14"/>
        <source>Quillon - Output Console</source>
        <translation>Quillon - Ausgabekonsole</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Codec Presets</source>
        <translation>Codec-Presets</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Saved Servers</source>
        <translation>Gespeicherte Server</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Running Outputs</source>
        <translation>Laufende Ausgänge</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Engine Log</source>
        <translation>Engine-Protokoll</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Outputs</source>
        <translation>&amp;Ausgänge</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&amp;Reload Stores</source>
        <translation>Presets und Server &amp;neu laden</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../apps/quillon/mainwindow.cpp" line="+44"/>
        <source>Data folder: %1</source>
        <translation>Datenordner: %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 | %2 streams, %3 recordings</source>
        <translation>%1 | %2 Streams, %3 Aufnahmen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Started with warnings; see the log.</source>
        <translation>Mit Warnungen gestartet; siehe Protokoll.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ready.</source>
        <translation>Bereit.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The setup could not be saved; see the log.</source>
        <translation>Das Setup konnte nicht gespeichert werden; siehe Protokoll.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Setup saved (%1).</source>
        <translation>Setup gespeichert (%1).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Grab Still</source>
        <translation>Standbild erfassen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Stop ISO Recording</source>
        <translation>ISO-Aufnahme beenden</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Opened %1</source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Stores reloaded: %1 codec presets, %2 saved servers.</source>
        <translation>Neu geladen: %1 Codec-Presets, %2 gespeicherte Server.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>No codec presets</source>
        <translation>Keine Codec-Presets</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+21"/>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <location line="-19"/>
        <source>No saved servers</source>
        <translation>Keine gespeicherten Server</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Unnamed</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nothing running</source>
        <translation>Nichts aktiv</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Warning; see the log.</source>
        <translation>Warnung; siehe Protokoll.</translation>
    </message>
</context>
<context>
    <name>OutputDialogRegistry</name>
    <message>
        <location filename="../apps/quillon/outputdialogregistry.cpp" line="+29"/>
        <source>File naming: &quot;%1&quot; gives %2</source>
        <translation>Dateibenennung: „%1“ ergibt %2</translation>
    </message>
    <message>
        <location line="+83"/>
        <source>Streaming…</source>
        <translation>Streaming…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Recording…</source>
        <translation>Aufnahme…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ISO Recording…</source>
        <translation>ISO-Aufnahme…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grab…</source>
        <translation>Standbild…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>File Naming…</source>
        <translation>Dateibenennung…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Playout…</source>
        <translation>Playout…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>External Output…</source>
        <translation>Externe Ausgabe…</translation>
    </message>
</context>
<context>
    <name>PlayoutHost</name>
    <message>
        <location filename="../apps/quillon/playouthost.cpp" line="+86"/>
        <source>No external output is configured.</source>
        <translation>Es ist keine externe Ausgabe eingerichtet.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>External outputs: %1 of %2 started.</source>
        <translation>Externe Ausgaben: %1 von %2 gestartet.</translation>
    </message>
    <message>
        <location line="+22"/>
        <location line="+15"/>
        <source>%1 - %2 %3 %4</source>
        <translation>%1 - %2 %3 %4</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> (stand-in)</source>
        <translation> (Platzhalter)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 does not start: %2</source>
        <translation>%1 startet nicht: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 started: %2</source>
        <translation>%1 gestartet: %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 stopped.</source>
        <translation>%1 gestoppt.</translation>
    </message>
</context>
<context>
    <name>PresetSeeder</name>
    <message>
        <location filename="../apps/quillon/presetseeder.cpp" line="+106"/>
        <source>The codec preset %1 could not be written to %2.</source>
        <translation>Das Codec-Preset %1 konnte nicht nach %2 geschrieben werden.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The starter presets were written but %1 could not be (%2); they may come back.</source>
        <translation>Die Start-Presets wurden geschrieben, %1 jedoch nicht (%2); sie können wiederkommen.</translation>
    </message>
</context>
<context>
    <name>QuillonEngine</name>
    <message>
        <location filename="../host/engine/quillonengine.cpp" line="+152"/>
        <source>The still could not be written to %1.</source>
        <translation>Das Standbild konnte nicht nach %1 geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>RunningLineFormatter</name>
    <message>
        <location filename="../apps/quillon/runninglineformatter.cpp" line="+17"/>
        <source>Stream</source>
        <translation>Stream</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stream file</source>
        <translation>Stream-Datei</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Unnamed</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 &quot;%2&quot;  %3</source>
        <translation>%1 „%2“  %3</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1  starting  %2</source>
        <translation>%1  startet  %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1  running  %2 fps  %3 kbps  %4 dropped  %5</source>
        <translation>%1  läuft  %2 fps  %3 kbps  %4 verworfen  %5</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1  failed, trying again (%2 of %3): %4</source>
        <translation>%1  fehlgeschlagen, neuer Versuch (%2 von %3): %4</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1  failed, try %2 of %3 in %4 s: %5</source>
        <translation>%1  fehlgeschlagen, Versuch %2 von %3 in %4 s: %5</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1  failed: %2</source>
        <translation>%1  fehlgeschlagen: %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1  stopped</source>
        <translation>%1  gestoppt</translation>
    </message>
</context>
<context>
    <name>ScreenshotRenderer</name>
    <message>
        <location filename="../apps/quillon/screenshotrenderer.cpp" line="+93"/>
        <source>The screenshot folder %1 could not be created.</source>
        <translation>Der Ordner für Bildschirmfotos %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+43"/>
        <source>%1 could not be written.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>%1: the console has no dialog &quot;%2&quot;.</source>
        <translation>%1: Die Konsole hat keinen Dialog „%2“.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1: the dialog did not open from &quot;%2&quot;.</source>
        <translation>%1: Der Dialog ließ sich aus „%2“ nicht öffnen.</translation>
    </message>
</context>
<context>
    <name>StillGrabber</name>
    <message>
        <location filename="../apps/quillon/stillgrabber.cpp" line="+29"/>
        <source>No grab preset: add one in &quot;Grab…&quot; first.</source>
        <translation>Kein Standbild-Preset: Legen Sie zuerst eines unter „Standbild…“ an.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The folder %1 cannot be written; choose another location for the grab &quot;%2&quot;.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden; wählen Sie einen anderen Speicherort für das Standbild „%2“.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The grab &quot;%1&quot; did not start.</source>
        <translation>Das Standbild „%1“ wurde nicht gestartet.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Grabbed &quot;%1&quot;: %2</source>
        <translation>Standbild „%1“ erfasst: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The grab &quot;%1&quot; failed: %2</source>
        <translation>Das Standbild „%1“ ist fehlgeschlagen: %2</translation>
    </message>
</context>
<context>
    <name>ToneOutput</name>
    <message>
        <location filename="../apps/quillon/toneoutput.cpp" line="+52"/>
        <source>This machine has no audio output device.</source>
        <translation>Dieser Rechner hat kein Audio-Ausgabegerät.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The audio device &quot;%1&quot; is not connected.</source>
        <translation>Das Audiogerät „%1“ ist nicht angeschlossen.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The audio device &quot;%1&quot; cannot play %2 Hz stereo.</source>
        <translation>Das Audiogerät „%1“ kann %2 Hz Stereo nicht wiedergeben.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The audio device &quot;%1&quot; could not be opened.</source>
        <translation>Das Audiogerät „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The audio device &quot;%1&quot; plays a %2 Hz tone at %3 Hz.</source>
        <translation>Das Audiogerät „%1“ spielt einen Ton von %2 Hz mit %3 Hz ab.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../apps/quillon/main.cpp" line="+63"/>
        <source>Translations: %1</source>
        <translation>Übersetzungen: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>No translation for %1 was found; the texts are in English.</source>
        <translation>Keine Übersetzung für %1 gefunden; die Texte sind auf Englisch.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Sign-in pages open in the built-in browser.</source>
        <translation>Anmeldeseiten werden im integrierten Browser geöffnet.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Screenshot %1</source>
        <translation>Bildschirmfoto %1</translation>
    </message>
</context>
</TS>
