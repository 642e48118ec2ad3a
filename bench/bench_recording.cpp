// Opening the recording setup with a full store: 100 stored rows, 200 codec presets.
#include "codecmanager.h"
#include "licensemodel.h"
#include "memoryoutputinterface.h"
#include "recordingsetup.h"
#include "streamingmanager.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

const char* const codecs[] = {"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF",
                              "HEVC",  "HEVC NVENC",  "HEVC AMF",  "AV1"};
const int heights[] = {360, 540, 720, 1080, 2160};
const int bitRates[] = {2000, 4000, 6000, 8000, 12000};

struct Fixture {
    QTemporaryDir dir;
    std::unique_ptr<CodecManager> codecs;
    std::unique_ptr<StreamingManager> streaming;
    std::unique_ptr<MemoryOutputInterface> host;

    Fixture()
    {
        const ContentsSettings settings = ContentsSettings::underDirectory(dir.path());
        QDir().mkpath(settings.codecPresetPath());
        QDir().mkpath(settings.serverPresetPath());
        LicenseModel license;
        license.setMaxRecording(100);
        codecs = std::make_unique<CodecManager>(settings);
        streaming = std::make_unique<StreamingManager>(settings, license);

        QList<CodecPreset> written;
        for (const char* codec : ::codecs)
            for (int height : heights)
                for (int bitRate : bitRates) {
                    CodecPreset p;
                    p.videoCodec().codec = QLatin1String(codec);
                    p.videoCodec().width = height * 16 / 9;
                    p.videoCodec().height = height;
                    p.videoCodec().frameRate = 29.97;
                    p.videoCodec().keyFrame = 2;
                    p.videoCodec().bitRate = bitRate;
                    p.audioCodec().codec = QStringLiteral("AAC");
                    p.audioCodec().channels = 2;
                    p.audioCodec().sampleRate = 48000;
                    p.audioCodec().bitRate = 128;
                    codecs->write(p);
                    written.append(p);
                }

        QJsonArray rows;
        for (int i = 0; i < 100; ++i) {
            const CodecPreset& p = written.at(i * 2);
            rows.append(QJsonObject{
                {QStringLiteral("VideoCodec"), p.videoCodec().codec},
                {QStringLiteral("VideoWidth"), p.videoCodec().width},
                {QStringLiteral("VideoHeight"), p.videoCodec().height},
                {QStringLiteral("VideoFrameRate"), p.videoCodec().frameRate},
                {QStringLiteral("VideoKeyFrame"), p.videoCodec().keyFrame},
                {QStringLiteral("VideoBitRate"), p.videoCodec().bitRate},
                {QStringLiteral("AudioEnabled"), true},
                {QStringLiteral("AudioCodec"), QStringLiteral("AAC")},
                {QStringLiteral("AudioChannels"), 2},
                {QStringLiteral("AudioSampleRate"), 48000},
                {QStringLiteral("AudioBitRate"), 128},
                {QStringLiteral("PresetName"), QStringLiteral("Recording %1").arg(i + 1)},
                {QStringLiteral("VideoSourceType"), 7},
                {QStringLiteral("VideoSourceIndex"), -1},
                {QStringLiteral("AudioSourceType"), 7},
                {QStringLiteral("AudioSourceIndex"), -1},
                {QStringLiteral("ContainerName"), i % 2 ? QStringLiteral("mp4") : QStringLiteral("mkv")},
                {QStringLiteral("Path"), QStringLiteral("/media/recordings")},
                {QStringLiteral("FileTag"), QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R")},
                {QStringLiteral("SplitTime"), 0},
                {QStringLiteral("MediaToBin"), QStringLiteral("None")},
            });
        }
        host = std::make_unique<MemoryOutputInterface>(QJsonObject{{QStringLiteral("RECORDING"), rows}});
    }
};

void BM_RecordingSetupOpen(benchmark::State& state)
{
    Fixture fixture;
    for (auto _ : state) {
        auto setup = std::make_unique<RecordingSetup>(nullptr, fixture.host.get());
        setup->reloadPresets();
        setup->show();
        QCoreApplication::processEvents(); // first layout and paint
        benchmark::DoNotOptimize(setup->codecPresets().size());
        state.PauseTiming();
        setup.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_RecordingSetupOpen)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(9)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
