#include "support/mediaprobe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>

namespace MediaProbe {

bool available()
{
    return !QStandardPaths::findExecutable(QStringLiteral("ffprobe")).isEmpty()
        && !QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty();
}

QJsonObject probe(const QString& fileOrUrl, int timeoutMs)
{
    QProcess process;
    process.start(QStringLiteral("ffprobe"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-rw_timeout"), QStringLiteral("10000000"),
                   QStringLiteral("-show_streams"), QStringLiteral("-show_format"), QStringLiteral("-of"),
                   QStringLiteral("json"), fileOrUrl});
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(2000);
        return {};
    }
    const QJsonObject result = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    return result.value(QStringLiteral("streams")).toArray().isEmpty() ? QJsonObject() : result;
}

QJsonObject stream(const QJsonObject& probed, const QString& type)
{
    for (const QJsonValue& s : probed.value(QStringLiteral("streams")).toArray())
        if (s.toObject().value(QStringLiteral("codec_type")).toString() == type)
            return s.toObject();
    return {};
}

double duration(const QJsonObject& probed)
{
    return probed.value(QStringLiteral("format")).toObject().value(QStringLiteral("duration")).toString().toDouble();
}

} // namespace MediaProbe
