#include "codec/codectables.h"

#include "records/licensemodel.h"
#include "stores/streamingmanager.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

Q_LOGGING_CATEGORY(lcCodec, "streaming.codec")

namespace CodecTables {

namespace {

const QList<double> allRates{23.98, 24, 25, 29.97, 30, 50, 59.94, 60};
const QList<double> fieldRates{50, 59.94, 60};
const QList<int> deliveryBitRates{50000, 40000, 30000, 20000, 15000, 12000, 10000, 8000, 6000, 5000, 4500,
                                  4000,  3500,  3000,  2500,  2000,  1500,  1000,  800,  600,  400};
const QList<int> audioBitRates{320, 256, 224, 192, 160, 128, 112, 96, 80, 64, 56, 48, 40, 32};
const QList<int> audioSampleRates{48000, 44100, 32000, 24000, 22050, 16000};

VideoRule deliveryRule(PresetPage page, bool interlaced = false)
{
    VideoRule rule;
    rule.page = page;
    rule.bitRates = deliveryBitRates;
    rule.progressiveRates = allRates;
    if (interlaced)
        rule.interlacedRates = fieldRates;
    return rule;
}

VideoRule hardwareRule(PresetPage page, const QStringList& profiles, int defaultProfile)
{
    VideoRule rule = deliveryRule(page);
    rule.profiles = profiles;
    rule.defaultProfile = defaultProfile;
    return rule;
}

// Intra-frame mastering codecs: no GOP, so no key-frame interval.
VideoRule intraRule(const QList<int>& bitRates, int defaultBitRate, bool editable)
{
    VideoRule rule;
    rule.bitRates = bitRates;
    rule.defaultBitRate = defaultBitRate;
    rule.bitRateEditable = editable;
    rule.keyFrame = false;
    rule.progressiveRates = allRates;
    return rule;
}

QHash<QString, VideoRule> buildVideoRules()
{
    const QStringList avcProfiles{QStringLiteral("baseline"), QStringLiteral("main"), QStringLiteral("high")};
    QHash<QString, VideoRule> rules;
    rules.insert(QStringLiteral("H.264"), deliveryRule(PresetPage::X264, true));
    rules.insert(QStringLiteral("H.264 NVENC"), hardwareRule(PresetPage::Nvenc, avcProfiles, 2));
    rules.insert(QStringLiteral("H.264 QSV"), deliveryRule(PresetPage::None));
    rules.insert(QStringLiteral("H.264 AMF"), hardwareRule(PresetPage::Amf, avcProfiles, 2));
    VideoRule hevc = deliveryRule(PresetPage::X264);
    hevc.profileChoice = false;
    rules.insert(QStringLiteral("HEVC"), hevc);
    rules.insert(QStringLiteral("HEVC NVENC"),
                 hardwareRule(PresetPage::Nvenc, {QStringLiteral("main"), QStringLiteral("main10")}, 0));
    rules.insert(QStringLiteral("HEVC AMF"), hardwareRule(PresetPage::Amf, {QStringLiteral("main")}, 0));
    rules.insert(QStringLiteral("WMV"), deliveryRule(PresetPage::None));
    rules.insert(QStringLiteral("AV1"), deliveryRule(PresetPage::None));

    VideoRule mpeg2 = deliveryRule(PresetPage::None, true);
    mpeg2.bitRates = {50000, 35000, 25000, 20000, 15000, 10000, 8000, 6000, 4000};
    mpeg2.defaultBitRate = 15000;
    mpeg2.sizes = {{1920, 1080}, {1440, 1080}, {1280, 720}, {960, 540}, {720, 576}, {720, 480}, {640, 360}};
    mpeg2.maxWidth = 1920;
    mpeg2.maxHeight = 1088;
    rules.insert(QStringLiteral("MPEG-2"), mpeg2);

    // NTSC DV: the engine writes 720x480 at 29.97 frames whatever the project is.
    VideoRule dv = intraRule({28770}, 28770, false);
    dv.rateControl = RateControl::Fixed;
    dv.sizes = {{720, 480}};
    dv.customSize = false;
    dv.progressiveRates = {29.97};
    dv.interlacedRates = {59.94};
    dv.autoRate = false;
    rules.insert(QStringLiteral("DV25"), dv);

    VideoRule dnxhd = intraRule({220000, 185000, 175000, 145000, 120000, 115000, 90000, 60000, 45000, 36000},
                                145000, false);
    dnxhd.sizes = {{1920, 1080}, {1280, 720}};
    dnxhd.customSize = false;
    dnxhd.progressiveRates = {23.98, 24, 25, 29.97, 50, 59.94};
    dnxhd.interlacedRates = {50, 59.94};
    rules.insert(QStringLiteral("DNxHD"), dnxhd);

    rules.insert(QStringLiteral("MJPEG"), intraRule({100000, 80000, 60000, 40000, 20000, 10000}, 40000, true));

    VideoRule prores = intraRule({0, 1, 2, 3, 4, 5}, 3, false);
    prores.rateControl = RateControl::Quality;
    prores.interlacedRates = fieldRates;
    rules.insert(QStringLiteral("Apple ProRes"), prores);

    // Long-GOP with the format's own fixed GOP.
    VideoRule xdcam = intraRule({50000, 35000}, 50000, false);
    xdcam.sizes = {{1920, 1080}, {1440, 1080}, {1280, 720}};
    xdcam.customSize = false;
    xdcam.progressiveRates = {23.98, 25, 29.97, 50, 59.94};
    xdcam.interlacedRates = {50, 59.94};
    rules.insert(QStringLiteral("XDCAM HD"), xdcam);
    return rules;
}

QHash<QString, AudioRule> buildAudioRules()
{
    QHash<QString, AudioRule> rules;
    AudioRule aac;
    aac.sampleRates = audioSampleRates;
    aac.bitRates = audioBitRates;
    rules.insert(QStringLiteral("AAC"), aac);
    rules.insert(QStringLiteral("MP3"), aac);

    AudioRule opus = aac; // Opus always runs at 48 kHz
    opus.sampleRates = {48000};
    opus.bitRates.removeAll(320);
    rules.insert(QStringLiteral("Opus"), opus);

    AudioRule ac3 = aac;
    ac3.sampleRates = {48000, 44100, 32000};
    ac3.defaultBitRate = 192;
    rules.insert(QStringLiteral("AC3"), ac3);

    AudioRule pcm;
    pcm.sampleRates = audioSampleRates;
    pcm.defaultBitRate = 0;
    rules.insert(QStringLiteral("PCM"), pcm);
    return rules;
}

} // namespace

const QList<FrameSize>& frameSizes()
{
    static const QList<FrameSize> table{
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "UHD"), 3840, 2160},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "QHD"), 2560, 1440},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "FHD"), 1920, 1080},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "HDV"), 1440, 1080},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "HD"), 1280, 720},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "qHD"), 960, 540},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "PAL"), 720, 576},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "NTSC"), 720, 480},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "nHD"), 640, 360},
    };
    return table;
}

