#pragma once

#include <QCoreApplication>
#include <QString>

class CodecPreset;

// One log line for an output the engine was asked to start or stop.
class EncodingLogFormatter
{
    Q_DECLARE_TR_FUNCTIONS(EncodingLogFormatter)

public:
    enum Kind { Streaming = 0, Recording = 1 };

    // kind as the dialogs report it: 0 streaming, 1 recording.
    // file: the name the engine writes a recording under, when it knows it.
    static QString describe(int kind, const CodecPreset& preset, bool on, const QString& file = QString());
    // Where the output goes: the file name for a recording, the URL (and masked key) for a stream.
    static QString destination(int kind, const CodecPreset& preset);
    // A stream key as the log shows it: bullets and, for a long key, its last four characters.
    static QString maskedKey(const QString& key);
};
