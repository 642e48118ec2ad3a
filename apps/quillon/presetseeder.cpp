#include "quillon/presetseeder.h"

#include "records/codecpreset.h"
#include "stores/codecmanager.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

CodecPreset video(const QString& codec, int width, int height, double rate, bool interlaced, int kbps)
{
    CodecPreset p;
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = width;
    v.height = height;
    v.frameRate = rate;
    v.field = interlaced ? 1 : 0;
    v.bitRate = kbps;
    return p;
}

void audio(CodecPreset& p, const QString& codec, int kbps, int bits)
{
    CodecModel::AudioCodec& a = p.audioCodec();
    a.enabled = true;
    a.codec = codec;
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = kbps;
    a.bitPerSamples = bits;
}

void delivery(CodecPreset& p, int keyFrameSeconds, const QString& speed, int profile, int bframes)
{
    CodecModel::VideoCodec& v = p.videoCodec();
    v.keyFrame = keyFrameSeconds;
    v.preset = speed;
    v.profile = profile;
    v.bframes = bframes;
}

} // namespace

QList<CodecPreset> PresetSeeder::starterPresets()
{
    QList<CodecPreset> presets;

    // Typical streaming: 1080p29.97 at 6 Mbps, 2 s key frames as the services ask.
    CodecPreset stream1080 = video(QStringLiteral("H.264"), 1920, 1080, 29.97, false, 6000);
    delivery(stream1080, 2, QStringLiteral("veryfast"), 2, 2);
    audio(stream1080, QStringLiteral("AAC"), 192, 16);
    presets.append(stream1080);

    CodecPreset stream720 = video(QStringLiteral("H.264"), 1280, 720, 59.94, false, 4500);
    delivery(stream720, 2, QStringLiteral("veryfast"), 2, 2);
    audio(stream720, QStringLiteral("AAC"), 160, 16);
    presets.append(stream720);

    // Follows the project's frame rate.
    CodecPreset auto1080 = video(QStringLiteral("H.264"), 1920, 1080, 0.0, false, 8000);
    delivery(auto1080, 0, QStringLiteral("fast"), 2, 2);
    audio(auto1080, QStringLiteral("AAC"), 192, 16);
    presets.append(auto1080);

    // Mastering: ProRes HQ (profile index 3) with uncompressed sound.
    CodecPreset master = video(QStringLiteral("Apple ProRes"), 1920, 1080, 59.94, true, 0);
    master.videoCodec().quality = 3;
    audio(master, QStringLiteral("PCM"), 0, 24);
    presets.append(master);

    CodecPreset mjpeg = video(QStringLiteral("MJPEG"), 1920, 1080, 29.97, false, 75000);
    audio(mjpeg, QStringLiteral("PCM"), 0, 16);
    presets.append(mjpeg);

    CodecPreset uhd = video(QStringLiteral("HEVC"), 3840, 2160, 29.97, false, 20000);
    delivery(uhd, 2, QStringLiteral("medium"), 1, 3);
    audio(uhd, QStringLiteral("AAC"), 256, 16);
    presets.append(uhd);

    return presets;
}

int PresetSeeder::seedOnce(CodecManager& store, const QString& markerFile, QString* error)
{
    if (QFileInfo::exists(markerFile))
        return 0;

    QJsonArray labels;
    int written = 0;
    for (const CodecPreset& preset : starterPresets()) {
        const QString label = CodecManager::namingFromPreset(&preset);
        labels.append(label);
        // An operator's own preset under the same label wins.
        if (QFileInfo::exists(QDir(store.presetDirectory()).filePath(label + QStringLiteral(".json"))))
            continue;
        if (!store.write(preset)) {
            if (error)
                *error = tr("The codec preset %1 could not be written to %2.")
                             .arg(label, QDir::toNativeSeparators(store.presetDirectory()));
            store.reloadPresets();
            return -1;
        }
        ++written;
    }
    store.reloadPresets();

    QSaveFile marker(markerFile);
    const QJsonObject record{{QStringLiteral("SeededAt"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                             {QStringLiteral("Presets"), labels}};
    if (!marker.open(QIODevice::WriteOnly) || marker.write(QJsonDocument(record).toJson()) < 0 || !marker.commit()) {
        if (error)
            *error = tr("The starter presets were written but %1 could not be (%2); they may come back.")
                         .arg(QDir::toNativeSeparators(markerFile), marker.errorString());
        return -1;
    }
    return written;
}
