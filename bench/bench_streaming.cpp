// Opening the streaming setup with its 8 services, 50 saved servers, 40 codec presets
// and a full list of stored streams.
#include "channel.h"
#include "codecmanager.h"
#include "licensemodel.h"
#include "memoryoutputinterface.h"
#include "oauth.h"
#include "streamingmanager.h"
#include "streamingpresetjson.h"
#include "streamingsetup.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

const char* const codecs[] = {"H.264", "H.264 NVENC", "HEVC", "AV1"};
const int heights[] = {360, 540, 720, 1080, 2160};
const int bitRates[] = {2500, 6000};

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
        codecs = std::make_unique<CodecManager>(settings);
        streaming = std::make_unique<StreamingManager>(settings, LicenseModel());

        for (const char* codec : ::codecs)
            for (int height : heights)
                for (int bitRate : bitRates) {
                    CodecPreset p;
                    p.videoCodec().codec = QLatin1String(codec);
                    p.videoCodec().width = height * 16 / 9;
                    p.videoCodec().height = height;
                    p.videoCodec().frameRate = 30;
                    p.videoCodec().keyFrame = 2;
                    p.videoCodec().bitRate = bitRate;
                    p.audioCodec().codec = QStringLiteral("AAC");
                    p.audioCodec().channels = 2;
                    p.audioCodec().sampleRate = 48000;
                    p.audioCodec().bitRate = 160;
                    codecs->write(p);
                }

        for (int i = 0; i < 50; ++i) {
            Channel server;
            server.title = QStringLiteral("Venue %1").arg(i + 1);
            server.provider = QStringLiteral("Custom");
            server.url = i % 2 ? QStringLiteral("srt://127.0.0.1:%1").arg(9000 + i)
                               : QStringLiteral("rtmp://127.0.0.1/live%1").arg(i);
            server.key = QStringLiteral("key-%1").arg(i);
            server.mode = QStringLiteral("caller");
            server.port = 9000 + i;
            server.latency = 200;
            server.keyLength = 16;
            streaming->write(server, OAuth());
        }

        QJsonArray rows;
        const QStringList services{"YouTube", "Twitch", "Restream", "Custom"};
        for (int i = 0; i < services.size(); ++i) {
            CodecPreset p;
            p.setName(QStringLiteral("Stream %1").arg(i + 1));
            p.videoCodec().codec = QStringLiteral("H.264");
            p.videoCodec().width = 1920;
            p.videoCodec().height = 1080;
            p.videoCodec().frameRate = 30;
            p.videoCodec().bitRate = 6000;
            p.audioCodec().codec = QStringLiteral("AAC");
            p.audioCodec().channels = 2;
            p.audioCodec().sampleRate = 48000;
            p.videoSource().insert(7, -1);
            p.audioSource().insert(7, -1);
            p.streaming().provider = services.at(i);
            p.streaming().url = QStringLiteral("rtmp://127.0.0.1/live%1").arg(i);
            p.streaming().key = QStringLiteral("key-%1").arg(i);
            rows.append(StreamingPresetJson::toJson(p));
        }
        host = std::make_unique<MemoryOutputInterface>(QJsonObject{{QStringLiteral("STREAMING"), rows}});
    }
};

void BM_StreamingSetupOpen(benchmark::State& state)
{
    Fixture fixture;
    for (auto _ : state) {
        auto setup = std::make_unique<StreamingSetup>(nullptr, fixture.host.get());
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
BENCHMARK(BM_StreamingSetupOpen)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(9)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true); // the services' stream keys are read from the settings
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-bench"));
    QCoreApplication::setApplicationName(QStringLiteral("bench_streaming"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
