#include "support/testkit.h"

#include <QtTest>
#include <QtWidgets>

#ifdef QUILLON_CONSOLE
#include "quillon/activitylog.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/translations.h"
#include "recording/recordingsetup.h"
#endif

using TestKit::readFile;

// Starts the built reference host as an operator would and checks what it leaves behind, and
// that it speaks the operator's language: the system's, or the one --lang names.
class tst_Quillon : public QObject
{
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QString log; // stdout and the log lines (stderr)
    };

    // In English unless told otherwise: the log lines are read back.
    static Run start(QStringList arguments, const QString& systemLanguage = "C")
    {
        if (!arguments.contains("--help") && !arguments.contains("--lang"))
            arguments << "--lang" << "en";
        Run run;
#ifdef QUILLON_EXECUTABLE
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_LOGGING_RULES", "*.debug=false;quillon.app.info=true");
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"})
            env.remove(name);
        env.insert("LANG", systemLanguage);
        process.setProcessEnvironment(env);
        process.start(QUILLON_EXECUTABLE, arguments);
        if (!process.waitForFinished(60000)) {
            process.kill();
            process.waitForFinished();
            return run;
        }
        run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.log = QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
#else
        Q_UNUSED(arguments)
        Q_UNUSED(systemLanguage)
#endif
        return run;
    }
    static Run start(const QTemporaryDir& shots, const QTemporaryDir& data)
    {
        return start({"--screenshots", shots.path(), "--data", data.path()});
    }
    static QStringList presetFiles(const QTemporaryDir& data)
    {
        return QDir(data.filePath("codecs")).entryList({"*.json"}, QDir::Files, QDir::Name);
    }

    QTemporaryDir m_scratch;

private slots:
    void initTestCase()
    {
#ifndef QUILLON_EXECUTABLE
        QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)");
