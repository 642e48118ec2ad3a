#include "stores/codecmanager.h"

#include "stores/nametables.h"
#include "stores/orderedjson.h"
#include "stores/storefile.h"

#include <QJsonValue>

#include <cmath>

template class Singleton<CodecManager>;

namespace {

const QString videoKey = QStringLiteral("VideoCodec");
const QString audioKey = QStringLiteral("AudioCodec");
const QString proResName = QStringLiteral("Apple ProRes");

const QHash<QString, QStringList>& fileKeyOrder()
{
    static const QHash<QString, QStringList> order{
        {QString(), {videoKey, audioKey}},
        {videoKey,
         {QStringLiteral("Codec"), QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("FrameRate"),
          QStringLiteral("Field"), QStringLiteral("KeyFrame"), QStringLiteral("BitRate"), QStringLiteral("Quality"),
          QStringLiteral("Preset"), QStringLiteral("Tune"), QStringLiteral("Profile"), QStringLiteral("Bframes")}},
        {audioKey,
         {QStringLiteral("Enabled"), QStringLiteral("Codec"), QStringLiteral("Channels"), QStringLiteral("SampleRate"),
          QStringLiteral("BitRate"), QStringLiteral("BitPerSamples")}},
    };
    return order;
}

// Fills a default-constructed preset; reloads fill the list's own element in place.
void readCodecPreset(const QJsonObject& object, CodecPreset& preset)
{
    const QJsonObject video = object.value(videoKey).toObject();
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = video.value(QLatin1String("Codec")).toString();
    v.width = video.value(QLatin1String("Width")).toInt();
    v.height = video.value(QLatin1String("Height")).toInt();
    v.frameRate = video.value(QLatin1String("FrameRate")).toDouble();
    v.field = video.value(QLatin1String("Field")).toInt();
    v.keyFrame = video.value(QLatin1String("KeyFrame")).toInt();
    v.bitRate = video.value(QLatin1String("BitRate")).toInt();
    v.quality = video.value(QLatin1String("Quality")).toInt();
    v.preset = video.value(QLatin1String("Preset")).toString();
    v.tune = video.value(QLatin1String("Tune")).toString();
    v.profile = video.value(QLatin1String("Profile")).toInt();
    v.bframes = video.value(QLatin1String("Bframes")).toInt();

    const QJsonObject audio = object.value(audioKey).toObject();
    CodecModel::AudioCodec& a = preset.audioCodec();
    a.enabled = audio.value(QLatin1String("Enabled")).toBool();
    a.codec = audio.value(QLatin1String("Codec")).toString();
    a.channels = audio.value(QLatin1String("Channels")).toInt();
    a.sampleRate = audio.value(QLatin1String("SampleRate")).toInt();
    a.bitRate = audio.value(QLatin1String("BitRate")).toInt();
    a.bitPerSamples = audio.value(QLatin1String("BitPerSamples")).toInt();
}

} // namespace

CodecManager::CodecManager(const ContentsSettings& settings)
    : m_settings(settings)
{
    m_instance = this;
    reloadPresets();
}

CodecManager::CodecManager(const CodecManager& other) = default;

CodecManager& CodecManager::operator=(const CodecManager& other) = default;

CodecManager::~CodecManager()
{
    // A copy never became the instance, so it must not clear it.
    if (m_instance == this)
        m_instance = nullptr;
}

const QList<CodecPreset>& CodecManager::codecPresets() const
{
    return m_codecPresets;
}

QString CodecManager::presetDirectory() const
{
    return m_settings.codecPresetPath();
}

void CodecManager::reloadPresets()
{
    m_codecPresets.clear();
    StoreFile::finishPending(presetDirectory());
    StoreFile::forEachObject(presetDirectory(), [this](const QJsonObject& object) {
        m_codecPresets.append(CodecPreset());
        readCodecPreset(object, m_codecPresets.last());
    });
}

QList<CodecPreset> CodecManager::codecPresetFromName(const QString& name) const
{
    QList<CodecPreset> presets;
    for (const CodecPreset& preset : m_codecPresets) {
        if (preset.videoCodec().codec == name)
            presets.append(preset);
    }
    return presets;
}

CodecPreset CodecManager::codecPresetFromJson(const QJsonObject& object) const
{
    CodecPreset preset;
    readCodecPreset(object, preset);
    return preset;
}

