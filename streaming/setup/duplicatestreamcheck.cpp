#include "setup/duplicatestreamcheck.h"

#include <QUrl>

bool DuplicateStreamCheck::isDuplicate(const CodecModel::Streaming& candidate, const CodecModel::Streaming& existing)
{
    if (candidate.url != existing.url)
        return false;
    const QString scheme = QUrl(candidate.url).scheme().toLower();
    if (scheme.contains(QLatin1String("rtmp")))
        return candidate.key == existing.key;
    if (scheme.contains(QLatin1String("srt")))
        return candidate.port == existing.port;
    return true;
}

int DuplicateStreamCheck::findDuplicate(const CodecModel::Streaming& candidate,
                                        const QList<CodecModel::Streaming>& rows)
{
    for (int row = 0; row < rows.size(); ++row)
        if (isDuplicate(candidate, rows.at(row)))
            return row;
    return -1;
}
