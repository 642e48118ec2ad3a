// Opening the streaming setup with its 8 services, 50 saved servers, 40 codec presets
// and a full list of stored streams.
#include "benchsupport.h"
#include "interface/memoryoutputinterface.h"
#include "setup/streamingpresetjson.h"
#include "setup/streamingsetup.h"
#include "stores/channel.h"
#include "stores/oauth.h"

#include <QJsonArray>

namespace {

struct Fixture {
    BenchSupport::Stores stores;
    std::unique_ptr<MemoryOutputInterface> host;

    Fixture()
    {
        BenchSupport::writeCodecGrid(*stores.codecs,
                                     {{"H.264", "H.264 NVENC", "HEVC", "AV1"}, {360, 540, 720, 1080, 2160}, {2500, 6000}, 30, 160});

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
            stores.streaming->write(server, OAuth());
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
    BenchSupport::openSetup<StreamingSetup>(state, fixture.host.get());
}
BENCHMARK(BM_StreamingSetupOpen)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(9)->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv)
{
    return BenchSupport::run(argc, argv, "bench_streaming");
}
