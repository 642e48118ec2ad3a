#include "provider/youtubebodies.h"

#include <QJsonArray>
#include <QStringList>

QJsonObject YouTubeBodies::broadcast(const EventInfo& event)
{
    QJsonObject snippet{{"title", event.title},
                        {"description", event.description},
                        {"scheduledStartTime", event.startTime}};
    if (!event.endTime.isEmpty())
        snippet.insert(QStringLiteral("scheduledEndTime"), event.endTime);
    const QJsonObject details{{"enableContentEncryption", false},
                              {"enableDvr", true},
                              {"enableEmbed", false},
                              {"recordFromStart", true},
                              {"startWithSlate", true},
                              {"monitorStream", QJsonObject{{"broadcastStreamDelayMs", 0}, {"enableMonitorStream", true}}}};
    return QJsonObject{{"id", event.id},
                       {"snippet", snippet},
                       {"status", QJsonObject{{"privacyStatus", event.privacy}}},
                       {"contentDetails", details}};
}

QJsonObject YouTubeBodies::stream(const QJsonObject& broadcastReply)
{
    const QJsonObject snippet = broadcastReply.value(QStringLiteral("snippet")).toObject();
    return QJsonObject{{"snippet", QJsonObject{{"channelId", snippet.value(QStringLiteral("channelId")).toString()},
                                               {"title", snippet.value(QStringLiteral("title")).toString()},
                                               {"description", snippet.value(QStringLiteral("description")).toString()}}},
                       {"cdn", QJsonObject{{"format", QString()},
                                           {"ingestionType", "rtmp"},
                                           {"frameRate", "variable"},
                                           {"resolution", "variable"}}}};
}

QJsonObject YouTubeBodies::video(const EventInfo& event)
{
    // "funny animals, newton" is how the dialog suggests typing them.
    QJsonArray tags;
    for (const QString& tag : event.tags.split(QLatin1Char(',')))
        if (!tag.trimmed().isEmpty())
            tags.append(tag.trimmed());
    return QJsonObject{{"id", event.id},
                       {"snippet", QJsonObject{{"categoryId", event.category},
                                               {"title", event.title},
                                               {"description", event.description},
                                               {"tags", tags}}},
                       {"status", QJsonObject{{"privacyStatus", event.privacy}}}};
}

QString YouTubeBodies::regionCode(const QString& localeName)
{
    const QStringList pieces = localeName.split(QLatin1Char('_'));
    return pieces.size() == 2 ? pieces.last() : QString();
}
