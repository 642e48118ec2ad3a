// Loading the preset stores against the floor of reading and parsing the same files.
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int fileCount = 10000;

void writeFile(const QString& path, const QJsonObject& object)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    file.write(QJsonDocument(object).toJson(QJsonDocument::Indented));
}

// 10,000 codec presets and 10,000 servers, made once per run.
struct StoreFiles {
    QTemporaryDir dir;
    ContentsSettings settings;

    StoreFiles()
        : settings(ContentsSettings::underDirectory(dir.path()))
    {
        QDir().mkpath(settings.codecPresetPath());
        QDir().mkpath(settings.serverPresetPath());
        const CodecManager writer(settings);
        for (int n = 0; n < fileCount; ++n) {
            CodecPreset preset;
            preset.videoCodec().codec = QStringLiteral("H.264");
            preset.videoCodec().width = 1920;
            preset.videoCodec().height = 1080;
            preset.videoCodec().frameRate = 29.97;
            preset.videoCodec().keyFrame = 1 + n; // a label, and so a file, of its own
            preset.videoCodec().bitRate = 6000;
            preset.videoCodec().preset = QStringLiteral("veryfast");
            preset.audioCodec().codec = QStringLiteral("AAC");
            preset.audioCodec().channels = 2;
            preset.audioCodec().sampleRate = 48000;
            preset.audioCodec().bitRate = 128;
            const QString path = settings.codecPresetPath() + QLatin1Char('/')
                                 + CodecManager::namingFromPreset(&preset) + QStringLiteral(".json");
            writeFile(path, writer.jsonFromCodecPreset(preset));

            const QString title = QStringLiteral("Server %1").arg(n);
            const QString serverPath = settings.serverPresetPath() + QLatin1Char('/') + title + QStringLiteral(".json");
            writeFile(serverPath, QJsonObject{
                                      {QStringLiteral("Title"), title},
                                      {QStringLiteral("StreamUrl"), QStringLiteral("rtmp://ingest.example.test/live")},
                                      {QStringLiteral("StreamKey"), QStringLiteral("key-%1").arg(n)},
                                      {QStringLiteral("Authrized"), n % 2 == 0},
                                      {QStringLiteral("UserId"), QStringLiteral("operator")},
                                      {QStringLiteral("UserPw"), QStringLiteral("password")},
                                      {QStringLiteral("Mode"), QStringLiteral("caller")},
                                      {QStringLiteral("Filter"), QString()},
                                      {QStringLiteral("Port"), 1935},
                                      {QStringLiteral("Latency"), 120},
                                      {QStringLiteral("KeyLength"), 16},
                                      {QStringLiteral("Passphrase"), QString()},
                                      {QStringLiteral("StreamID"), QString()},
                                  });
        }
    }
};

StoreFiles& storeFiles()
{
    static StoreFiles files;
    return files;
}

// The floor: list the directory, then open, read and parse every file; nothing else.
void readAndParse(benchmark::State& state, const QString& directory)
{
    for (auto _ : state) {
        int objects = 0;
        QDirIterator it(directory, QDir::Files);
        while (it.hasNext()) {
            QFile file(it.next());
            if (file.open(QIODevice::ReadOnly) && !QJsonDocument::fromJson(file.readAll()).object().isEmpty())
                ++objects;
        }
        if (objects != fileCount)
            state.SkipWithError("files missing");
        benchmark::DoNotOptimize(objects);
    }
}

void BM_FloorCodecFiles(benchmark::State& state)
{
    readAndParse(state, storeFiles().settings.codecPresetPath());
}

void BM_ReloadCodecPresets(benchmark::State& state)
{
    CodecManager manager(storeFiles().settings);
    for (auto _ : state) {
        manager.reloadPresets();
        benchmark::DoNotOptimize(manager.codecPresets().size());
    }
    if (manager.codecPresets().size() != fileCount)
        state.SkipWithError("presets missing");
}

void BM_FloorServerFiles(benchmark::State& state)
{
    readAndParse(state, storeFiles().settings.serverPresetPath());
}

void BM_ReloadServers(benchmark::State& state)
{
    StreamingManager manager(storeFiles().settings, LicenseModel());
    for (auto _ : state) {
        manager.reloadPresets();
        benchmark::DoNotOptimize(manager.serverInfos().size());
    }
    if (manager.serverInfos().size() != fileCount)
        state.SkipWithError("servers missing");
}

// On a shared machine the fastest repetition is the least disturbed one.
double fastest(const std::vector<double>& times)
{
    return *std::min_element(times.begin(), times.end());
}

} // namespace

BENCHMARK(BM_FloorCodecFiles)->Unit(benchmark::kMillisecond)->UseRealTime()->ComputeStatistics("min", fastest);
BENCHMARK(BM_ReloadCodecPresets)->Unit(benchmark::kMillisecond)->UseRealTime()->ComputeStatistics("min", fastest);
BENCHMARK(BM_FloorServerFiles)->Unit(benchmark::kMillisecond)->UseRealTime()->ComputeStatistics("min", fastest);
BENCHMARK(BM_ReloadServers)->Unit(benchmark::kMillisecond)->UseRealTime()->ComputeStatistics("min", fastest);

BENCHMARK_MAIN();
