#pragma once
// What the setup-dialog benchmarks share: stores in a temporary directory, a grid of codec
// presets written to them, the open-and-paint loop and main().
#include "interface/outputinterface.h"
#include "records/codecpreset.h"
#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QApplication>
#include <QDir>
#include <QList>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <initializer_list>
#include <memory>

namespace BenchSupport {

struct Stores {
    QTemporaryDir dir;
    std::unique_ptr<CodecManager> codecs;
    std::unique_ptr<StreamingManager> streaming;

    explicit Stores(const LicenseModel& license = LicenseModel())
    {
        const ContentsSettings settings = ContentsSettings::underDirectory(dir.path());
        QDir().mkpath(settings.codecPresetPath());
        QDir().mkpath(settings.serverPresetPath());
        codecs = std::make_unique<CodecManager>(settings);
        streaming = std::make_unique<StreamingManager>(settings, license);
    }
};

struct CodecGrid {
    std::initializer_list<const char*> codecs;
    std::initializer_list<int> heights;
    std::initializer_list<int> bitRates;
    double frameRate;
    int audioBitRate;
};

// Writes one 16:9 preset with AAC stereo at 48 kHz per codec, height and bit rate, in that
// order, and returns them as written.
inline QList<CodecPreset> writeCodecGrid(CodecManager& manager, const CodecGrid& grid)
{
    QList<CodecPreset> written;
    for (const char* codec : grid.codecs)
        for (int height : grid.heights)
            for (int bitRate : grid.bitRates) {
                CodecPreset p;
                p.videoCodec().codec = QLatin1String(codec);
                p.videoCodec().width = height * 16 / 9;
                p.videoCodec().height = height;
                p.videoCodec().frameRate = grid.frameRate;
                p.videoCodec().keyFrame = 2;
                p.videoCodec().bitRate = bitRate;
                p.audioCodec().codec = QStringLiteral("AAC");
                p.audioCodec().channels = 2;
                p.audioCodec().sampleRate = 48000;
                p.audioCodec().bitRate = grid.audioBitRate;
                manager.write(p);
                written.append(p);
            }
    return written;
}

// Times constructing a setup dialog, loading its rows and its first layout and paint.
template <class Setup>
void openSetup(benchmark::State& state, OutputInterface* host)
{
    for (auto _ : state) {
        auto setup = std::make_unique<Setup>(nullptr, host);
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

// An offscreen application with settings of its own (the dialogs read them), then the
// benchmarks.
inline int run(int argc, char** argv, const char* name)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-bench"));
    QCoreApplication::setApplicationName(QLatin1String(name));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace BenchSupport
