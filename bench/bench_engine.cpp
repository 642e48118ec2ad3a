// The FFmpeg engine: how long a stream row takes to reach nginx, next to the same ffmpeg
// command started by hand (the floor), and what the host spends per running output beyond
// the encoders themselves.
#include "engine/ffmpegbackend.h"
#include "engine/ffmpegcommand.h"
#include "engine/quillonengine.h"
#include "support/nginxrtmp.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <csignal>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;

namespace {

ProjectPreset project()
{
    ProjectPreset p;
    p.videoOutput() = {1280, 720, 25, false};
    return p;
}

CodecPreset streamRow(const QString& key)
{
    CodecPreset p;
    p.setName(key);
    p.setId(key);
    p.videoCodec() = {true, "H.264", 2500, 25, 0, 1280, 720, 0, 2, 1, 0, "veryfast", "zerolatency"};
    p.audioCodec() = {true, "AAC", 48000, 128, 16, 2};
    p.streaming().enabled = true;
    p.streaming().url = QStringLiteral("rtmp://127.0.0.1:1935/live");
    p.streaming().key = key;
    return p;
}

// The first media packet has reached nginx once its statistics know the stream's codec.
bool arrived(const NginxRtmp& nginx, const QString& key)
{
    const QByteArray stats = nginx.statistics();
    const int at = stats.indexOf("<name>" + key.toUtf8() + "</name>");
    return at >= 0 && stats.indexOf("<codec>H264</codec>", at) > at;
}

double waitForArrival(const NginxRtmp& nginx, const QString& key, const QElapsedTimer& since)
{
    while (!arrived(nginx, key) && since.elapsed() < 20000) {
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
    return since.nsecsElapsed() / 1e9;
}

struct Nginx {
    NginxRtmp server;
    bool running = server.start();
};

Nginx& nginx()
{
    static Nginx instance;
    return instance;
}

void BM_RowStartToFirstPacket(benchmark::State& state)
{
    if (!nginx().running) {
        state.SkipWithError("nginx with its RTMP module is not installed");
        return;
    }
    FfmpegBackend backend(FfmpegCapabilities::probe());
    QuillonEngine::setBackend(&backend);
    QuillonEngine::setProjectPreset(project());
    int n = 0;
    for (auto _ : state) {
        const QString key = QStringLiteral("row%1").arg(++n);
        CodecPreset row = streamRow(key);
        QElapsedTimer since;
        since.start();
        QuillonEngine::encoding(&row, true);
        state.SetIterationTime(waitForArrival(nginx().server, key, since));
        QuillonEngine::encoding(&row, false);
        while (!backend.processIds().isEmpty())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    QuillonEngine::setBackend(nullptr);
}
BENCHMARK(BM_RowStartToFirstPacket)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

// The floor: the engine's own ffmpeg arguments, started with posix_spawn.
void BM_SameCommandByHand(benchmark::State& state)
{
    if (!nginx().running) {
        state.SkipWithError("nginx with its RTMP module is not installed");
        return;
    }
    const FfmpegCapabilities caps = FfmpegCapabilities::probe();
    int n = 0;
    for (auto _ : state) {
        const QString key = QStringLiteral("hand%1").arg(++n);
        FfmpegJob job;
        QString refusal;
        FfmpegCommand::stream(streamRow(key), project(), caps, &job, &refusal);
        QList<QByteArray> args{caps.program().toUtf8()};
        for (const QString& a : job.arguments)
            args.append(a.toUtf8());
        std::vector<char*> argv;
        for (QByteArray& a : args)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        QElapsedTimer since;
        since.start();
        pid_t pid = 0;
        posix_spawn(&pid, argv[0], nullptr, nullptr, argv.data(), environ);
        state.SetIterationTime(waitForArrival(nginx().server, key, since));
        ::kill(pid, SIGTERM);
        ::waitpid(pid, nullptr, 0);
    }
}
BENCHMARK(BM_SameCommandByHand)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

double cpuSeconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// Encoder CPU from /proc: user and system ticks of a running process.
double processCpuSeconds(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = stat.readAll().split(')').value(1).trimmed().split(' ');
    return (fields.value(11).toDouble() + fields.value(12).toDouble()) / sysconf(_SC_CLK_TCK);
}

// Host CPU (this process, children excluded) while N recordings run for five seconds, per
// output and second of running; the encoders' own CPU is reported beside it.
void BM_HostCpuPerOutput(benchmark::State& state)
{
    QTemporaryDir dir;
    FfmpegBackend backend(FfmpegCapabilities::probe());
    QuillonEngine::setBackend(&backend);
    ProjectPreset small;
    small.videoOutput() = {640, 360, 25, false};
    QuillonEngine::setProjectPreset(small);
    const int outputs = int(state.range(0));
    double hostPerOutput = 0;
    double encoderPerOutput = 0;
    for (auto _ : state) {
        QList<CodecPreset> rows;
        for (int i = 0; i < outputs; ++i) {
            CodecPreset p = streamRow(QStringLiteral("cpu%1").arg(i));
            p.streaming().enabled = false;
            p.videoCodec().width = 640;
            p.videoCodec().height = 360;
            p.videoCodec().preset = "ultrafast";
            p.container().name = QStringLiteral("ts");
            p.local().enabled = true;
            p.local().path = dir.path();
            QuillonEngine::encoding(&p, true);
            rows.append(p);
        }
        QEventLoop settle;
        QTimer::singleShot(1000, &settle, &QEventLoop::quit);
        settle.exec();
        const QList<qint64> pids = backend.processIds();
        double encoderBefore = 0;
        for (qint64 pid : pids)
            encoderBefore += processCpuSeconds(pid);
        const double hostBefore = cpuSeconds(RUSAGE_SELF);
        QElapsedTimer window;
        window.start();
        QEventLoop loop; // sleeps between the encoders' reports, as the host's own loop does
        QTimer::singleShot(5000, &loop, &QEventLoop::quit);
        loop.exec();
        const double seconds = window.elapsed() / 1000.0;
        hostPerOutput = (cpuSeconds(RUSAGE_SELF) - hostBefore) / seconds / outputs;
        double encoderAfter = 0;
        for (qint64 pid : pids)
            encoderAfter += processCpuSeconds(pid);
        encoderPerOutput = (encoderAfter - encoderBefore) / seconds / outputs;
        for (CodecPreset& p : rows)
            QuillonEngine::encoding(&p, false);
        QuillonEngine::stopAll();
    }
    state.counters["host_cpu_pct_per_output"] = hostPerOutput * 100;
    state.counters["encoder_cpu_pct_per_output"] = encoderPerOutput * 100;
    QuillonEngine::setBackend(nullptr);
}
BENCHMARK(BM_HostCpuPerOutput)->Arg(1)->Arg(4)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
