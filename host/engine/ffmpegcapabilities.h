#pragma once

#include "host_export.h"

#include <QSet>
#include <QString>

// What the installed FFmpeg can do: its program, and the encoders it was built with.
// Read once by asking the program; a missing program has no encoders.
class HOST_EXPORT FfmpegCapabilities
{
public:
    // program: a path, or a name looked up in PATH.
    static FfmpegCapabilities probe(const QString& program = QStringLiteral("ffmpeg"));
    // A fixed set, for callers that know what they run against.
    static FfmpegCapabilities withEncoders(const QString& program, const QSet<QString>& encoders);

    bool isAvailable() const { return !m_program.isEmpty(); }
    QString program() const { return m_program; }
    bool hasEncoder(const QString& name) const { return m_encoders.contains(name); }

private:
    QString m_program;
    QSet<QString> m_encoders;
};
