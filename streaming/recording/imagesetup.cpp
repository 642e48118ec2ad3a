#include "imagesetup.h"

#include "filetag.h"

#include <QDir>
#include <QFileInfo>

QString ImageSetup::tagFromName(const Snapshot& shot, bool withExtension)
{
    return FileTag::fromSnapshot(shot, withExtension);
}

QString ImageSetup::localPath(const Snapshot& shot)
{
    const QString base = shot.directory + QDir::separator() + tagFromName(shot, false);
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
