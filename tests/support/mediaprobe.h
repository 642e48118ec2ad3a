#pragma once

#include <QJsonObject>
#include <QString>

// What ffprobe reads from a file or a live URL: streams and format as JSON.
namespace MediaProbe {

bool available();
// Empty when ffprobe found nothing playable within timeoutMs.
QJsonObject probe(const QString& fileOrUrl, int timeoutMs = 15000);
// The first stream of that type ("video", "audio"); empty when there is none.
QJsonObject stream(const QJsonObject& probed, const QString& type);
double duration(const QJsonObject& probed);

} // namespace MediaProbe