#endif
        TestKit::initDialogTest("tst_quillon");
    }

    // Every window is drawn and shown in the README and in each language's folder of
    // docs/screenshots; the starter presets are seeded once.
    void screenshotsAndSeedingOnce()
    {
        QTemporaryDir shots;
        QTemporaryDir data;
        const Run first = start(shots, data);
        QCOMPARE(first.exitCode, 0);
        const QStringList pictures = QDir(shots.path()).entryList(QDir::Files);
        for (const char* expected : {"mainwindow.png", "streaming.png", "recording.png", "filenaming.png"})
            QVERIFY2(pictures.contains(QLatin1String(expected)), qPrintable(first.log));
#ifdef STREAMING_SOURCE_DIR
        const QString readme = QString::fromUtf8(readFile(STREAMING_SOURCE_DIR "/README.md"));
        const QDir docs(STREAMING_SOURCE_DIR "/docs/screenshots");
        QStringList folders{"."};
        for (const QString& ts : QDir(STREAMING_SOURCE_DIR "/translations").entryList({"libstreaming_*.ts"}))
            folders.append(ts.section('_', 1).section('.', 0, 0));
        QStringList missing;
        for (const QString& file : pictures) {
            if (!readme.contains("docs/screenshots/" + file))
                missing.append("README.md: docs/screenshots/" + file);
            for (const QString& folder : folders)
                if (!docs.exists(folder + '/' + file))
                    missing.append(QDir::cleanPath(docs.filePath(folder + '/' + file)));
        }
        QVERIFY2(missing.isEmpty(), qPrintable("run bash scripts/screenshots.sh and show new pictures in README.md:\n"
                                               + missing.join('\n')));
#endif
        for (const QString& file : pictures) {
            const QImage image(shots.filePath(file));
            QSet<QRgb> colours;
            for (int y = 0; y < image.height() && colours.size() < 2; y += 3)
                for (int x = 0; x < image.width() && colours.size() < 2; x += 3)
                    colours.insert(image.pixel(x, y));
            QVERIFY2(file.endsWith(".png") && image.width() > 100 && colours.size() > 1, qPrintable(file));
        }

        const QStringList seeded = presetFiles(data);
        QCOMPARE(seeded.size(), 6);
        QVERIFY(seeded.contains("Apple ProRes 1080i59.94 HQ, PCMStereo 48kHz.json"));
        QVERIFY(first.log.contains("Seeded 6 starter codec preset"));
        // The licence and project files hold every member, ready for the operator to edit.
        const QJsonObject limits = QJsonDocument::fromJson(readFile(data.filePath("license.json"))).object();
        QVERIFY(limits.value("MaxStreaming").toInt() == 4 && limits.value("DisabledCodecs").isArray());
        QVERIFY(QFile::exists(data.filePath("project.json")));

        // A preset the operator deleted stays deleted: nothing is seeded again.
        QVERIFY(QFile::remove(data.filePath("codecs/" + seeded.first())));
        const Run second = start(shots, data);
        QCOMPARE(second.exitCode, 0);
        QVERIFY2(!second.log.contains("Seeded") && second.log.contains("Codec presets: 5,"), qPrintable(second.log));
        QCOMPARE(presetFiles(data).size(), 5);
    }

    void damagedFilesStartWithDefaults()
    {
        QTemporaryDir shots;
        QTemporaryDir data;
        const QByteArray setup = "{\"RECORDING\": [";
        const QByteArray licence = R"({"MaxStreaming": 1, "MaxRecording": "two", "MaxWidth": 1920, "MaxHeight": 1080})";
        QVERIFY(TestKit::writeFile(data.filePath("setup.json"), setup));
        QVERIFY(TestKit::writeFile(data.filePath("project.json"), "1080p"));
        QVERIFY(TestKit::writeFile(data.filePath("license.json"), licence));

        const Run run = start(shots, data);
        QCOMPARE(run.exitCode, 0);
        for (const char* expected : {"The setup file was damaged and has been kept as ", "project.json is not valid",
                                     "Licence: 1 streams, 4 recordings, 8 ISO recordings, 4 outputs, up to 1920x1080."})
            QVERIFY2(run.log.contains(QLatin1String(expected)), qPrintable(run.log));
        QCOMPARE(presetFiles(data).size(), 6);
        // A damaged setup is kept aside; licence and project files are the operator's to fix: left as they were.
        const QStringList aside = QDir(data.path()).entryList({"setup.json.corrupt-*"}, QDir::Files);
        QCOMPARE(aside.size(), 1);
        QCOMPARE(readFile(data.filePath(aside.first())), setup);
        QCOMPARE(readFile(data.filePath("project.json")), QByteArray("1080p"));
        QCOMPARE(readFile(data.filePath("license.json")), licence);
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("systemLanguage");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the system's language") << QStringList{"--help"} << "fr_FR.UTF-8" << 0
                                               << "Console de sorties Quillon";
        QTest::newRow("--lang before the system's")
            << QStringList{"--lang", "de", "--help"} << "fr_FR.UTF-8" << 0 << "Quillon-Ausgabekonsole";
        QTest::newRow("unknown language") << QStringList{"--lang", "xx"} << "C" << 2 << "Unknown language: xx";
        // Rendered in German from the .qm files of the build tree.
        QTest::newRow("screenshots in German")
            << QStringList{"--lang", "de", "--screenshots", m_scratch.filePath("shots"), "--data", m_scratch.filePath("data")}
            << "C" << 0 << "Bildschirmfoto " + QDir::toNativeSeparators(m_scratch.filePath("shots/recording.png"));
    }
    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, systemLanguage);
        const Run run = start(arguments, systemLanguage);
        QTEST(run.exitCode, "exitCode");
        QFETCH(QString, expected);
        QVERIFY2(run.log.contains(expected), qPrintable(run.log));
    }

    // In-process, the console's and the library's own texts come from their translations.
    void consoleAndDialogsInGerman()
    {
#ifdef QUILLON_CONSOLE
        Translations translations;
        QVERIFY(translations.install(QLocale("de"), Translations::folders(QFileInfo(QUILLON_EXECUTABLE).absolutePath())));
        QTemporaryDir data;
        ActivityLog log;
        HostSession session(data.path(), &log);
        MainWindow window(session);
        auto* open = window.findChild<QPushButton*>(QStringLiteral("recordingButton"));
        QCOMPARE(open->text(), QString::fromUtf8("Aufnahme…"));
        open->click();
        auto* dialog = window.findChild<RecordingSetup*>();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->windowTitle(), QString("Aufnahme"));
        dialog->close();
#endif
    }
};

QTEST_MAIN(tst_Quillon)
#include "tst_quillon.moc"
