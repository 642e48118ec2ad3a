#pragma once

#include "codec/sizedefinition.h"

#include <QList>
#include <QLoggingCategory>
#include <QMap>
#include <QString>
#include <QStringList>

class LicenseModel;

Q_DECLARE_LOGGING_CATEGORY(lcCodec)

// Every choice the codec dialogs offer, in one place: frame sizes and rates, what each
// codec allows, the encoder families' preset and profile names and the audio options.
// Texts are marked for translation in the context "CodecPresetDialog".
namespace CodecTables {

// What a preset is made for. The setups pass it through the encoder list to the codec
// dialog; the values match the kinds the host is told about (0 streaming, 1 recording).
enum Usage {
    UsageStreaming = 0, // no interlaced rates, low-latency encoder presets
    UsageRecording = 1,
    UsageIso = 2,
};

enum class PresetPage { None, X264, Nvenc, Amf };

enum class RateControl {
    Bitrate, // a bit rate in kbps, typed or picked
    Quality, // a profile index shown as "Quality:" (Apple ProRes)
    Fixed,   // the codec's own constant rate (DV25)
};

struct FrameSize {
    const char* name; // translated in the context "CodecPresetDialog"
    int width;
    int height;
};

struct NamedValue {
    const char* text; // translated in the context "CodecPresetDialog"
    const char* data;
};

struct VideoRule {
    PresetPage page = PresetPage::None;
    RateControl rateControl = RateControl::Bitrate;
    QList<int> bitRates;         // kbps, largest first; for Quality the profile indexes
    bool bitRateEditable = true; // the operator may type any rate
    int defaultBitRate = 4000;   // or the default profile index
    bool keyFrame = true;        // long-GOP codec: the key-frame interval applies
    QList<SizeDefinition> sizes; // empty: every size of the table
    bool customSize = true;
    int maxWidth = 0; // codec limits for custom sizes, 0 = the licence's
    int maxHeight = 0;
    QList<double> progressiveRates;
    QList<double> interlacedRates; // field rates, shown with "i"
    bool autoRate = true;          // "AUTO": follow the project
    QStringList profiles;          // NVENC and AMF pages
    int defaultProfile = 0;
    bool profileChoice = true; // false: the encoder has one profile (x265 main)
};

struct AudioRule {
    QList<int> sampleRates; // Hz
    QList<int> bitRates;    // kbps; empty: uncompressed, no bit rate
    int defaultSampleRate = 48000;
    int defaultBitRate = 128;
    int bitPerSamples = 16;
};

const QList<FrameSize>& frameSizes();
// Heights that are broadcast as interlaced; custom sizes may be interlaced too.
bool interlaceAllowed(const SizeDefinition& size);
const VideoRule& videoRule(const QString& codec);
const AudioRule& audioRule(const QString& codec);
const QList<int>& keyFrames();
int defaultKeyFrame();

const QStringList& x264Presets();
const QStringList& x264Profiles();
const QStringList& x264Tunes();
QString defaultX264Preset();
int defaultX264Profile();
QString defaultX264Tune();
const QList<NamedValue>& nvencPresets();
QString defaultNvencPreset(int usage);
const QStringList& amfPresets();
QString defaultAmfPreset();
int defaultNvencBframes();

// Channel counts in list order: "Stereo", "Mono".
const QList<int>& channelCounts();
const char* channelName(int channels);

// The frame size a new preset starts with.
SizeDefinition defaultSize();
// Codec names of a licence table, ordered by codec bit.
QStringList codecsByBit(const QMap<QString, int>& table);

// The licence in force: the streaming store's, or the unrestricted default without one.
const LicenseModel& licenseModel();

} // namespace CodecTables
