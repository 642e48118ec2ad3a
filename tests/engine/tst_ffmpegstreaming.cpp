// ctest: serial
// ctest: media
#include "engine/ffmpegbackend.h"
#include "support/engineoutputs.h"
#include "support/mediaprobe.h"
#include "support/nginxrtmp.h"

#include <QtNetwork>
#include <QtTest>

using namespace EngineOutputs;

#define REQUIRE_NGINX()                                                                                                \
    if (!NginxRtmp::missingPackages().isEmpty())                                                                       \
        QSKIP(qPrintable("nginx with its RTMP module is missing (Debian packages " + NginxRtmp::missingPackages() + ")")); \
    QVERIFY(m_nginx.start())

// Streams on the real FFmpeg to real servers on loopback: nginx's RTMP module, an SRT
// listener, RTSP, TCP and UDP receivers, and a server that accepts and then says nothing.
class tst_FfmpegStreaming : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<FfmpegBackend> m_backend;
    NginxRtmp m_nginx;

    static CodecPreset stream(const QString& name, const QString& url, const QString& key = QString())
    {
        CodecPreset p;
        p.setName(name);
        p.setId(name);
        p.videoCodec() = {true, "H.264", 800, 25, 0, 320, 180, 0, 1, 1, 0, "ultrafast", "zerolatency"};
        p.audioCodec() = {true, "AAC", 48000, 96, 16, 2};
        p.container().name = "mp4";
        p.streaming().enabled = true;
        p.streaming().url = url;
        p.streaming().key = key;
        return p;
    }

    void stopAndReap(CodecPreset& p)
    {
        QuillonEngine::encoding(&p, false);
        QVERIFY(reaped(*m_backend));
    }

