<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AppOptions</name>
    <message>
        <location filename="../apps/quillon/appoptions.cpp" line="+13"/>
        <source>Quillon output console: the reference host of the streaming library.</source>
        <translation>Console de sorties Quillon&#xa0;: l&apos;hôte de référence de la bibliothèque de streaming.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Keep presets, servers, setup, licence and project files in &lt;dir&gt;.</source>
        <translation>Conserver préréglages, serveurs, configuration, licence et projet dans &lt;dossier&gt;.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+3"/>
        <source>dir</source>
        <translation>dossier</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Render every window and dialog to PNG files in &lt;dir&gt; and exit.</source>
        <translation>Enregistrer chaque fenêtre et boîte de dialogue en PNG dans &lt;dossier&gt;, puis quitter.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show the texts in &lt;language&gt; (de, fr or en) instead of the system&apos;s language.</source>
        <translation>Afficher les textes en &lt;langue&gt; (de, fr ou en) au lieu de la langue du système.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Unexpected argument: %1</source>
        <translation>Argument inattendu&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>--data needs a directory.</source>
        <translation>--data demande un dossier.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>--screenshots needs a directory.</source>
        <translation>--screenshots demande un dossier.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>--lang needs a language code such as de, fr or en.</source>
        <translation>--lang demande un code de langue comme de, fr ou en.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Unknown language: %1. Use a code such as de, fr or en.</source>
        <translation>Langue inconnue&#xa0;: %1. Utilisez un code comme de, fr ou en.</translation>
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
        <translation>Chat en direct</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Super Chats</source>
        <translation>Super Chats</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Sign in to Twitch or YouTube in the streaming dialog to use the chat.</source>
        <translation>Connectez-vous à Twitch ou à YouTube dans la fenêtre de streaming pour utiliser le chat.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not connected.</source>
        <translation>Non connecté.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>the account is no longer signed in</source>
        <translation>le compte n’est plus connecté</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Reconnect</source>
        <translation>Reconnecter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Chat: connecting to %1.</source>
        <translation>Chat&#xa0;: connexion à %1.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The Super Chats could not be loaded: %1</source>
        <translation>Impossible de charger les Super Chats&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Recent Super Chats of the channel:</source>
        <translation>Derniers Super Chats de la chaîne&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n Super Chat(s) shown.</source>
        <translation>
            <numerusform>%n Super Chat affiché.</numerusform>
            <numerusform>%n Super Chats affichés.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connected to %1.</source>
        <translation>Connecté à %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Chat: connected to %1.</source>
        <translation>Chat&#xa0;: connecté à %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Not sent: %1</source>
        <translation>Non envoyé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <location line="+14"/>
        <source>Connected to %1. A busy chat: %Ln message(s) not shown.</source>
        <translation>
            <numerusform>Connecté à %1. Chat très actif&#xa0;: %Ln message non affiché.</numerusform>
            <numerusform>Connecté à %1. Chat très actif&#xa0;: %Ln messages non affichés.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The chat connection failed: %1. Choose Reconnect to try again.</source>
        <translation>La connexion au chat a échoué&#xa0;: %1. Choisissez «&#xa0;Reconnecter&#xa0;» pour réessayer.</translation>
    </message>
    <message>
        <location line="-66"/>
        <location line="+69"/>
        <source>Chat: %1</source>
        <translation>Chat&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the chat server refused the connection</source>
        <translation>le serveur de chat a refusé la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server closed the connection</source>
        <translation>le serveur de chat a fermé la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server was not found</source>
        <translation>le serveur de chat est introuvable</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the chat server did not answer</source>
        <translation>le serveur de chat n’a pas répondu</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>the network is not reachable</source>
        <translation>le réseau est inaccessible</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>network error %1</source>
        <translation>erreur réseau %1</translation>
    </message>
