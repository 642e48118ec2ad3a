#pragma once

#include "host_export.h"

#include <QSet>
#include <QString>

// What the installed FFmpeg can do: its program, and the encoders it was built with.
// Read by asking the program; a missing program has no encoders. A program that is there
// but does not answer in time (a machine under heavy load) is installed, not available.
class HOST_EXPORT FfmpegCapabilities
{
public:
    // FFmpeg lists its encoders in well under a second when idle; the margin is for a
    // machine under heavy load, where ten seconds proved too few.
    static constexpr int defaultAnswerTimeoutMs = 30000;

    // program: a path, or a name looked up in PATH.
    static FfmpegCapabilities probe(const QString& program = QStringLiteral("ffmpeg"),
                                    int timeoutMs = defaultAnswerTimeoutMs);
    // A fixed set, for callers that know what they run against.
    static FfmpegCapabilities withEncoders(const QString& program, const QSet<QString>& encoders);

    bool isAvailable() const { return !m_program.isEmpty(); }
    bool isInstalled() const { return !m_installed.isEmpty(); }
    // The program that answered, or empty.
    QString program() const { return m_program; }
    // Where the program was found, whether or not it answered.
    QString installedAt() const { return m_installed; }
    // How long the program is given to answer a question: this probe, or a trial encode.
    int answerTimeout() const { return m_timeoutMs; }
    bool hasEncoder(const QString& name) const { return m_encoders.contains(name); }

private:
    QString m_installed;
    int m_timeoutMs = defaultAnswerTimeoutMs;
    QString m_program;
    QSet<QString> m_encoders;
};
