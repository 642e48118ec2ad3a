#include "stores/filetag.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "records/codecpreset.h"
#include "stores/nametables.h"
#include "stores/snapshot.h"

#include <QHash>

namespace {

std::function<QDateTime()>& fileTagClock()
{
    static std::function<QDateTime()> current = &QDateTime::currentDateTime;
    return current;
}

// Replaces each token ("%" and a letter) of the tag with its value in one pass over the
// tag as typed; a "%" at the end or before an unknown letter stays. What a value brings in
// is never read again: a name holding "%P" stays as it is, and a template cannot make
// its own name grow with every token.
QString expand(const QString& tag, const QHash<QString, QString>& values)
{
    QString result;
    result.reserve(tag.size());
    for (int at = 0; at < tag.size(); ++at) {
        if (tag.at(at) == QLatin1Char('%') && at + 1 < tag.size()) {
            const auto it = values.constFind(tag.mid(at, 2));
            if (it != values.constEnd()) {
                result += it.value();
                ++at;
                continue;
            }
        }
        result += tag.at(at);
    }
    return result;
}

QHash<QString, QString> dateTimeValues()
{
    const QDateTime now = fileTagClock()();
    const QDate date = now.date();
    const QTime time = now.time();
    return {
        {QStringLiteral("%Y"), date.toString(QStringLiteral("yyyy"))},
        {QStringLiteral("%M"), date.toString(QStringLiteral("MM"))},
        {QStringLiteral("%D"), date.toString(QStringLiteral("dd"))},
        {QStringLiteral("%h"), time.toString(QStringLiteral("hh"))},
        {QStringLiteral("%m"), time.toString(QStringLiteral("mm"))},
        {QStringLiteral("%s"), time.toString(QStringLiteral("ss"))},
    };
}

QString withSuffix(const QString& name, bool withExtension, const QString& extension)
{
    return withExtension ? name + QLatin1Char('.') + extension : name;
}

} // namespace

QString FileTag::fromCodecPreset(const CodecPreset* preset, bool withExtension)
{
    if (!preset)
        return QString();

    QString tag = preset->local().fileTag;
    if (tag.isEmpty())
        tag = tr("Untitled");

    QHash<QString, QString> values = dateTimeValues();
    const CodecModel::VideoCodec& video = preset->videoCodec();

    QString bitRate;
    if (video.codec == QLatin1String("DV25"))
        bitRate = QString::asprintf("%dKbps", 28770);
    else if (video.codec == QLatin1String("MJPEG"))
        bitRate = QString::asprintf("%dMbps", video.bitRate / 1000);
    else if (video.codec == QLatin1String("Apple ProRes"))
        bitRate = QStringLiteral("%1").arg(NameTables::proResProfile(video.quality, 0, 3));
    else
        bitRate = QString::asprintf("%dKbps", video.bitRate);

    const QString resolution = video.codec == QLatin1String("DV25")
                                   ? QString::asprintf("%dx%d", 720, 480)
                                   : QString::asprintf("%dx%d", video.width, video.height);

    QString source = preset->sourceName();
    if (source.isEmpty() && !preset->videoSource().isEmpty()) {
        switch (preset->videoSource().firstKey()) {
        case 0: source = tr("PGM"); break;
        case 1: source = tr("PGM CLEAN"); break;
        case 2: source = tr("PVW"); break;
        default: break;
        }
    }

    values.insert(QStringLiteral("%C"), video.codec);
    values.insert(QStringLiteral("%B"), bitRate);
    values.insert(QStringLiteral("%R"), resolution);
    values.insert(QStringLiteral("%P"), preset->name());
    values.insert(QStringLiteral("%S"), source);
    return withSuffix(expand(tag, values), withExtension, preset->container().name);
}

QString FileTag::fromSnapshot(const Snapshot& shot, bool withExtension)
{
    QString tag = shot.fileTag;
    if (tag.isEmpty())
        tag = tr("Untitled");

    QString source;
    switch (shot.source) {
    case 0: source = tr("PROGRAM"); break;
    case 1: source = tr("CLEAN PROGRAM"); break;
    case 2: source = tr("PREVIEW"); break;
    case 3: source = tr("CLEAN PREVIEW"); break;
    default: break;
    }

    QHash<QString, QString> values = dateTimeValues();
    values.insert(QStringLiteral("%P"), shot.name);
    values.insert(QStringLiteral("%S"), source);
    return withSuffix(expand(tag, values), withExtension, shot.extension);
}

void FileTag::setClock(std::function<QDateTime()> clock)
{
    fileTagClock() = clock ? std::move(clock) : std::function<QDateTime()>(&QDateTime::currentDateTime);
}

void FileTag::resetClock()
{
    fileTagClock() = &QDateTime::currentDateTime;
}

QString FileTag::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::MoviesLocation) + QLatin1Char('/')
         + QCoreApplication::applicationName();
}

QString FileTag::imagePath(const Snapshot& shot)
{
    const QString base = shot.directory + QDir::separator() + fromSnapshot(shot, false);
    const QString suffix = QLatin1Char('.') + shot.extension;

    QString path = base;
    QString candidate = base + suffix;
    for (int n = 2; n < 1000; ++n) {
        if (!QFileInfo::exists(candidate)) {
            path = candidate;
            break;
        }
        candidate = base + QStringLiteral(" %1").arg(n) + suffix;
    }

    const QString directory = QFileInfo(path).absolutePath();
    if (!QDir(directory).exists())
        QDir().mkpath(directory);
    return path;
}
