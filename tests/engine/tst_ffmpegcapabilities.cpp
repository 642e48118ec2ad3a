#include "engine/ffmpegbackend.h"

#include <QtTest>

// What the engine makes of an FFmpeg that is missing, hangs, or is slow only at start-up,
// on a stand-in program: a loaded machine must not turn into "not installed" for the session.
class tst_FfmpegCapabilities : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    // hanging: the calls, counted from 0, that sleep instead of answering, as a shell case
    // pattern ("*": all, "-": none). Asked for its encoders it names a few; asked to encode,
    // it writes an empty file where the output goes; all but one-frame jobs then run until stopped.
    QString standIn(const QString& name, const QString& hanging)
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        file.write(QStringLiteral("#!/bin/sh\n"
                                  "calls=$(cat \"$0.calls\" 2>/dev/null || echo 0)\n"
                                  "echo $((calls + 1)) > \"$0.calls\"\n"
                                  "case $calls in %1) exec sleep 30;; esac\n"
                                  "if [ \"$2\" = -encoders ]; then\n"
                                  "  printf ' V....D png    PNG\\n V....D dnxhd  DNxHD\\n A....D aac    AAC\\n'; exit 0\n"
                                  "fi\n"
                                  "for last; do :; done\n"
                                  ": > \"$last\"\n"
                                  "case \" $* \" in *' -frames:v 1 '*) ;; *) exec sleep 30;; esac\n")
                       .arg(hanging)
                       .toUtf8());
        file.close();
        file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
        return path;
    }

private slots:
    void grabAsksAgain_data()
    {
        QTest::addColumn<QString>("hanging");
        QTest::addColumn<bool>("installed");
        QTest::addColumn<bool>("answered"); // at start-up
        QTest::addColumn<QString>("refusal"); // %1: the program; empty: the still is written

        QTest::newRow("missing") << "-" << false << false << "The still cannot be grabbed: FFmpeg is not installed.";
        QTest::newRow("hangs every time") << "*" << true << false
                                          << "The still cannot be grabbed: FFmpeg at %1 does not answer.";
        QTest::newRow("slow at start-up only") << "0" << true << false << "";
        QTest::newRow("answers at once") << "-" << true << true << "";
    }
    void grabAsksAgain()
    {
        QFETCH(QString, hanging);
        QFETCH(bool, installed);
        QFETCH(bool, answered);
        QFETCH(QString, refusal);
        const QString program = installed ? standIn(QTest::currentDataTag(), hanging)
                                          : m_dir.filePath(QStringLiteral("no-such-ffmpeg"));
        QVERIFY(!program.isEmpty());

        FfmpegBackend backend(FfmpegCapabilities::probe(program, 500));
        QCOMPARE(backend.capabilities().isInstalled(), installed);
        QCOMPARE(backend.capabilities().isAvailable(), answered);

        QSignalSpy finished(&backend, &EngineBackend::grabFinished);
        const QString still = m_dir.filePath(QStringLiteral("%1.png").arg(QTest::currentDataTag()));
        QString said;
        QCOMPARE(backend.grab(0, still, ProjectPreset(), &said), refusal.isEmpty());
        QCOMPARE(said, refusal.isEmpty() ? refusal : QString(refusal).replace(QLatin1String("%1"), program));
        if (refusal.isEmpty()) {
            QVERIFY(backend.capabilities().hasEncoder(QStringLiteral("png")));
            QVERIFY(finished.wait(10000));
            QCOMPARE(finished.first().value(1).toString(), QString());
            QVERIFY(QFileInfo::exists(still));
        }
    }

    void startSaysWhichProgramDoesNotAnswer()
    {
        const QString program = standIn(QStringLiteral("silent"), QStringLiteral("*"));
        FfmpegBackend backend(FfmpegCapabilities::probe(program, 500));
        CodecPreset preset;
        preset.setName(QStringLiteral("Program"));
        QString said;
        QVERIFY(!backend.start(QStringLiteral("rec"), preset, ProjectPreset(), &said));
        QCOMPARE(said, QStringLiteral("\"Program\" cannot start: FFmpeg at %1 does not answer.").arg(program));
        QVERIFY(backend.outputs().isEmpty());
    }

    // DNxHD is tried on a few frames before it records; a trial cut short is asked again.
    void trialCutShortIsNotKept()
    {
        const QString program = standIn(QStringLiteral("trial"), QStringLiteral("1"));
        FfmpegBackend backend(FfmpegCapabilities::probe(program, 500));
        QVERIFY(backend.capabilities().hasEncoder(QStringLiteral("dnxhd")));
        backend.setFileNamer([this](const CodecPreset&) { return m_dir.filePath(QStringLiteral("take.mov")); });
        CodecPreset preset;
        preset.setName(QStringLiteral("Edit"));
        preset.videoCodec() = {true, "DNxHD", 120000, 25, 0, 1920, 1080, 0, 1, 0, 0, "", {}};
        preset.audioCodec() = {false, "AAC", 48000, 128, 16, 2};
        preset.container().name = QStringLiteral("mov");
        preset.local().enabled = true;
        ProjectPreset project;
        project.videoOutput() = {1920, 1080, 25, false};

        QString said;
        QVERIFY(!backend.start(QStringLiteral("rec"), preset, project, &said));
        QCOMPARE(said, QStringLiteral("DNxHD cannot encode the settings of \"Edit\" here: the encoder did not answer"));
        said.clear();
        QVERIFY2(backend.start(QStringLiteral("rec"), preset, project, &said), qPrintable(said));
        // Stopped once it runs: a signal before its exec would meet this test's crash handler.
        QTRY_VERIFY(QFileInfo::exists(m_dir.filePath(QStringLiteral("take.mov"))));
        backend.stopAll();
        QVERIFY(backend.processIds().isEmpty());
    }
};

QTEST_MAIN(tst_FfmpegCapabilities)
#include "tst_ffmpegcapabilities.moc"
