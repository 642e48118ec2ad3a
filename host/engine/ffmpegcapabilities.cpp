#include "engine/ffmpegcapabilities.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

FfmpegCapabilities FfmpegCapabilities::probe(const QString& program)
{
    FfmpegCapabilities caps;
    const QString path = program.contains(QLatin1Char('/')) ? program : QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return caps;
    QProcess process;
    process.start(path, {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
    if (!process.waitForFinished(10000) || process.exitStatus() != QProcess::NormalExit) {
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
    caps.m_program = program;
    caps.m_encoders = encoders;
    return caps;
}