QJsonObject CodecManager::jsonFromCodecPreset(const CodecPreset& preset) const
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    const QJsonObject video{
        {QStringLiteral("Codec"), v.codec},       {QStringLiteral("Width"), v.width},
        {QStringLiteral("Height"), v.height},     {QStringLiteral("FrameRate"), v.frameRate},
        {QStringLiteral("Field"), v.field},       {QStringLiteral("KeyFrame"), v.keyFrame},
        {QStringLiteral("BitRate"), v.bitRate},   {QStringLiteral("Quality"), v.quality},
        {QStringLiteral("Preset"), v.preset},     {QStringLiteral("Tune"), v.tune},
        {QStringLiteral("Profile"), v.profile},   {QStringLiteral("Bframes"), v.bframes},
    };
    const CodecModel::AudioCodec& a = preset.audioCodec();
    const QJsonObject audio{
        {QStringLiteral("Enabled"), a.enabled},     {QStringLiteral("Codec"), a.codec},
        {QStringLiteral("Channels"), a.channels},   {QStringLiteral("SampleRate"), a.sampleRate},
        {QStringLiteral("BitRate"), a.bitRate},     {QStringLiteral("BitPerSamples"), a.bitPerSamples},
    };
    return QJsonObject{{videoKey, video}, {audioKey, audio}};
}

bool CodecManager::write(CodecPreset preset)
{
    const QString path = StoreFile::pathFor(presetDirectory(), namingFromPreset(&preset));
    return StoreFile::write(path, OrderedJson::indented(jsonFromCodecPreset(preset), fileKeyOrder()),
                            StoreFile::Shared);
}

bool CodecManager::replace(const CodecPreset& before, const CodecPreset& after)
{
    const QString directory = presetDirectory();
    return StoreFile::replace(StoreFile::pathFor(directory, namingFromPreset(&before)),
                              StoreFile::pathFor(directory, namingFromPreset(&after)),
                              OrderedJson::indented(jsonFromCodecPreset(after), fileKeyOrder()), StoreFile::Shared);
}

bool CodecManager::remove(CodecPreset preset)
{
    StoreFile::remove(StoreFile::pathFor(presetDirectory(), namingFromPreset(&preset)));
    return true;
}

QString CodecManager::namingFromPreset(const CodecPreset* preset)
{
    QString label;
    if (!preset)
        return label;

    const CodecModel::VideoCodec& v = preset->videoCodec();
    if (v.enabled) {
        label += QStringLiteral("%1").arg(v.codec);
        if (v.frameRate > 0) {
            label += QStringLiteral(" %1%2").arg(QString::number(v.height),
                                                 v.field == 0 ? QStringLiteral("p") : QStringLiteral("i"));
            label += QStringLiteral("%1").arg(v.frameRate, 0, 'g', -1);
        } else {
            label += QStringLiteral(" %1%2").arg(QString::number(v.height), QStringLiteral(" AUTO"));
        }
        if (v.keyFrame > 0)
            label += QStringLiteral(" %1s").arg(v.keyFrame);
        if (v.bitRate > 0)
            label += QStringLiteral(" %1").arg(humanReadableSize(v.bitRate));
        if (v.codec == proResName)
            label += QStringLiteral(" %1").arg(NameTables::proResProfile(v.quality, 0, 5));
    }

    const CodecModel::AudioCodec& a = preset->audioCodec();
    if (a.enabled) {
        label += QStringLiteral(", %1").arg(a.codec);
        // No space before the channel word: existing labels and file names read so.
        label += a.channels == 2 ? QStringLiteral("Stereo") : QStringLiteral("Mono");
        label += QStringLiteral(" %1kHz").arg(sampleRateTokHz(a.sampleRate));
        if (a.bitRate > 0)
            label += QStringLiteral(" %1kbps").arg(a.bitRate);
    }
    return label;
}

QString CodecManager::humanReadableSize(qint64 kbps)
{
    static const char* const units[] = {"kbps", "Mbps", "Gbps"};
    const int lastUnit = int(sizeof(units) / sizeof(units[0])) - 1;
    double value = double(kbps);
    int unit = 0;
    while (value >= 1000 && unit < lastUnit) {
        value /= 1000;
        ++unit;
    }
    double whole = 0;
    if (std::modf(value, &whole) == 0)
        return QStringLiteral("%1%2").arg(qint64(whole)).arg(QLatin1String(units[unit]));
    return QStringLiteral("%1%2").arg(value, 0, 'f', 1).arg(QLatin1String(units[unit]));
}

QString CodecManager::sampleRateTokHz(int hz)
{
    const double k = hz / 1000.0;
    const double fraction = k - std::floor(k);
    if (fraction >= 0.05 && fraction < 0.1)
        return QString::number(k, 'f', 2);
    if (fraction > 0)
        return QString::number(k, 'f', 1);
    return QString::number(k, 'g', QLocale::FloatingPointShortest);
}