bool interlaceAllowed(const SizeDefinition& size)
{
    return size.isCustom() || size.height == 1080 || size.height == 576 || size.height == 480;
}

const VideoRule& videoRule(const QString& codec)
{
    static const QHash<QString, VideoRule> rules = buildVideoRules();
    static const VideoRule fallback = deliveryRule(PresetPage::None);
    const auto it = rules.constFind(codec);
    return it == rules.cend() ? fallback : it.value();
}

const AudioRule& audioRule(const QString& codec)
{
    static const QHash<QString, AudioRule> rules = buildAudioRules();
    const auto it = rules.constFind(codec);
    return it == rules.cend() ? rules.find(QStringLiteral("AAC")).value() : it.value();
}

const QList<int>& keyFrames()
{
    static const QList<int> table{1, 2, 3, 4, 5, 6, 8, 10};
    return table;
}

int defaultKeyFrame()
{
    return 2;
}

const QStringList& x264Presets()
{
    static const QStringList table{QStringLiteral("ultrafast"), QStringLiteral("superfast"), QStringLiteral("veryfast"),
                                   QStringLiteral("faster"),    QStringLiteral("fast"),      QStringLiteral("medium"),
                                   QStringLiteral("slow"),      QStringLiteral("slower"),    QStringLiteral("veryslow"),
                                   QStringLiteral("placebo")};
    return table;
}

const QStringList& x264Profiles()
{
    static const QStringList table{QStringLiteral("baseline"), QStringLiteral("main"), QStringLiteral("high")};
    return table;
}

const QStringList& x264Tunes()
{
    static const QStringList table{QStringLiteral("none"),       QStringLiteral("film"),       QStringLiteral("animation"),
                                   QStringLiteral("grain"),      QStringLiteral("stillimage"), QStringLiteral("psnr"),
                                   QStringLiteral("ssim"),       QStringLiteral("fastdecode"), QStringLiteral("zerolatency")};
    return table;
}

QString defaultX264Preset()
{
    return QStringLiteral("veryfast");
}

int defaultX264Profile()
{
    return 1; // main
}

QString defaultX264Tune()
{
    return QStringLiteral("none");
}

const QList<NamedValue>& nvencPresets()
{
    static const QList<NamedValue> table{
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "Default"), "default"},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "High Quality"), "High Quality"},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "High Performance"), "High Performance"},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "Low-Latency High Quality"), "lowLatencyHQ"},
        {QT_TRANSLATE_NOOP("CodecPresetDialog", "Low-Latency High Performance"), "lowLatencyHP"},
    };
    return table;
}

QString defaultNvencPreset(int usage)
{
    return usage == UsageStreaming ? QStringLiteral("lowLatencyHQ") : QStringLiteral("High Quality");
}

const QStringList& amfPresets()
{
    static const QStringList table{QStringLiteral("Balanced"), QStringLiteral("Speed"), QStringLiteral("Quality")};
    return table;
}

QString defaultAmfPreset()
{
    return QStringLiteral("Balanced");
}

int defaultNvencBframes()
{
    return 2;
}

const QList<int>& channelCounts()
{
    static const QList<int> table{2, 1};
    return table;
}

const char* channelName(int channels)
{
    return channels == 2 ? QT_TRANSLATE_NOOP("CodecPresetDialog", "Stereo")
                         : QT_TRANSLATE_NOOP("CodecPresetDialog", "Mono");
}

SizeDefinition defaultSize()
{
    return {1920, 1080};
}

QStringList codecsByBit(const QMap<QString, int>& table)
{
    QStringList names = table.keys();
    std::stable_sort(names.begin(), names.end(),
                     [&table](const QString& a, const QString& b) { return table.value(a) < table.value(b); });
    return names;
}

const LicenseModel& licenseModel()
{
    static const LicenseModel unrestricted;
    const StreamingManager* store = StreamingManager::getInstancePtr();
    return store ? store->licenseModel() : unrestricted;
}

} // namespace CodecTables
