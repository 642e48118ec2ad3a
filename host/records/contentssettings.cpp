#include "contentssettings.h"

ContentsSettings ContentsSettings::underDirectory(const QString& dataDirectory)
{
    return ContentsSettings(dataDirectory + QStringLiteral("/codecs"), dataDirectory + QStringLiteral("/servers"));
}
