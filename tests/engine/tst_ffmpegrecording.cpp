// ctest: media
#include "engine/ffmpegbackend.h"
#include "support/engineoutputs.h"
#include "support/filesizelimit.h"
#include "support/mediaprobe.h"

#include <QtTest>

#include <csignal>

using namespace EngineOutputs;

namespace {

struct Row {
    const char* codec;
    const char* container;
    const char* audio; // empty: no audio
    int width, height, bitRate, quality;
    double rate;
    int field;
};

CodecPreset preset(const QString& name, const Row& r)
{
    CodecPreset p;
    p.setName(name);
    p.setId(name);
    p.videoCodec() = {true, r.codec, r.bitRate, r.rate, r.field, r.width, r.height, r.quality, 1, 2, 2, "veryfast", {}};
    p.audioCodec() = {*r.audio != 0, r.audio, 48000, 128, 16, 2};
    p.container().name = r.container;
    p.local().enabled = true;
    return p;
}

const Row h264{"H.264", "mp4", "AAC", 320, 180, 1000, 0, 25, 0};

} // namespace

// Recordings on the real FFmpeg: what the files hold, how they end, what is refused.
class tst_FfmpegRecording : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<FfmpegBackend> m_backend;

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
        QCOMPARE(zombieChildren(), 0);
    }
    void cleanupTestCase() { QuillonEngine::setBackend(nullptr); }

    void writesWhatThePresetAsks_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("expected"); // ffprobe: video codec, profile, size, rate, fields; audio

        const auto row = [](const char* name, const Row& r, const char* expected) {
            QTest::newRow(name) << preset(name, r) << expected;
        };
        row("h264", h264, "h264 High 320x180 25/1 progressive; aac 48000 2");
        row("hevc", {"HEVC", "mkv", "Opus", 320, 180, 1000, 0, 25, 0}, "hevc Main 320x180 25/1 progressive; opus 48000 2");
        row("prores", {"Apple ProRes", "mov", "PCM", 320, 180, 0, 3, 29.97, 0},
            "prores HQ 320x180 30000/1001 progressive; pcm_s16le 48000 2");
        row("mpeg2", {"MPEG-2", "ts", "MP3", 720, 576, 4000, 0, 25, 1}, "mpeg2video Main 720x576 25/1 tt; mp3 48000 2");
        row("dv", {"DV25", "mov", "PCM", 720, 480, 28770, 0, 25, 0}, "dvvideo  720x480 30000/1001 bb; pcm_s16le 48000 2");
        row("mjpeg", {"MJPEG", "avi", "PCM", 320, 180, 20000, 0, 25, 0}, "mjpeg Baseline 320x180 25/1 progressive; pcm_s16le 48000 2");
        row("dnxhd", {"DNxHD", "mov", "AC3", 1280, 720, 60000, 0, 25, 0}, "dnxhd DNXHD 1280x720 25/1 progressive; ac3 48000 2");
        row("av1", {"AV1", "mkv", "", 320, 180, 1000, 0, 25, 0}, "av1 Main 320x180 25/1 progressive; ");
    }
    void writesWhatThePresetAsks()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, expected);
        preset.local().path = m_dir.path();
        QVERIFY(QuillonEngine::encoding(&preset, true));
        QVERIFY2(waitFor(preset.id(), EngineOutput::State::Running), qPrintable(status(preset.id()).reason));
        QTest::qWait(1500);
        const QString file = status(preset.id()).target;
        QCOMPARE(QFileInfo(file).fileName(), preset.name() + "." + preset.container().name);
        QuillonEngine::encoding(&preset, false);
        QVERIFY(reaped(*m_backend));

        // ffprobe reads the duration from the index: the file was closed properly.
        const QJsonObject probed = MediaProbe::probe(file);
        const QJsonObject v = MediaProbe::stream(probed, "video");
        const QJsonObject a = MediaProbe::stream(probed, "audio");
        const QString field = v.value("field_order").toString("progressive");
        QCOMPARE(QStringLiteral("%1 %2 %3x%4 %5 %6; %7")
                     .arg(v.value("codec_name").toString(), v.value("profile").toString())
                     .arg(v.value("width").toInt())
                     .arg(v.value("height").toInt())
                     .arg(v.value("r_frame_rate").toString(), field == "unknown" ? "progressive" : field,
                          a.isEmpty() ? QString()
                                      : QStringLiteral("%1 %2 %3").arg(a.value("codec_name").toString(),
                                                                        a.value("sample_rate").toString(),
                                                                        QString::number(a.value("channels").toInt()))),
                 expected);
        QVERIFY2(MediaProbe::duration(probed) > 1.0 && MediaProbe::duration(probed) < 4.0,
                 qPrintable(QString::number(MediaProbe::duration(probed))));
    }

    void refusesBeforeStart_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("sentence");

        QTest::newRow("codec the container cannot hold")
            << preset("wmv", {"WMV", "mov", "AAC", 320, 180, 1000, 0, 25, 0}) << "WMV video cannot be written into MOV.";
        QTest::newRow("audio the container cannot hold")
            << preset("opus", {"H.264", "mov", "Opus", 320, 180, 1000, 0, 25, 0}) << "Opus audio cannot be written into MOV.";
        QTest::newRow("hand-edited codec name")
            << preset("edited", {"H.266", "mp4", "AAC", 320, 180, 1000, 0, 25, 0})
            << "The video codec \"H.266\" is unknown to the engine.";
        CodecPreset tune = preset("tune", {"HEVC", "mp4", "AAC", 320, 180, 1000, 0, 25, 0});
        tune.videoCodec().tune = "film";
        QTest::newRow("tune the encoder lacks") << tune << "HEVC has no tune \"film\"; choose another tune.";
        QTest::newRow("rate the encoder's table lacks")
            << preset("dnx", {"DNxHD", "mov", "PCM", 1280, 720, 185000, 0, 25, 0})
            << "DNxHD cannot encode the settings of \"dnx\" here: video parameters incompatible with DNxHD.";
        CodecPreset folder = preset("folder", h264);
        folder.local().path = QStringLiteral("/proc/version/sub");
        QTest::newRow("folder that cannot be written")
            << folder << "The folder /proc/version/sub cannot be written; choose another location for \"folder\".";
    }
    void refusesBeforeStart()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, sentence);
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
        CodecPreset p = preset("split %Y", h264);
        p.local().splitTime = 1;
        QVERIFY(QuillonEngine::encoding(&p, true));
        QVERIFY(waitFor(p.id(), EngineOutput::State::Running));
        QTest::qWait(2600);
        QuillonEngine::encoding(&p, false);
        QVERIFY(reaped(*m_backend));
        // The first file has the name the console logged; the later ones are numbered.
        for (const QString& name : {QString("split %Y.mp4"), QString("split %Y 2.mp4"), QString("split %Y 3.mp4")}) {
            const double seconds = MediaProbe::duration(MediaProbe::probe(m_dir.filePath(name)));
            QVERIFY2(seconds > 0.5 && seconds < 1.6, qPrintable(name));
        }
    }

    void fullDiskFailsOnlyThatRecordingAndKeepsItsFile()
    {
        CodecPreset other = preset("unaffected", {"H.264", "ts", "AAC", 320, 180, 1000, 0, 25, 0});
        QVERIFY(QuillonEngine::encoding(&other, true));
        CodecPreset full = preset("full", {"MJPEG", "avi", "PCM", 320, 180, 50000, 0, 25, 0});
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
        QVERIFY(reaped(*m_backend));
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_dir.filePath("unaffected.ts"))) > 0.5);
    }

    void grabsAStill()
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
        const bool drawn = QuillonEngine::grab(0, m_dir.filePath("stand-in/pgm.jpg"));
        QuillonEngine::setBackend(m_backend.get());
        QVERIFY(drawn && grabbed.wait(5000));
        QCOMPARE(QImage(m_dir.filePath("stand-in/pgm.jpg")).size(), QSize(320, 180));
    }

    // The host dies by SIGKILL while recording: its encoder notices, ends the file and exits.
    void encoderDoesNotOutliveAKilledHost()
    {
        QProcess host;
        host.start(QCoreApplication::applicationFilePath(), {"--orphan-host", m_dir.path()});
        QVERIFY(host.waitForReadyRead(15000));
        const pid_t encoder = pid_t(host.readLine().trimmed().toLongLong());
        QVERIFY(encoder > 0);
        QTest::qWait(1000);
        ::kill(pid_t(host.processId()), SIGKILL);
        QVERIFY(host.waitForFinished(5000));
        QTRY_VERIFY_WITH_TIMEOUT(::kill(encoder, 0) != 0, 10000);
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
    CodecPreset p = preset("orphan", {"H.264", "mp4", "", 320, 180, 1000, 0, 25, 0});
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