private slots:
    void initTestCase()
    {
        if (!MediaProbe::available())
            QSKIP("ffmpeg and ffprobe are not installed (Debian package ffmpeg)");
        m_backend = std::make_unique<FfmpegBackend>(FfmpegCapabilities::probe());
        m_backend->setFileNamer([this](const CodecPreset& p) { return m_dir.filePath(p.name() + ".mp4"); });
        RetryPolicy quick; // a reconnection shows within the test
        quick.delaysMs = {300, 600};
        m_backend->setRetryPolicy(quick);
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

    void rtmpArrivesUnderItsKeyAndIsSaved()
    {
        REQUIRE_NGINX();
        // Spaces and shell characters reach the server as typed: no shell sees them.
        const QString key = "my key;$(touch pwned)&|'\"`";
        CodecPreset p = stream("rtmp", m_nginx.url() + "/", key);
        p.local().enabled = true;
        QVERIFY(QuillonEngine::encoding(&p, true));
        QVERIFY2(waitFor("rtmp", EngineOutput::State::Running), qPrintable(status("rtmp").reason));
        QCOMPARE(status("rtmp").target, m_nginx.url() + "/••••|'\"`");

        // nginx's own view of what arrived under that name.
        QByteArray stats;
        QTRY_VERIFY_WITH_TIMEOUT((stats = m_nginx.statistics()).contains("<codec>AAC</codec>"), 10000);
        const int at = stats.indexOf("<name>my key;$(touch pwned)&amp;|'&quot;`</name>");
        QVERIFY2(at > 0, stats.constData());
        QVERIFY(stats.indexOf("<width>320</width><height>180</height><frame_rate>25</frame_rate><codec>H264</codec>", at) > at);
        // Progress as the running list shows it, after a couple of reports.
        QTest::qWait(2200);
        const EngineOutput running = status("rtmp");
        QVERIFY2(running.fps > 20 && running.bitRateKbps > 400 && running.bitRateKbps < 2000,
                 qPrintable(QString("%1 fps %2 kbps").arg(running.fps).arg(running.bitRateKbps)));
        QCOMPARE(status("rtmp#save").state, EngineOutput::State::Running);
        stopAndReap(p);
        QVERIFY(!QFileInfo::exists("pwned"));
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_dir.filePath("rtmp.mp4"))) > 1.0);
    }

    void reconnectsWhenTheServerComesBack()
    {
        REQUIRE_NGINX();
        CodecPreset p = stream("again", m_nginx.url(), "0123456789secret");
        QVERIFY(QuillonEngine::encoding(&p, true));
        QVERIFY(waitFor("again", EngineOutput::State::Running));
        QSignalSpy messages(&QuillonEngine::instance(), &QuillonEngine::engineMessage);
        m_nginx.kill();
        QVERIFY(waitFor("again", EngineOutput::State::Retrying));
        QVERIFY(!status("again").reason.isEmpty());
        QVERIFY(status("again").attempt >= 1 && status("again").maxAttempts == 10);
        QVERIFY(m_nginx.start());
        QVERIFY(waitFor("again", EngineOutput::State::Running, 20000));
        const QJsonObject video = MediaProbe::stream(MediaProbe::probe(m_nginx.url() + "/0123456789secret"), "video");
        QCOMPARE(video.value("codec_name").toString() + " " + video.value("r_frame_rate").toString(), QString("h264 25/1"));
        QStringList told;
        for (const QList<QVariant>& m : messages)
            told << m.at(0).toString().section(':', 0, 0);
        QVERIFY2(told.contains("Stream \"again\" failed") && told.contains("Stream \"again\" is running again"),
                 qPrintable(told.join('|')));
        for (const QList<QVariant>& m : messages)
            QVERIFY(!m.at(0).toString().contains("0123456789secret"));
        stopAndReap(p);
    }

    void stalledServerFailsAloneWithAReason()
    {
        REQUIRE_NGINX();
        QTcpServer silent; // accepts, then never answers
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        CodecPreset good = stream("good", m_nginx.url(), "good");
        CodecPreset stalled = stream("stalled", QString("rtmp://127.0.0.1:%1/live").arg(silent.serverPort()), "k");
        QVERIFY(QuillonEngine::encoding(&good, true) && QuillonEngine::encoding(&stalled, true));
        QVERIFY(waitFor("stalled", EngineOutput::State::Retrying, 15000));
        QVERIFY(status("stalled").reason.endsWith("Connection timed out"));
        QCOMPARE(status("good").state, EngineOutput::State::Running);
        QuillonEngine::encoding(&stalled, false);
        stopAndReap(good);
    }

    void srtCarriesItsPassphrase()
    {
        const QString listener = QStandardPaths::findExecutable("srt-live-transmit");
        if (listener.isEmpty())
            QSKIP("srt-live-transmit is not installed (Debian package srt-tools)");
        QUdpSocket probe;
        probe.bind(QHostAddress(QHostAddress::LocalHost), 0);
        const quint16 port = probe.localPort();
        probe.close();
        QProcess server;
        server.setStandardOutputFile(m_dir.filePath("srt.ts"));
        server.start(listener, {"-q", QString("srt://127.0.0.1:%1?mode=listener&passphrase=0123456789-abc&pbkeylen=16").arg(port),
                                "file://con"});
        QVERIFY(server.waitForStarted());

        CodecPreset wrong = stream("wrong", "srt://127.0.0.1");
        wrong.streaming().port = port;
        wrong.streaming().passphrase = "not the passphrase";
        QVERIFY(QuillonEngine::encoding(&wrong, true));
        QVERIFY(waitFor("wrong", EngineOutput::State::Retrying, 15000));
        QVERIFY(!status("wrong").reason.contains("not the passphrase"));
        QuillonEngine::encoding(&wrong, false);

        CodecPreset right = stream("right", QString("srt://127.0.0.1:%1").arg(port));
        right.streaming().mode = "caller";
        right.streaming().passphrase = "0123456789-abc";
        right.streaming().keyLength = 16;
        right.streaming().latency = 120;
        right.streaming().streamId = "programme";
        QVERIFY(QuillonEngine::encoding(&right, true));
        QVERIFY2(waitFor("right", EngineOutput::State::Running), qPrintable(status("right").reason));
        QTest::qWait(2000);
        stopAndReap(right);
        server.kill();
        server.waitForFinished();
        const QJsonObject probed = MediaProbe::probe(m_dir.filePath("srt.ts"));
        QCOMPARE(MediaProbe::stream(probed, "video").value("codec_name").toString(), QStringLiteral("h264"));
    }

    void plainProtocolsReachTheirServer_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QStringList>("listen"); // FFmpeg itself is the server that takes the stream
        QTest::newRow("tcp") << "tcp://127.0.0.1:%1" << QStringList{"-i", "tcp://127.0.0.1:%1?listen=1"};
        QTest::newRow("udp") << "udp://127.0.0.1:%1" << QStringList{"-i", "udp://127.0.0.1:%1"};
        QTest::newRow("rtsp") << "rtsp://127.0.0.1:%1/live" << QStringList{"-rtsp_flags", "listen", "-i", "rtsp://127.0.0.1:%1/live"};
    }
    void plainProtocolsReachTheirServer()
    {
        QFETCH(QString, url);
        QFETCH(QStringList, listen);
        QTcpServer free;
        free.listen(QHostAddress::LocalHost);
        const quint16 port = free.serverPort();
        free.close();
        QProcess server;
        server.start("ffmpeg", QStringList{"-hide_banner", "-loglevel", "error", "-analyzeduration", "1000000"}
                                   + listen.replaceInStrings("%1", QString::number(port))
                                   + QStringList{"-t", "2", "-c", "copy", "-y", m_dir.filePath("received.mkv")});
        QVERIFY(server.waitForStarted());
        QTest::qWait(500);
        CodecPreset p = stream("plain", url.arg(port));
        QVERIFY(QuillonEngine::encoding(&p, true));
        QVERIFY(server.waitForFinished(15000));
        stopAndReap(p);
        const QJsonObject probed = MediaProbe::probe(m_dir.filePath("received.mkv"));
        QCOMPARE(MediaProbe::stream(probed, "video").value("codec_name").toString(), QStringLiteral("h264"));
    }
};

QTEST_MAIN(tst_FfmpegStreaming)
#include "tst_ffmpegstreaming.moc"