</context>
<context>
    <name>DataDirectory</name>
    <message>
        <location filename="../apps/quillon/datadirectory.cpp" line="+28"/>
        <source>The data folder %1 could not be created.</source>
        <translation>Le dossier de données %1 n&apos;a pas pu être créé.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 could not be written (%2); the defaults are used.</source>
        <translation>%1 n&apos;a pas pu être écrit (%2)&#xa0;; les valeurs par défaut sont utilisées.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 written with the defaults.</source>
        <translation>%1 écrit avec les valeurs par défaut.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 could not be read (%2); the defaults are used.</source>
        <translation>%1 n&apos;a pas pu être lu (%2)&#xa0;; les valeurs par défaut sont utilisées.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 at offset %2</source>
        <translation>%1 à la position %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not a JSON object</source>
        <translation>pas un objet JSON</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 is not valid (%2); the defaults are used and the file is left as it is.</source>
        <translation>%1 n&apos;est pas valide (%2)&#xa0;; les valeurs par défaut sont utilisées et le fichier reste tel quel.</translation>
    </message>
</context>
<context>
    <name>DeviceOutputs</name>
    <message>
        <location filename="../host/capture/deviceoutputs.cpp" line="+20"/>
        <source>SDI card</source>
        <translation>les cartes SDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>virtual camera</source>
        <translation>la caméra virtuelle</translation>
    </message>
    <message>
        <location line="+24"/>
        <location line="+18"/>
        <source>%1 is not connected.</source>
        <translation>%1 n&apos;est pas connecté.</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>%1 cannot send a picture.</source>
        <translation>%1 ne peut pas envoyer d&apos;image.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 does not offer the format &quot;%2&quot;.</source>
        <translation>%1 ne propose pas le format «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is already in use by %2.</source>
        <translation>%1 est déjà utilisé par %2.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 shows %2 at %3.</source>
        <translation>%1 affiche %2 en %3.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 (stand-in): this machine has no %2 driver; %3 is accepted and nothing is sent.</source>
        <translation>%1 (substitut)&#xa0;: cette machine n&apos;a pas de pilote pour %2&#xa0;; %3 est accepté et rien n&apos;est envoyé.</translation>
    </message>
</context>
<context>
    <name>EncodingLogFormatter</name>
    <message>
        <location filename="../apps/quillon/encodinglogformatter.cpp" line="+15"/>
        <source>Start streaming</source>
        <translation>Démarrer le stream</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop streaming</source>
        <translation>Arrêter le stream</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start recording</source>
        <translation>Démarrer l&apos;enregistrement</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop recording</source>
        <translation>Arrêter l&apos;enregistrement</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Start output kind %1</source>
        <translation>Démarrer la sortie de type %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stop output kind %1</source>
        <translation>Arrêter la sortie de type %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>no codec</source>
        <translation>aucun codec</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1&#xa0;: %2 -&gt; %3</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>(no URL)</source>
        <translation>(pas d&apos;URL)</translation>
    </message>
    <message>
        <location line="+9"/>
        <source> (key %1)</source>
        <translation> (clé %1)</translation>
    </message>
</context>
<context>
    <name>EngineHost</name>
    <message>
        <location filename="../apps/quillon/enginehost.cpp" line="+23"/>
        <source>Engine: FFmpeg at %1.</source>
        <translation>Moteur&#xa0;: FFmpeg dans %1.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Engine: FFmpeg at %1 did not answer; it is asked again when an output starts.</source>
        <translation>Moteur&#xa0;: FFmpeg (%1) n&apos;a pas répondu&#xa0;; il sera interrogé de nouveau au démarrage d&apos;une sortie.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Engine: FFmpeg is not installed; outputs cannot start.</source>
        <translation>Moteur&#xa0;: FFmpeg n&apos;est pas installé&#xa0;; les sorties ne peuvent pas démarrer.</translation>
    </message>
