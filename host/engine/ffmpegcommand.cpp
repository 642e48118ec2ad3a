#include "engine/ffmpegcommand.h"

#include "engine/ffmpegcodecmap.h"
#include "engine/ffmpegstreamtarget.h"
#include "engine/testpicture.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// Errors only on stderr, progress every second on stdout, nothing read from stdin.
QStringList common()
{
    return {QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"),      QStringLiteral("-loglevel"),
            QStringLiteral("error"),        QStringLiteral("-nostats"),      QStringLiteral("-progress"),
            QStringLiteral("pipe:1"),       QStringLiteral("-stats_period"), QStringLiteral("1")};
}

QStringList quietOneShot()
{
    return {QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"), QStringLiteral("-loglevel"),
            QStringLiteral("error"), QStringLiteral("-y")};
}

QStringList encodingArguments(const CodecPreset& preset, const FfmpegEncoding& encoding)
{
    QStringList a;
    if (preset.videoCodec().enabled)
        a << QStringLiteral("-map") << QStringLiteral("0:v");
    if (preset.audioCodec().enabled)
        a << QStringLiteral("-map") << QStringLiteral("0:a");
    if (!encoding.videoFilters.isEmpty())
        a << QStringLiteral("-vf") << encoding.videoFilters.join(QLatin1Char(','));
    a << encoding.arguments;
    return a;
}

// One frame to a scratch file (or nowhere, for muxers that need a server).
QStringList trial(const QStringList& programme, const QStringList& encoding, const QString& muxer)
{
    const bool toFile = muxer != QLatin1String("rtsp");
    QStringList a = quietOneShot() + programme + encoding;
    a << QStringLiteral("-frames:v") << QStringLiteral("1") << QStringLiteral("-t") << QStringLiteral("0.1")
      << QStringLiteral("-f") << (toFile ? muxer : QStringLiteral("null"))
      << (toFile ? QDir::temp().filePath(QStringLiteral("quillon-trial-%1.%2")
                                             .arg(QCoreApplication::applicationPid())
                                             .arg(muxer))
                 : QStringLiteral("-"));
    return a;
}

} // namespace

QStringList FfmpegCommand::programme(const CodecPreset& preset, const ProjectPreset& project, bool realTime)
{
    const int video = preset.videoSource().isEmpty() ? TestPicture::Programme : preset.videoSource().firstKey();
    const QList<int> audio = preset.audioSource().isEmpty() ? QList<int>{TestPicture::Programme}
                                                            : preset.audioSource().keys();
    QStringList a;
    if (realTime)
        a << QStringLiteral("-re");
    const bool withAudio = preset.audioCodec().enabled;
    a << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
      << (video == TestPicture::Camera
              ? TestPicture::cameraGraph(project, preset.videoSource().first(), preset.sourceName(), audio, withAudio)
              : TestPicture::graph(project, video, audio, withAudio));
    return a;
}

QString FfmpegCommand::splitFileName(const QString& file, int number)
{
    const QFileInfo info(file);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(" %1").arg(number) + suffix);
}

