// ctest: media
#include "engine/ffmpegbackend.h"
#include "engine/quillonengine.h"
#include "support/filesizelimit.h"
#include "support/mediaprobe.h"

#include <QtTest>

#include <csignal>
#include <sys/wait.h>

// Recordings on the real FFmpeg: what the files hold, how they end, what is refused.
class tst_FfmpegRecording : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<FfmpegBackend> m_backend;

    static CodecPreset preset(const QString& name, const QString& codec, const QString& container)
    {
        CodecPreset p;
        p.setName(name);
        p.setId(name);
        p.videoCodec() = {true, codec, 1000, 25, 0, 320, 180, 0, 1, 1, 0, QStringLiteral("ultrafast"), QString()};
        p.audioCodec() = {true, QStringLiteral("AAC"), 48000, 128, 16, 2};
        p.container().name = container;
        p.local().enabled = true;
        return p;
    }

    CodecPreset inFolder(CodecPreset p) const
    {
        p.local().path = m_dir.path();
        return p;
    }

    static EngineOutput status(const QString& key)
    {
        for (const EngineOutput& o : QuillonEngine::outputs())
            if (o.key == key)
                return o;
        return {};
    }

    static bool waitFor(const QString& key, EngineOutput::State state, int ms = 15000)
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < ms) {
            if (status(key).state == state)
                return true;
            QTest::qWait(50);
        }
        return false;
    }

    // Records for about a second and a half, then stops as the operator's button does.
    QString record(CodecPreset p)
    {
        if (!QuillonEngine::encoding(&p, true) || !waitFor(p.id(), EngineOutput::State::Running))
            return QString();
        QTest::qWait(1500);
        const QString file = status(p.id()).target;
        QuillonEngine::encoding(&p, false);
        QElapsedTimer clock;
        clock.start();
        while (!m_backend->processIds().isEmpty() && clock.elapsed() < 10000)
            QTest::qWait(50);
        return m_backend->processIds().isEmpty() ? file : QString();
    }