</context>
<context>
    <name>FfmpegBackend</name>
    <message>
        <location filename="../host/engine/ffmpegbackend.cpp" line="+60"/>
        <source>&quot;%1&quot; has no file format to record into.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas de format de fichier pour l&apos;enregistrement.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The folder %1 cannot be written; choose another location for &quot;%2&quot;.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1&#xa0;; choisissez un autre emplacement pour «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>the encoder did not answer</source>
        <translation>l&apos;encodeur n&apos;a pas répondu</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the encoder refused them</source>
        <translation>l&apos;encodeur les a refusés</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>%1 cannot encode the settings of &quot;%2&quot; here: %3</source>
        <translation>%1 ne peut pas encoder ici les réglages de «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>&quot;%1&quot; cannot start: FFmpeg at %2 does not answer.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas démarrer&#xa0;: FFmpeg (%2) ne répond pas.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; cannot start: FFmpeg is not installed.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas démarrer&#xa0;: FFmpeg n&apos;est pas installé.</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>The still cannot be grabbed: FFmpeg at %1 does not answer.</source>
        <translation>Impossible de capturer l&apos;image fixe&#xa0;: FFmpeg (%1) ne répond pas.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The still cannot be grabbed: FFmpeg is not installed.</source>
        <translation>Impossible de capturer l&apos;image fixe&#xa0;: FFmpeg n&apos;est pas installé.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The folder %1 cannot be written.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The still could not be written to %1.</source>
        <translation>L&apos;image fixe n&apos;a pas pu être écrite dans %1.</translation>
    </message>
</context>
<context>
    <name>FfmpegCodecMap</name>
    <message>
        <location filename="../host/engine/ffmpegcodecmap.cpp" line="+127"/>
        <source>&quot;%1&quot; has neither video nor audio to encode.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a ni vidéo ni audio à encoder.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>The video codec &quot;%1&quot; is unknown to the engine.</source>
        <translation>Le codec vidéo «&#xa0;%1&#xa0;» est inconnu du moteur.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+239"/>
        <source>%1 needs the encoder %2, which the installed FFmpeg does not have.</source>
        <translation>%1 nécessite l&apos;encodeur %2, absent du FFmpeg installé.</translation>
    </message>
    <message>
        <location line="-235"/>
        <source>%1 video cannot be written into %2.</source>
        <translation>La vidéo %1 ne peut pas être écrite en %2.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>%1 cannot be written interlaced; choose a progressive frame rate.</source>
        <translation>%1 ne peut pas être écrit en entrelacé&#xa0;; choisissez une cadence progressive.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The frame size %1x%2 is odd; %3 needs an even width and height.</source>
        <translation>La taille d&apos;image %1x%2 est impaire&#xa0;; %3 exige une largeur et une hauteur paires.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>MPEG-2 cannot run at %1 frames per second.</source>
        <translation>MPEG-2 ne peut pas fonctionner à %1 images par seconde.</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+51"/>
        <location line="+18"/>
        <source>%1 has no encoder preset &quot;%2&quot;.</source>
        <translation>%1 n&apos;a pas de préréglage d&apos;encodeur «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>%1 has no tune &quot;%2&quot;; choose another tune.</source>
        <translation>%1 n&apos;a pas de réglage fin «&#xa0;%2&#xa0;»&#xa0;; choisissez-en un autre.</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+23"/>
        <source>%1 has no profile number %2.</source>
        <translation>%1 n&apos;a pas de profil numéro %2.</translation>
    </message>
    <message>
        <location line="-18"/>
        <source>The H.264 baseline profile cannot be interlaced; choose main or high.</source>
        <translation>Le profil H.264 baseline ne peut pas être entrelacé&#xa0;; choisissez main ou high.</translation>
    </message>
    <message>
        <location line="+88"/>
        <source>DNxHD is written at 1920x1080 or 1280x720 only, not %1x%2.</source>
        <translation>DNxHD ne s&apos;écrit qu&apos;en 1920x1080 ou 1280x720, pas en %1x%2.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Apple ProRes has no profile number %1.</source>
        <translation>Apple ProRes n&apos;a pas de profil numéro %1.</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>The audio codec &quot;%1&quot; is unknown to the engine.</source>
        <translation>Le codec audio «&#xa0;%1&#xa0;» est inconnu du moteur.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 audio cannot be written into %2.</source>
        <translation>L&apos;audio %1 ne peut pas être écrit en %2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 in %2 cannot run at %3 Hz; it takes %4.</source>
        <translation>%1 en %2 ne peut pas fonctionner à %3 Hz&#xa0;; valeurs possibles&#xa0;: %4.</translation>
    </message>
