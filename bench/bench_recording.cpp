// Opening the recording setup with a full store: 100 stored rows, 200 codec presets.
#include "benchsupport.h"
#include "interface/memoryoutputinterface.h"
#include "recording/recordingsetup.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Fixture {
    BenchSupport::Stores stores{[] {
        LicenseModel license;
        license.setMaxRecording(100);
        return license;
    }()};
    std::unique_ptr<MemoryOutputInterface> host;

    Fixture()
    {
        const QList<CodecPreset> written = BenchSupport::writeCodecGrid(
            *stores.codecs, {{"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF", "HEVC", "HEVC NVENC", "HEVC AMF", "AV1"},
                             {360, 540, 720, 1080, 2160},
                             {2000, 4000, 6000, 8000, 12000},
                             29.97,
                             128});

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
    BenchSupport::openSetup<RecordingSetup>(state, fixture.host.get());
}
BENCHMARK(BM_RecordingSetupOpen)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(9)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    return BenchSupport::run(argc, argv, "bench_recording");
}
