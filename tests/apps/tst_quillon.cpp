#include "support/testkit.h"

#include <QtTest>

using TestKit::readFile;

// Starts the built reference host as an operator would and checks what it leaves behind.
class tst_Quillon : public QObject
{
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QString log; // the host's log lines (stderr)
    };

    static Run start(const QTemporaryDir& shots, const QTemporaryDir& data)
    {
        // In English whatever the machine's language: the log lines are read back.
        const QStringList arguments{"--screenshots", shots.path(), "--data", data.path(), "--lang", "en"};
        Run run;
#ifdef QUILLON_EXECUTABLE
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_LOGGING_RULES", "*.debug=false;quillon.app.info=true");
        process.setProcessEnvironment(env);
        process.start(QUILLON_EXECUTABLE, arguments);
        if (!process.waitForFinished(60000)) {
            process.kill();
            process.waitForFinished();
            return run;
        }
        run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        run.log = QString::fromUtf8(process.readAllStandardError());
#else
        Q_UNUSED(arguments)
#endif
        return run;
    }
    static QStringList presetFiles(const QTemporaryDir& data)
    {
        return QDir(data.filePath("codecs")).entryList({"*.json"}, QDir::Files, QDir::Name);
    }

private slots:
    void initTestCase()
    {
#ifndef QUILLON_EXECUTABLE
        QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)");
#endif
    }

    void screenshotsAndSeedingOnce()
    {
        QTemporaryDir shots;
        QTemporaryDir data;
        const Run first = start(shots, data);
        QCOMPARE(first.exitCode, 0);
        // Every window is drawn, and nothing but the pictures goes into the screenshot folder.
        const QStringList pictures = QDir(shots.path()).entryList(QDir::Files);
        for (const char* expected : {"mainwindow.png", "streaming.png", "recording.png", "filenaming.png"})
            QVERIFY2(pictures.contains(QLatin1String(expected)), qPrintable(first.log));
        for (const QString& file : pictures) {
            QVERIFY2(file.endsWith(".png"), qPrintable(file));
            const QImage image(shots.filePath(file));
            QVERIFY2(image.width() > 100 && image.height() > 100, qPrintable(file + " missing; log:\n" + first.log));
            QSet<QRgb> colours;
            for (int y = 0; y < image.height() && colours.size() < 2; y += 3)
                for (int x = 0; x < image.width() && colours.size() < 2; x += 3)
                    colours.insert(image.pixel(x, y));
            QVERIFY2(colours.size() > 1, qPrintable(file + " is one colour"));
        }

        const QStringList seeded = presetFiles(data);
        QCOMPARE(seeded.size(), 6);
        QVERIFY(seeded.contains("H.264 1080p29.97 2s 6Mbps, AACStereo 48kHz 192kbps.json"));
        QVERIFY(seeded.contains("Apple ProRes 1080i59.94 HQ, PCMStereo 48kHz.json"));
        QVERIFY(first.log.contains("Seeded 6 starter codec preset"));
        // The licence and project files hold every member, ready for the operator to edit.
        const QJsonObject limits = QJsonDocument::fromJson(readFile(data.filePath("license.json"))).object();
        QCOMPARE(limits.value("MaxStreaming").toInt(), 4);
        QVERIFY(limits.value("DisabledCodecs").isArray());
        QVERIFY(QFile::exists(data.filePath("project.json")));

        // Second start: the presets are found, nothing is seeded again.
        const Run second = start(shots, data);
        QCOMPARE(second.exitCode, 0);
        QCOMPARE(presetFiles(data), seeded);
        QVERIFY2(!second.log.contains("Seeded"), qPrintable(second.log));
        QVERIFY(second.log.contains("Codec presets: 6,"));

        // A preset the operator deleted stays deleted.
        QVERIFY(QFile::remove(data.filePath("codecs/" + seeded.first())));
        QCOMPARE(start(shots, data).exitCode, 0);
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
        QVERIFY(QFile::exists(shots.filePath("mainwindow.png")));
        QCOMPARE(presetFiles(data).size(), 6);
        // A damaged setup is kept aside; licence and project files are the operator's to fix: left as they were.
        const QStringList aside = QDir(data.path()).entryList({"setup.json.corrupt-*"}, QDir::Files);
        QCOMPARE(aside.size(), 1);
        QCOMPARE(readFile(data.filePath(aside.first())), setup);
        QCOMPARE(readFile(data.filePath("project.json")), QByteArray("1080p"));
        QCOMPARE(readFile(data.filePath("license.json")), licence);
    }
};

QTEST_GUILESS_MAIN(tst_Quillon)
#include "tst_quillon.moc"