</context>
<context>
    <name>FfmpegCommand</name>
    <message>
        <location filename="../host/engine/ffmpegcommand.cpp" line="+85"/>
        <source>The container &quot;%1&quot; is unknown to the engine.</source>
        <translation>Le conteneur «&#xa0;%1&#xa0;» est inconnu du moteur.</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>A still cannot be written as &quot;%1&quot;; choose png, jpg, bmp, tiff, gif, webp or tga.</source>
        <translation>Une image fixe ne peut pas être écrite en «&#xa0;%1&#xa0;»&#xa0;; choisissez png, jpg, bmp, tiff, gif, webp ou tga.</translation>
    </message>
</context>
<context>
    <name>FfmpegOutput</name>
    <message>
        <location filename="../host/engine/ffmpegoutput.cpp" line="+50"/>
        <source>Stream &quot;%1&quot;</source>
        <translation>Stream «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stream file &quot;%1&quot;</source>
        <translation>Fichier du stream «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Recording &quot;%1&quot;</source>
        <translation>Enregistrement «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <location line="+66"/>
        <source>%1 is running again: %2</source>
        <translation>%1 fonctionne à nouveau&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 is running: %2</source>
        <translation>%1 en cours&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>%1 stopped: %2</source>
        <translation>%1 arrêté&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The encoder %1 could not be started.</source>
        <translation>L&apos;encodeur %1 n&apos;a pas pu être démarré.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The encoder stopped unexpectedly.</source>
        <translation>L&apos;encodeur s&apos;est arrêté de manière inattendue.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The encoder ended with code %1.</source>
        <translation>L&apos;encodeur s&apos;est terminé avec le code %1.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The encoder ended by itself: %1</source>
        <translation>L&apos;encodeur s&apos;est terminé de lui-même&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 failed: %2 Try %3 of %4 in %5 s.</source>
        <translation>%1 a échoué&#xa0;: %2 Tentative %3 sur %4 dans %5 s.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 failed: %2 Gave up after %3 tries.</source>
        <translation>%1 a échoué&#xa0;: %2 Abandon après %3 tentatives.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 failed: %2 The file so far is kept: %3</source>
        <translation>%1 a échoué&#xa0;: %2 Le fichier déjà écrit est conservé&#xa0;: %3</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 failed: %2</source>
        <translation>%1 a échoué&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FfmpegStreamTarget</name>
    <message>
        <location filename="../host/engine/ffmpegstreamtarget.cpp" line="+79"/>
        <location line="+90"/>
        <source>The stream URL &quot;%1&quot; is not one the engine can send to (rtmp, rtmps, srt, rtsp, tcp or udp).</source>
        <translation>Le moteur ne peut pas envoyer vers l&apos;URL de stream «&#xa0;%1&#xa0;» (rtmp, rtmps, srt, rtsp, tcp ou udp).</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>The SRT packet filter &quot;%1&quot; is not supported by the installed FFmpeg; choose &quot;none&quot;.</source>
        <translation>Le filtre de paquets SRT «&#xa0;%1&#xa0;» n&apos;est pas pris en charge par le FFmpeg installé&#xa0;; choisissez «&#xa0;none&#xa0;».</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The SRT server &quot;%1&quot; has no port.</source>
        <translation>Le serveur SRT «&#xa0;%1&#xa0;» n&apos;a pas de port.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The SRT mode &quot;%1&quot; is unknown; choose caller, listener or rendezvous.</source>
        <translation>Le mode SRT «&#xa0;%1&#xa0;» est inconnu&#xa0;; choisissez caller, listener ou rendezvous.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Encryption characters must be between 10 and 79 characters.</source>
        <translation>Le mot de passe de chiffrement doit comporter entre 10 et 79 caractères.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The SRT key length must be 16, 24 or 32, not %1.</source>
        <translation>La longueur de clé SRT doit être 16, 24 ou 32, pas %1.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>The stream URL &quot;%1&quot; needs a port.</source>
        <translation>L&apos;URL de stream «&#xa0;%1&#xa0;» nécessite un port.</translation>
    </message>
