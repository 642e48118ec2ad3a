#include "engine/ffmpegcapabilities.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

FfmpegCapabilities FfmpegCapabilities::probe(const QString& program, int timeoutMs)
{
    FfmpegCapabilities caps;
    caps.m_timeoutMs = timeoutMs;
    const QString path = program.contains(QLatin1Char('/')) ? program : QStandardPaths::findExecutable(program);
    if (path.isEmpty() || !QFileInfo(path).isExecutable())
        return caps;
    caps.m_installed = path;
    QProcess process;
    process.start(path, {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
    if (!process.waitForFinished(timeoutMs) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(1000);
        return caps;
    }
    caps.m_program = path;
    // Lines such as " V....D libx264              libx264 H.264 / AVC ...".
    static const QRegularExpression line(QStringLiteral("^\\s*[VAS][A-Z.]{5}\\s+(\\S+)\\s"));
    for (const QByteArray& raw : process.readAllStandardOutput().split('\n')) {
        const QRegularExpressionMatch match = line.match(QString::fromUtf8(raw));
        if (match.hasMatch())
            caps.m_encoders.insert(match.captured(1));
    }
    return caps;
}

FfmpegCapabilities FfmpegCapabilities::withEncoders(const QString& program, const QSet<QString>& encoders)
{
    FfmpegCapabilities caps;
    caps.m_installed = program;
    caps.m_program = program;
    caps.m_encoders = encoders;
    return caps;
}
