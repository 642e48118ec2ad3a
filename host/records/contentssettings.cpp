#include "records/contentssettings.h"

#include <QDir>

ContentsSettings ContentsSettings::underDirectory(const QString& dataDirectory)
{
    const QDir dir(QDir::cleanPath(dataDirectory));
    return ContentsSettings(dir.filePath(QStringLiteral("codecs")), dir.filePath(QStringLiteral("servers")));
}