</context>
<context>
    <name>FileOutputInterface</name>
    <message>
        <location filename="../host/interface/fileoutputinterface.cpp" line="+78"/>
        <source>Setup file could not be read: %1</source>
        <translation>Le fichier de configuration n&apos;a pas pu être lu&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not a JSON object</source>
        <translation>pas un objet JSON</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The unusable setup file %1 could not be kept aside; it is left unchanged.</source>
        <translation>Le fichier de configuration inutilisable %1 n&apos;a pas pu être mis de côté&#xa0;; il reste inchangé.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Couldn&apos;t write the setup file %1: %2</source>
        <translation>Impossible d&apos;écrire le fichier de configuration %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <location filename="../apps/quillon/hostsession.cpp" line="+28"/>
        <source>Data folder: %1</source>
        <translation>Dossier de données&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Licence: %1 streams, %2 recordings, %3 ISO recordings, %4 outputs, up to %5x%6.</source>
        <translation>Licence&#xa0;: %1 streams, %2 enregistrements, %3 enregistrements ISO, %4 sorties, jusqu&apos;à %5x%6.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Project: %1x%2 %3, %4 Hz audio.</source>
        <translation>Projet&#xa0;: %1x%2 %3, audio à %4&#xa0;Hz.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Video outputs: %1 SDI, %2 NDI, %3 display, %4 virtual camera; %5 audio devices.</source>
        <translation>Sorties vidéo&#xa0;: %1 SDI, %2 NDI, %3 écran, %4 caméra virtuelle&#xa0;; %5 périphériques audio.</translation>
    </message>
    <message numerus="yes">
        <location line="+19"/>
        <source>Seeded %n starter codec preset(s).</source>
        <translation>
            <numerusform>%n préréglage de codec initial créé.</numerusform>
            <numerusform>%n préréglages de codec initiaux créés.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codec presets: %1, saved servers: %2.</source>
        <translation>Préréglages de codec&#xa0;: %1, serveurs enregistrés&#xa0;: %2.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Setup file damaged: kept as %1, defaults in use.</source>
        <translation>Fichier de configuration endommagé&#xa0;: conservé sous %1, valeurs par défaut utilisées.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The setup file was damaged and has been kept as %1; starting with default settings.</source>
        <translation>Le fichier de configuration était endommagé et a été conservé sous %1&#xa0;; démarrage avec les paramètres par défaut.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setup file damaged: defaults in use, changes are not saved.</source>
        <translation>Fichier de configuration endommagé&#xa0;: valeurs par défaut utilisées, les modifications ne sont pas enregistrées.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The setup file %1 is damaged and could not be kept aside; starting with default settings, and changes are not saved.</source>
        <translation>Le fichier de configuration %1 est endommagé et n&apos;a pas pu être mis de côté&#xa0;; démarrage avec les paramètres par défaut, les modifications ne sont pas enregistrées.</translation>
    </message>
