#include <QtTest>
#include <QtWidgets>

#ifdef QUILLON_CONSOLE
#include "quillon/activitylog.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/translations.h"
#include "recording/recordingsetup.h"
#include "widgets/messagebox.h"

// The console in the operator's language: the system's, or the one --lang names.
class tst_Languages : public QObject
{
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QString output; // stdout and the log on stderr
    };

    static Run start(const QStringList& arguments, const QString& systemLanguage)
    {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_LOGGING_RULES", "*.debug=false;quillon.app.info=true");
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"})
            env.remove(name);
        env.insert("LANG", systemLanguage);
        process.setProcessEnvironment(env);
        process.start(QUILLON_EXECUTABLE, arguments);
        Run run;
        if (!process.waitForFinished(60000)) {
            process.kill();
            process.waitForFinished();
            return run;
        }
        run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.output = QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
        return run;
    }

    QTemporaryDir m_scratch;

private slots:
    void initTestCase()
    {
        MessageBox::setScripted(true);
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-tests"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_languages"));
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
        QTest::newRow("--lang en") << QStringList{"--lang=en", "--help"} << "de_DE.UTF-8" << 0
                                   << "Quillon output console";
        QTest::newRow("unknown language") << QStringList{"--lang", "xx"} << "C" << 2 << "Unknown language: xx";
        // Rendered in German from the .qm files of the build tree.
        QTest::newRow("screenshots in German")
            << QStringList{"--lang", "de", "--screenshots", m_scratch.filePath("shots"), "--data",
                           m_scratch.filePath("data")}
            << "C" << 0 << "Bildschirmfoto " + QDir::toNativeSeparators(m_scratch.filePath("shots/recording.png"));
    }
    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, systemLanguage);
        QFETCH(int, exitCode);
        QFETCH(QString, expected);
        const Run run = start(arguments, systemLanguage);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.output.contains(expected), qPrintable(run.output));
    }

    // Every picture the screenshot run draws is in the README and in each language's folder,
    // so a dialog added to the console shows up in the documentation.
    void readmeShowsEveryScreenshot()
    {
        const QString shots = m_scratch.filePath("readme");
        QCOMPARE(start({"--lang", "en", "--screenshots", shots, "--data", m_scratch.filePath("readme-data")}, "C")
                     .exitCode,
                 0);
        const QStringList drawn = QDir(shots).entryList({"*.png"}, QDir::Files);
        QVERIFY(drawn.contains("mainwindow.png"));
        QFile readme(STREAMING_SOURCE_DIR "/README.md");
        QVERIFY(readme.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(readme.readAll());
        const QDir docs(STREAMING_SOURCE_DIR "/docs/screenshots");
        QStringList folders{"."};
        for (const QString& ts : QDir(STREAMING_SOURCE_DIR "/translations").entryList({"libstreaming_*.ts"}))
            folders.append(ts.section('_', 1).section('.', 0, 0));
        QStringList missing;
        for (const QString& file : drawn) {
            if (!text.contains("docs/screenshots/" + file))
                missing.append("README.md: docs/screenshots/" + file);
            for (const QString& folder : folders)
                if (!docs.exists(folder + '/' + file))
                    missing.append(QDir::cleanPath(docs.filePath(folder + '/' + file)));
        }
        QVERIFY2(missing.isEmpty(), qPrintable("run bash scripts/screenshots.sh and show new pictures in README.md:\n"
                                               + missing.join('\n')));
    }

    void consoleAndDialogsInTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("yes");
        QTest::newRow("de") << "de" << QString::fromUtf8("Aufnahme…") << "Aufnahme" << "&Ja";
        QTest::newRow("fr") << "fr" << QString::fromUtf8("Enregistrement…") << "Enregistrement" << "&Oui";
    }
    void consoleAndDialogsInTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, button);
        QFETCH(QString, title);
        QFETCH(QString, yes);
        Translations translations;
        QVERIFY(translations.install(QLocale(language),
                                     Translations::folders(QFileInfo(QUILLON_EXECUTABLE).absolutePath())));

        QTemporaryDir data;
        ActivityLog log;
        HostSession session(data.path(), &log);
        MainWindow window(session);
        auto* open = window.findChild<QPushButton*>(QStringLiteral("recordingButton"));
        QVERIFY(open);
        QCOMPARE(open->text(), button);
        open->click();
        auto* dialog = window.findChild<RecordingSetup*>();
        QVERIFY(dialog && dialog->isVisible());
        // The library's own texts come from its translation.
        QCOMPARE(dialog->windowTitle(), title);
        dialog->close();

        if (!QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_" + language + ".qm"))
            QSKIP("qttranslations5-l10n is not installed: Qt's standard buttons stay English");
        QDialogButtonBox box(QDialogButtonBox::Yes);
        QCOMPARE(box.button(QDialogButtonBox::Yes)->text(), yes);
    }
};
#else
class tst_Languages : public QObject
{
    Q_OBJECT
private slots:
    void skipped() { QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)"); }
};
#endif

QTEST_MAIN(tst_Languages)
#include "tst_languages.moc"
