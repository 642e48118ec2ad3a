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
    <name>DataDirectory</name>
    <message>
        <location filename="../apps/quillon/datadirectory.cpp" line="+22"/>
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
    <name>EncodingLogFormatter</name>
    <message>
        <location filename="../apps/quillon/encodinglogformatter.cpp" line="+14"/>
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
        <location line="+3"/>
        <source> (key %1)</source>
        <translation> (clé %1)</translation>
    </message>
</context>
<context>
    <name>FileOutputInterface</name>
    <message>
        <location filename="../host/interface/fileoutputinterface.cpp" line="+37"/>
        <source>Setup file could not be read: %1</source>
        <translation>Le fichier de configuration n&apos;a pas pu être lu&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>not a JSON object</source>
        <translation>pas un objet JSON</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The unusable setup file %1 could not be kept aside; it is left unchanged.</source>
        <translation>Le fichier de configuration inutilisable %1 n&apos;a pas pu être mis de côté&#xa0;; il reste inchangé.</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+6"/>
        <source>Couldn&apos;t write the setup file %1: %2</source>
        <translation>Impossible d&apos;écrire le fichier de configuration %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <location filename="../apps/quillon/hostsession.cpp" line="+25"/>
        <source>Data folder: %1</source>
        <translation>Dossier de données&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+18"/>
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
        <location line="+10"/>
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
        <location filename="../apps/quillon/mainwindow.cpp" line="+37"/>
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
        <location line="+8"/>
        <source>The setup could not be saved; see the log.</source>
        <translation>La configuration n&apos;a pas pu être enregistrée&#xa0;; voir le journal.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Setup saved (%1).</source>
        <translation>Configuration enregistrée (%1).</translation>
    </message>
    <message>
        <location line="+40"/>
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
        <location line="+16"/>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>No saved servers</source>
        <translation>Aucun serveur enregistré</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Unnamed</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Nothing running</source>
        <translation>Rien en cours</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Warning; see the log.</source>
        <translation>Avertissement&#xa0;; voir le journal.</translation>
    </message>
</context>
<context>
    <name>OutputDialogRegistry</name>
    <message>
        <location filename="../apps/quillon/outputdialogregistry.cpp" line="+23"/>
        <source>File naming: &quot;%1&quot; gives %2</source>
        <translation>Nommage des fichiers&#xa0;: «&#xa0;%1&#xa0;» donne %2</translation>
    </message>
    <message>
        <location line="+34"/>
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
        <source>File Naming…</source>
        <translation>Nommage des fichiers…</translation>
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
    <name>main</name>
    <message>
        <location filename="../apps/quillon/main.cpp" line="+52"/>
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
        <source>Screenshot %1</source>
        <translation>Capture d&apos;écran %1</translation>
    </message>
</context>
</TS>