</context>
<context>
    <name>IsoRecorder</name>
    <message>
        <location filename="../apps/quillon/isorecorder.cpp" line="+22"/>
        <source>ISO recording runs already; the new settings apply when it is stopped and started again.</source>
        <translation>L&apos;enregistrement ISO est déjà en cours&#xa0;; les nouveaux réglages s&apos;appliqueront après son arrêt et son redémarrage.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>ISO recording: no source is selected; nothing started.</source>
        <translation>Enregistrement ISO&#xa0;: aucune source n&apos;est sélectionnée&#xa0;; rien n&apos;a démarré.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>ISO recording: &quot;%1&quot; is not a camera of this switcher; skipped.</source>
        <translation>Enregistrement ISO&#xa0;: «&#xa0;%1&#xa0;» n&apos;est pas une caméra de ce mélangeur&#xa0;; ignorée.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>ISO recording of &quot;%1&quot; did not start.</source>
        <translation>L&apos;enregistrement ISO de «&#xa0;%1&#xa0;» n&apos;a pas démarré.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Start ISO recording &quot;%1&quot;</source>
        <translation>Démarrage de l&apos;enregistrement ISO «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start ISO recording &quot;%1&quot; -&gt; %2</source>
        <translation>Démarrage de l&apos;enregistrement ISO «&#xa0;%1&#xa0;» -&gt; %2</translation>
    </message>
    <message numerus="yes">
        <location line="+14"/>
        <source>Stop ISO recording: %n file(s).</source>
        <translation>
            <numerusform>Arrêt de l&apos;enregistrement ISO&#xa0;: %n fichier.</numerusform>
            <numerusform>Arrêt de l&apos;enregistrement ISO&#xa0;: %n fichiers.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../apps/quillon/mainwindow.ui" line="+14"/>
        <source>Quillon - Output Console</source>
        <translation>Quillon - Console de sorties</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Codec Presets</source>
        <translation>Préréglages de codec</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Saved Servers</source>
        <translation>Serveurs enregistrés</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Running Outputs</source>
        <translation>Sorties actives</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Engine Log</source>
        <translation>Journal du moteur</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Outputs</source>
        <translation>&amp;Sorties</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>&amp;Reload Stores</source>
        <translation>&amp;Recharger préréglages et serveurs</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <location filename="../apps/quillon/mainwindow.cpp" line="+44"/>
        <source>Data folder: %1</source>
        <translation>Dossier de données&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 | %2 streams, %3 recordings</source>
        <translation>%1 | %2 streams, %3 enregistrements</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Started with warnings; see the log.</source>
        <translation>Démarré avec des avertissements&#xa0;; voir le journal.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ready.</source>
        <translation>Prêt.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The setup could not be saved; see the log.</source>
        <translation>La configuration n&apos;a pas pu être enregistrée&#xa0;; voir le journal.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Setup saved (%1).</source>
        <translation>Configuration enregistrée (%1).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Grab Still</source>
        <translation>Capturer une image</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Stop ISO Recording</source>
        <translation>Arrêter l&apos;enregistrement ISO</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Opened %1</source>
        <translation>Ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Stores reloaded: %1 codec presets, %2 saved servers.</source>
        <translation>Rechargé&#xa0;: %1 préréglages de codec, %2 serveurs enregistrés.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>No codec presets</source>
        <translation>Aucun préréglage de codec</translation>
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
        <translation>Aucun serveur enregistré</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Unnamed</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nothing running</source>
        <translation>Rien en cours</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Warning; see the log.</source>
        <translation>Avertissement&#xa0;; voir le journal.</translation>
    </message>
</context>
<context>
    <name>OutputDialogRegistry</name>
    <message>
        <location filename="../apps/quillon/outputdialogregistry.cpp" line="+29"/>
        <source>File naming: &quot;%1&quot; gives %2</source>
        <translation>Nommage des fichiers&#xa0;: «&#xa0;%1&#xa0;» donne %2</translation>
    </message>
    <message>
        <location line="+83"/>
        <source>Streaming…</source>
        <translation>Streaming…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Recording…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ISO Recording…</source>
        <translation>Enregistrement ISO…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grab…</source>
        <translation>Capture…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>File Naming…</source>
        <translation>Nommage des fichiers…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Playout…</source>
        <translation>Playout…</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>External Output…</source>
        <translation>Sortie externe…</translation>
    </message>
</context>
<context>
    <name>PlayoutHost</name>
    <message>
        <location filename="../apps/quillon/playouthost.cpp" line="+86"/>
        <source>No external output is configured.</source>
        <translation>Aucune sortie externe n&apos;est configurée.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>External outputs: %1 of %2 started.</source>
        <translation>Sorties externes&#xa0;: %1 sur %2 démarrées.</translation>
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
        <translation> (substitut)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 does not start: %2</source>
        <translation>%1 ne démarre pas&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 started: %2</source>
        <translation>%1 démarré&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 stopped.</source>
        <translation>%1 arrêté.</translation>
    </message>
</context>
<context>
    <name>PresetSeeder</name>
    <message>
        <location filename="../apps/quillon/presetseeder.cpp" line="+106"/>
        <source>The codec preset %1 could not be written to %2.</source>
        <translation>Le préréglage de codec %1 n&apos;a pas pu être écrit dans %2.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The starter presets were written but %1 could not be (%2); they may come back.</source>
        <translation>Les préréglages initiaux ont été écrits, mais pas %1 (%2)&#xa0;; ils peuvent réapparaître.</translation>
    </message>
