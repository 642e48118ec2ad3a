#include <QtTest>

// Starts the built reference host as an operator would and checks what it leaves behind.
class tst_Quillon : public QObject
{
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QString log; // the host's log lines (stderr)
    };

    static Run start(const QStringList& arguments)
    {
        Run run;
#ifdef QUILLON_EXECUTABLE
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=false;quillon.app.info=true"));
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(QUILLON_EXECUTABLE), arguments);
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

    static QStringList presetFiles(const QString& dataDir)
    {
        return QDir(dataDir + QStringLiteral("/codecs")).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    }

    static int colourCount(const QImage& image)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < image.height() && colours.size() < 3; y += 3)
            for (int x = 0; x < image.width() && colours.size() < 3; x += 3)
                colours.insert(image.pixel(x, y));
        return colours.size();
    }

private slots:
    void initTestCase()
    {
#ifndef QUILLON_EXECUTABLE
        QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)");
#endif
    }

    void screenshotsOfEveryWindow_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("console") << QStringLiteral("mainwindow.png");
        QTest::newRow("streaming dialog") << QStringLiteral("streaming.png");
        QTest::newRow("recording dialog") << QStringLiteral("recording.png");
        QTest::newRow("file naming dialog") << QStringLiteral("filenaming.png");
    }
    void screenshotsOfEveryWindow()
    {
        QFETCH(QString, file);
        QTemporaryDir shots;
        QTemporaryDir data;
        const Run run = start({QStringLiteral("--screenshots"), shots.path(), QStringLiteral("--data"), data.path()});
        QCOMPARE(run.exitCode, 0);

        const QImage image(shots.filePath(file));
        QVERIFY2(!image.isNull(), qPrintable(file + QStringLiteral(" missing; log:\n") + run.log));
        QVERIFY(image.width() > 100 && image.height() > 100);
        QVERIFY2(colourCount(image) > 1, qPrintable(file + QStringLiteral(" is one colour")));
        // Nothing but the pictures goes into the screenshot folder.
        for (const QString& name : QDir(shots.path()).entryList(QDir::Files))
            QVERIFY2(name.endsWith(QStringLiteral(".png")), qPrintable(name));
    }

    void firstRunWritesDefaultsAndSeedsOnce()
    {
        QTemporaryDir shots;
        QTemporaryDir data;
        const QStringList args{QStringLiteral("--screenshots"), shots.path(), QStringLiteral("--data"), data.path()};

        const Run first = start(args);
        QCOMPARE(first.exitCode, 0);
        const QStringList seeded = presetFiles(data.path());
        QCOMPARE(seeded.size(), 6);
        QVERIFY(seeded.contains(QStringLiteral("H.264 1080p29.97 2s 6Mbps, AACStereo 48kHz 192kbps.json")));
        QVERIFY(seeded.contains(QStringLiteral("Apple ProRes 1080i59.94 HQ, PCMStereo 48kHz.json")));
        QVERIFY(first.log.contains(QStringLiteral("Seeded 6 starter codec preset")));
        QVERIFY(first.log.contains(QStringLiteral("Codec presets: 6,")));

        // The licence and project files hold every member, ready for the operator to edit.
        QFile license(data.filePath(QStringLiteral("license.json")));
        QVERIFY(license.open(QIODevice::ReadOnly));
        const QJsonObject limits = QJsonDocument::fromJson(license.readAll()).object();
        QCOMPARE(limits.value(QStringLiteral("MaxStreaming")).toInt(), 4);
        QVERIFY(limits.value(QStringLiteral("DisabledCodecs")).isArray());
        QVERIFY(QFile::exists(data.filePath(QStringLiteral("project.json"))));

        // Second start: the presets are found, nothing is seeded again.
        const Run second = start(args);
        QCOMPARE(second.exitCode, 0);
        QCOMPARE(presetFiles(data.path()), seeded);
        QVERIFY2(!second.log.contains(QStringLiteral("Seeded")), qPrintable(second.log));
        QVERIFY(second.log.contains(QStringLiteral("Codec presets: 6,")));

        // A preset the operator deleted stays deleted.
        QVERIFY(QFile::remove(data.filePath(QStringLiteral("codecs/") + seeded.first())));
        const Run third = start(args);
        QCOMPARE(third.exitCode, 0);
        QCOMPARE(presetFiles(data.path()).size(), 5);
        QVERIFY(third.log.contains(QStringLiteral("Codec presets: 5,")));
    }

    void loweredLimitsAreRead()
    {
        QTemporaryDir shots;
        QTemporaryDir data;
        QFile license(data.filePath(QStringLiteral("license.json")));
        QVERIFY(license.open(QIODevice::WriteOnly));
        license.write(R"({"MaxStreaming": 1, "MaxRecording": "two", "MaxWidth": 1920, "MaxHeight": 1080})");
        license.close();

        const Run run = start({QStringLiteral("--screenshots"), shots.path(), QStringLiteral("--data"), data.path()});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.log.contains(QStringLiteral("Licence: 1 streams, 4 recordings, 8 ISO recordings, 4 outputs, "
                                                 "up to 1920x1080.")),
                 qPrintable(run.log));
        // The operator's file is read, never rewritten.
        QVERIFY(license.open(QIODevice::ReadOnly));
        QVERIFY(license.readAll().contains("\"two\""));
    }

    void corruptFiles_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expectedLog");
        QTest::addColumn<bool>("keptAside");

        QTest::newRow("setup truncated") << QStringLiteral("setup.json") << QByteArray("{\"RECORDING\": [")
                                         << QStringLiteral("The setup file was damaged and has been kept as ")
                                         << true;
        QTest::newRow("setup is an array") << QStringLiteral("setup.json") << QByteArray("[]")
                                           << QStringLiteral("starting with default settings.") << true;
        QTest::newRow("project not JSON") << QStringLiteral("project.json") << QByteArray("1080p")
                                          << QStringLiteral("project.json is not valid") << false;
        QTest::newRow("licence an array") << QStringLiteral("license.json") << QByteArray("[4]")
                                          << QStringLiteral("license.json is not valid") << false;
    }
    void corruptFiles()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, expectedLog);
        QFETCH(bool, keptAside);
        QTemporaryDir shots;
        QTemporaryDir data;
        QFile damaged(data.filePath(file));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write(content);
        damaged.close();

        const Run run = start({QStringLiteral("--screenshots"), shots.path(), QStringLiteral("--data"), data.path()});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.log.contains(expectedLog), qPrintable(run.log));
        // The host started with defaults and drew its window.
        QVERIFY(QFile::exists(shots.filePath(QStringLiteral("mainwindow.png"))));
        QCOMPARE(presetFiles(data.path()).size(), 6);

        const QStringList aside =
            QDir(data.path()).entryList({file + QStringLiteral(".corrupt-*")}, QDir::Files | QDir::Hidden);
        if (keptAside) {
            QCOMPARE(aside.size(), 1);
            QFile kept(data.filePath(aside.first()));
            QVERIFY(kept.open(QIODevice::ReadOnly));
            QCOMPARE(kept.readAll(), content);
        } else {
            // Licence and project files are the operator's to fix: left exactly as they were.
            QVERIFY(aside.isEmpty());
            QVERIFY(damaged.open(QIODevice::ReadOnly));
            QCOMPARE(damaged.readAll(), content);
        }
    }

    void badArgumentsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--colour")} << 2;
        QTest::newRow("stray argument") << QStringList{QStringLiteral("extra")} << 2;
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0;
    }
    void badArgumentsAreRefused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QTemporaryDir data;
        const Run run = start(arguments << QStringLiteral("--data") << data.path());
        QCOMPARE(run.exitCode, exitCode);
    }

    void unwritableScreenshotFolderFails()
    {
        QTemporaryDir data;
        QFile blocker(data.filePath(QStringLiteral("blocker")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Run run = start({QStringLiteral("--screenshots"), blocker.fileName() + QStringLiteral("/shots"),
                               QStringLiteral("--data"), data.path()});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.log.contains(QStringLiteral("could not be created")));
    }
};

QTEST_GUILESS_MAIN(tst_Quillon)
#include "tst_quillon.moc"