bool FfmpegCommand::recording(const CodecPreset& preset, const ProjectPreset& project, const FfmpegCapabilities& caps,
                              const QString& file, FfmpegJob* job, QString* refusal)
{
    *job = FfmpegJob();
    const QString muxer = FfmpegCodecMap::muxerOfContainer(preset.container().name);
    if (muxer.isEmpty()) {
        *refusal = tr("The container \"%1\" is unknown to the engine.").arg(preset.container().name);
        return false;
    }
    FfmpegEncoding encoding;
    if (!FfmpegCodecMap::map(preset, project, muxer, caps, &encoding, refusal))
        return false;
    const QStringList input = programme(preset, project, true);
    const QStringList encode = encodingArguments(preset, encoding);
    job->arguments = common() + input + encode;
    job->file = file;
    job->target = QDir::toNativeSeparators(file);
    const int split = preset.local().splitTime;
    if (split > 0) {
        // Key frames on the split points, so every file starts with a picture.
        if (preset.videoCodec().enabled)
            job->arguments << QStringLiteral("-force_key_frames") << QStringLiteral("expr:gte(t,n_forced*%1)").arg(split);
        // The muxer numbers the files with "%d"; a "%" of the name itself is doubled.
        QString pattern = splitFileName(file, 0);
        const int number = pattern.lastIndexOf(QLatin1String(" 0"));
        pattern = pattern.left(number).replace(QLatin1Char('%'), QLatin1String("%%")) + QLatin1String(" %d")
                + pattern.mid(number + 2).replace(QLatin1Char('%'), QLatin1String("%%"));
        job->splitFirst = splitFileName(file, 1);
        job->arguments << QStringLiteral("-f") << QStringLiteral("segment") << QStringLiteral("-segment_time")
                       << QString::number(split) << QStringLiteral("-segment_format") << muxer
                       << QStringLiteral("-reset_timestamps") << QStringLiteral("1") << QStringLiteral("-segment_start_number")
                       << QStringLiteral("1") << QStringLiteral("-y") << pattern;
    } else {
        job->arguments << QStringLiteral("-f") << muxer << QStringLiteral("-y") << file;
    }
    if (encoding.needsTrial)
        job->trialArguments = trial(programme(preset, project, false), encode, muxer);
    return true;
}

bool FfmpegCommand::stream(const CodecPreset& preset, const ProjectPreset& project, const FfmpegCapabilities& caps,
                           FfmpegJob* job, QString* refusal)
{
    *job = FfmpegJob();
    FfmpegStreamTarget target;
    if (!FfmpegStreamTarget::resolve(preset.streaming(), &target, refusal))
        return false;
    FfmpegEncoding encoding;
    if (!FfmpegCodecMap::map(preset, project, target.muxer, caps, &encoding, refusal))
        return false;
    const QStringList encode = encodingArguments(preset, encoding);
    job->arguments = common() + programme(preset, project, true) + encode + target.options;
    job->arguments << QStringLiteral("-f") << target.muxer << target.url;
    job->target = target.display;
    job->secrets = target.secrets;
    job->network = true;
    if (encoding.needsTrial)
        job->trialArguments = trial(programme(preset, project, false), encode, target.muxer);
    return true;
}

bool FfmpegCommand::grab(int source, const ProjectPreset& project, const QString& path, QStringList* arguments,
                         QString* refusal)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    static const QStringList writable{QStringLiteral("png"), QStringLiteral("jpg"),  QStringLiteral("jpeg"),
                                      QStringLiteral("bmp"), QStringLiteral("tiff"), QStringLiteral("tif"),
                                      QStringLiteral("gif"), QStringLiteral("webp"), QStringLiteral("tga")};
    if (!writable.contains(suffix)) {
        *refusal = tr("A still cannot be written as \"%1\"; choose png, jpg, bmp, tiff, gif, webp or tga.").arg(suffix);
        return false;
    }
    *arguments = quietOneShot();
    *arguments << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
               << TestPicture::grabGraph(project, source) << QStringLiteral("-frames:v") << QStringLiteral("1");
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        *arguments << QStringLiteral("-q:v") << QStringLiteral("2");
    *arguments << QStringLiteral("-f") << QStringLiteral("image2") << QStringLiteral("-update") << QStringLiteral("1")
               << path;
    return true;
}

QString FfmpegCommand::errorReason(const QByteArray& errors)
{
    QStringList lines;
    for (const QByteArray& raw : errors.split('\n'))
        if (!raw.trimmed().isEmpty())
            lines.append(QString::fromUtf8(raw.trimmed()));
    if (lines.isEmpty())
        return QString();
    QString line = lines.last();
    if (line.startsWith(QLatin1String("Error initializing output stream")) || line == QLatin1String("Conversion failed!"))
        line = lines.first();
    static const QRegularExpression prefix(QStringLiteral("^\\[[^\\]]* @ 0x[0-9a-fA-F]+\\]\\s*"));
    return line.remove(prefix);
}