</context>
<context>
    <name>QuillonEngine</name>
    <message>
        <location filename="../host/engine/quillonengine.cpp" line="+152"/>
        <source>The still could not be written to %1.</source>
        <translation>L&apos;image fixe n&apos;a pas pu être écrite dans %1.</translation>
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
        <translation>Fichier du stream</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Unnamed</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 &quot;%2&quot;  %3</source>
        <translation>%1 «&#xa0;%2&#xa0;»  %3</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1  starting  %2</source>
        <translation>%1  démarrage  %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1  running  %2 fps  %3 kbps  %4 dropped  %5</source>
        <translation>%1  en cours  %2 i/s  %3 kbit/s  %4 perdues  %5</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1  failed, trying again (%2 of %3): %4</source>
        <translation>%1  échec, nouvelle tentative (%2 sur %3)&#xa0;: %4</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1  failed, try %2 of %3 in %4 s: %5</source>
        <translation>%1  échec, tentative %2 sur %3 dans %4 s&#xa0;: %5</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1  failed: %2</source>
        <translation>%1  échec&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1  stopped</source>
        <translation>%1  arrêté</translation>
    </message>
</context>
<context>
    <name>ScreenshotRenderer</name>
    <message>
        <location filename="../apps/quillon/screenshotrenderer.cpp" line="+93"/>
        <source>The screenshot folder %1 could not be created.</source>
        <translation>Le dossier des captures d&apos;écran %1 n&apos;a pas pu être créé.</translation>
    </message>
    <message>
        <location line="+21"/>
        <location line="+43"/>
        <source>%1 could not be written.</source>
        <translation>%1 n&apos;a pas pu être écrit.</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>%1: the console has no dialog &quot;%2&quot;.</source>
        <translation>%1&#xa0;: la console n&apos;a pas de boîte de dialogue «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1: the dialog did not open from &quot;%2&quot;.</source>
        <translation>%1&#xa0;: la boîte de dialogue ne s&apos;est pas ouverte depuis «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>StillGrabber</name>
    <message>
        <location filename="../apps/quillon/stillgrabber.cpp" line="+29"/>
        <source>No grab preset: add one in &quot;Grab…&quot; first.</source>
        <translation>Aucun préréglage de capture&#xa0;: ajoutez-en un d&apos;abord dans «&#xa0;Capture…&#xa0;».</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The folder %1 cannot be written; choose another location for the grab &quot;%2&quot;.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1&#xa0;; choisissez un autre emplacement pour la capture «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The grab &quot;%1&quot; did not start.</source>
        <translation>La capture «&#xa0;%1&#xa0;» n&apos;a pas démarré.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Grabbed &quot;%1&quot;: %2</source>
        <translation>Capture «&#xa0;%1&#xa0;» enregistrée&#xa0;: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The grab &quot;%1&quot; failed: %2</source>
        <translation>La capture «&#xa0;%1&#xa0;» a échoué&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ToneOutput</name>
    <message>
        <location filename="../apps/quillon/toneoutput.cpp" line="+52"/>
        <source>This machine has no audio output device.</source>
        <translation>Cette machine n&apos;a aucun périphérique de sortie audio.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The audio device &quot;%1&quot; is not connected.</source>
        <translation>Le périphérique audio «&#xa0;%1&#xa0;» n&apos;est pas connecté.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The audio device &quot;%1&quot; cannot play %2 Hz stereo.</source>
        <translation>Le périphérique audio «&#xa0;%1&#xa0;» ne peut pas lire %2 Hz en stéréo.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The audio device &quot;%1&quot; could not be opened.</source>
        <translation>Le périphérique audio «&#xa0;%1&#xa0;» n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The audio device &quot;%1&quot; plays a %2 Hz tone at %3 Hz.</source>
        <translation>Le périphérique audio «&#xa0;%1&#xa0;» joue une tonalité de %2 Hz à %3 Hz.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../apps/quillon/main.cpp" line="+63"/>
        <source>Translations: %1</source>
        <translation>Traductions&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>No translation for %1 was found; the texts are in English.</source>
        <translation>Aucune traduction trouvée pour %1&#xa0;; les textes sont en anglais.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Sign-in pages open in the built-in browser.</source>
        <translation>Les pages de connexion s&apos;ouvrent dans le navigateur intégré.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Screenshot %1</source>
        <translation>Capture d&apos;écran %1</translation>
    </message>
</context>
</TS>