private slots:
    void initTestCase()
    {
        if (!MediaProbe::available())
            QSKIP("ffmpeg and ffprobe are not installed (Debian package ffmpeg)");
        m_backend = std::make_unique<FfmpegBackend>(FfmpegCapabilities::probe());
        m_backend->setFileNamer([this](const CodecPreset& p) {
            return QDir(p.local().path.isEmpty() ? m_dir.path() : p.local().path)
                .filePath(p.name() + QLatin1Char('.') + p.container().name);
        });
        QuillonEngine::setBackend(m_backend.get());
        ProjectPreset project;
        project.videoOutput() = {320, 180, 25, false};
        QuillonEngine::setProjectPreset(project);
    }

    // A failed case must not leave its encoders to the next.
    void cleanup()
    {
        QuillonEngine::stopAll();
    }

    void cleanupTestCase()
    {
        QuillonEngine::setBackend(nullptr);
    }

    void writesWhatThePresetAsks_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("video");  // codec_name, width x height, rate, field order
        QTest::addColumn<QString>("audio");  // codec_name, sample rate, channels

        CodecPreset h264 = preset("h264", "H.264", "mp4");
        h264.videoCodec().profile = 2;
        h264.videoCodec().bframes = 2;
        h264.videoCodec().tune = "zerolatency";
        h264.videoCodec().preset = "veryfast"; // a profile is a ceiling: ultrafast never needs High
        QTest::newRow("H.264 high in mp4") << h264 << "h264 High 320x180 25/1 progressive" << "aac 48000 2";

        CodecPreset hevc = preset("hevc", "HEVC", "mkv");
        hevc.audioCodec().codec = "Opus";
        hevc.audioCodec().channels = 1;
        QTest::newRow("HEVC with Opus in mkv") << hevc << "hevc Main 320x180 25/1 progressive" << "opus 48000 1";

        CodecPreset prores = preset("prores", "Apple ProRes", "mov");
        prores.videoCodec().quality = 3;
        prores.videoCodec().frameRate = 30000.0 / 1001;
        prores.audioCodec().codec = "PCM";
        QTest::newRow("ProRes HQ at 29.97 in mov") << prores << "prores HQ 320x180 30000/1001 progressive"
                                                 << "pcm_s16le 48000 2";

        CodecPreset mpeg2 = preset("mpeg2", "MPEG-2", "ts");
        mpeg2.videoCodec().width = 720;
        mpeg2.videoCodec().height = 576;
        mpeg2.videoCodec().field = 1;
        mpeg2.audioCodec().codec = "MP3";
        QTest::newRow("MPEG-2 576i in ts") << mpeg2 << "mpeg2video Main 720x576 25/1 tt" << "mp3 48000 2";

        CodecPreset dv = preset("dv", "DV25", "mov");
        dv.audioCodec().codec = "PCM";
        QTest::newRow("DV25 is NTSC whatever the project") << dv << "dvvideo  720x480 30000/1001 bb"
                                                           << "pcm_s16le 48000 2";

        CodecPreset mjpeg = preset("mjpeg", "MJPEG", "avi");
        mjpeg.videoCodec().bitRate = 20000;
        mjpeg.audioCodec().codec = "PCM";
        mjpeg.audioCodec().sampleRate = 44100;
        QTest::newRow("MJPEG with PCM in avi") << mjpeg << "mjpeg Baseline 320x180 25/1 progressive"
                                               << "pcm_s16le 44100 2";

        CodecPreset dnxhd = preset("dnxhd", "DNxHD", "mov");
        dnxhd.videoCodec().width = 1280;
        dnxhd.videoCodec().height = 720;
        dnxhd.videoCodec().bitRate = 60000;
        dnxhd.audioCodec().codec = "AC3";
        QTest::newRow("DNxHD 720p in mov") << dnxhd << "dnxhd DNXHD 1280x720 25/1 progressive" << "ac3 48000 2";

        CodecPreset av1 = preset("av1", "AV1", "mkv");
        av1.audioCodec().enabled = false;
        QTest::newRow("AV1 without audio in mkv") << av1 << "av1 Main 320x180 25/1 progressive" << "";
    }
    void writesWhatThePresetAsks()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, video);
        QFETCH(QString, audio);
        const QString file = record(inFolder(preset));
        QVERIFY2(!file.isEmpty(), qPrintable(status(preset.id()).reason));
        QCOMPARE(QFileInfo(file).fileName(), preset.name() + "." + preset.container().name);

        // ffprobe reads the duration from the index: the file was closed properly.
        const QJsonObject probed = MediaProbe::probe(file);
        const QJsonObject v = MediaProbe::stream(probed, "video");
        const QString field = v.value("field_order").toString("progressive");
        QCOMPARE(QStringLiteral("%1 %2 %3x%4 %5 %6")
                     .arg(v.value("codec_name").toString(), v.value("profile").toString())
                     .arg(v.value("width").toInt())
                     .arg(v.value("height").toInt())
                     .arg(v.value("r_frame_rate").toString(), field == "unknown" ? "progressive" : field),
                 video);
        const QJsonObject a = MediaProbe::stream(probed, "audio");
        QCOMPARE(a.isEmpty() ? QString()
                             : QStringLiteral("%1 %2 %3")
                                   .arg(a.value("codec_name").toString(), a.value("sample_rate").toString())
                                   .arg(a.value("channels").toInt()),
                 audio);
        QVERIFY2(MediaProbe::duration(probed) > 1.0 && MediaProbe::duration(probed) < 4.0,
                 qPrintable(QString::number(MediaProbe::duration(probed))));
    }

    void refusesBeforeStart_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("sentence");

        CodecPreset wmv = preset("wmv", "WMV", "mov");
        QTest::newRow("codec the container cannot hold") << wmv << "WMV video cannot be written into MOV.";
        CodecPreset opus = preset("opus", "H.264", "mov");
        opus.audioCodec().codec = "Opus";
        QTest::newRow("audio the container cannot hold") << opus << "Opus audio cannot be written into MOV.";
        QTest::newRow("hand-edited codec name") << preset("edited", "H.266", "mp4")
                                                << "The video codec \"H.266\" is unknown to the engine.";
        CodecPreset tune = preset("tune", "HEVC", "mp4");
        tune.videoCodec().tune = "film";
        QTest::newRow("tune the encoder lacks") << tune << "HEVC has no tune \"film\"; choose another tune.";
        CodecPreset dnxhd = preset("dnx", "DNxHD", "mov");
        dnxhd.videoCodec().width = 1280;
        dnxhd.videoCodec().height = 720;
        dnxhd.videoCodec().bitRate = 185000;
        QTest::newRow("rate the encoder's table lacks")
            << dnxhd << "DNxHD cannot encode the settings of \"dnx\" here: video parameters incompatible with DNxHD.";
        CodecPreset folder = preset("folder", "H.264", "mp4");
        folder.local().path = QStringLiteral("/proc/version/sub");
        QTest::newRow("folder that cannot be written")
            << folder << "The folder /proc/version/sub cannot be written; choose another location for \"folder\".";
    }
    void refusesBeforeStart()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, sentence);
        if (preset.local().path.isEmpty())
            preset = inFolder(preset);
        QSignalSpy messages(&QuillonEngine::instance(), &QuillonEngine::engineMessage);
        QVERIFY(!QuillonEngine::encoding(&preset, true));
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.at(0).at(0).toString().startsWith(sentence), qPrintable(messages.at(0).at(0).toString()));
        QVERIFY(messages.at(0).at(1).toBool());
        QVERIFY(QuillonEngine::outputs().isEmpty());
        QVERIFY(!QFileInfo::exists(m_dir.filePath(preset.name() + "." + preset.container().name)));
    }

    void splitsAtTheInterval()
    {
        CodecPreset p = inFolder(preset("split %Y", "H.264", "mp4"));
        p.local().splitTime = 1;
        QVERIFY(QuillonEngine::encoding(&p, true));
        QVERIFY(waitFor(p.id(), EngineOutput::State::Running));
        QTest::qWait(2600);
        QuillonEngine::encoding(&p, false);
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->processIds().isEmpty(), 10000);
        // The first file has the name the console logged; the later ones are numbered.
        for (const QString& name : {QString("split %Y.mp4"), QString("split %Y 2.mp4"), QString("split %Y 3.mp4")}) {
            const QJsonObject probed = MediaProbe::probe(m_dir.filePath(name));
            QVERIFY2(MediaProbe::duration(probed) > 0.5 && MediaProbe::duration(probed) < 1.6, qPrintable(name));
        }
    }

    void fullDiskFailsOnlyThatRecordingAndKeepsItsFile()
    {
        CodecPreset other = inFolder(preset("unaffected", "H.264", "ts"));
        QVERIFY(QuillonEngine::encoding(&other, true));
        CodecPreset full = inFolder(preset("full", "MJPEG", "avi"));
        full.videoCodec().bitRate = 50000;
        full.audioCodec().codec = "PCM";
        {
            // Encoders started now inherit the limit, as if the disk filled up.
            FileSizeLimit limit(200 * 1024);
            QVERIFY(limit.isActive());
            QVERIFY(QuillonEngine::encoding(&full, true));
        }
        QVERIFY(waitFor(full.id(), EngineOutput::State::Failed));
        QVERIFY2(status(full.id()).reason.contains("File too large"), qPrintable(status(full.id()).reason));
        QVERIFY(QFileInfo(m_dir.filePath("full.avi")).size() > 0);
        QCOMPARE(status(other.id()).state, EngineOutput::State::Running);
        QuillonEngine::encoding(&full, false);
        QuillonEngine::encoding(&other, false);
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->processIds().isEmpty(), 10000);
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_dir.filePath("unaffected.ts"))) > 0.5);
    }

    void grabsAStillOfEachSource()
    {
        QSignalSpy grabbed(&QuillonEngine::instance(), &QuillonEngine::grabFinished);
        const QString png = m_dir.filePath("stills/pvw.png");
        QVERIFY(QuillonEngine::grab(2, png));
        QVERIFY(grabbed.wait(10000));
        QCOMPARE(grabbed.at(0).at(1).toString(), QString());
        QCOMPARE(QImage(png).size(), QSize(320, 180));
        QSignalSpy messages(&QuillonEngine::instance(), &QuillonEngine::engineMessage);
        QVERIFY(!QuillonEngine::grab(0, m_dir.filePath("still.svg")));
        QVERIFY(messages.at(0).at(0).toString().startsWith("A still cannot be written as \"svg\""));

        // Without a backend the engine draws the still itself.
        QuillonEngine::setBackend(nullptr);
        const QString jpg = m_dir.filePath("stand-in/pgm.jpg");
        const bool drawn = QuillonEngine::grab(0, jpg);
        QuillonEngine::setBackend(m_backend.get());
        QVERIFY(drawn);
        QVERIFY(grabbed.wait(5000));
        QCOMPARE(QImage(jpg).size(), QSize(320, 180));
    }

    // The host dies by SIGKILL while recording: its encoder notices, ends the file and exits.
    void encoderDoesNotOutliveAKilledHost()
    {
        QProcess host;
        host.start(QCoreApplication::applicationFilePath(), {"--orphan-host", m_dir.path()});
        QVERIFY(host.waitForReadyRead(15000));
        const qint64 encoder = host.readLine().trimmed().toLongLong();
        QVERIFY(encoder > 0);
        QTest::qWait(1000);
        ::kill(pid_t(host.processId()), SIGKILL);
        QVERIFY(host.waitForFinished(5000));
        QTRY_VERIFY_WITH_TIMEOUT(::kill(pid_t(encoder), 0) != 0, 10000);
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_dir.filePath("orphan.mp4"))) > 0.5);
    }
};

// As a child host: starts one recording, prints its encoder's process id and waits to be killed.
static int orphanHost(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    FfmpegBackend backend(FfmpegCapabilities::probe());
    ProjectPreset project;
    project.videoOutput() = {320, 180, 25, false};
    CodecPreset p;
    p.setName("orphan");
    p.videoCodec() = {true, "H.264", 1000, 25, 0, 320, 180, 0, 1, 1, 0, "ultrafast", QString()};
    p.audioCodec().enabled = false;
    p.container().name = "mp4";
    p.local().path = QString::fromLocal8Bit(argv[2]);
    QString refusal;
    if (!backend.start("orphan", p, project, &refusal))
        return 1;
    QTextStream(stdout) << backend.processIds().value(0) << Qt::endl;
    return app.exec();
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--orphan-host") == 0)
        return orphanHost(argc, argv);
    QApplication app(argc, argv);
    tst_FfmpegRecording test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ffmpegrecording.moc"
