#pragma once

#include "records/codecmodel.h"

#include <QList>

// Whether a new stream would go where an existing row already streams. What counts
// as "the same place" depends on the scheme of the new URL: an rtmp(s) ingest takes
// many streams under different keys, an srt listener one per port, anything else
// one per URL.
class DuplicateStreamCheck
{
public:
    static bool isDuplicate(const CodecModel::Streaming& candidate, const CodecModel::Streaming& existing);
    // The first existing row the candidate duplicates, or -1.
    static int findDuplicate(const CodecModel::Streaming& candidate, const QList<CodecModel::Streaming>& rows);
};
