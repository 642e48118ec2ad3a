#pragma once

#include "provider/provider.h"

// DailyMotion: OAuth code flow; the account's live videos are its channels.
class DailyMotion : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x000003A4;
    static constexpr quint32 eventFeatures = 0x213F0000;

    explicit DailyMotion(ViewInterface* view);
    ~DailyMotion() override;

    bool authorize(const QUrl& redirect) override;
    bool loadChannels() override;
    // Creates a live video titled and filed as the event says.
    bool createEvent(const EventInfo& event, const LiveChannel& channel) override;
    bool deleteEvent(const LiveChannel& channel) override;
    bool updateEvent(const EventInfo& event, const LiveChannel& channel) override;

private:
    // Fetches the video's publish address; false only when the request failed.
    bool publishChannel(const QString& id, const QString& title, const QString& category, LiveChannel* channel,
                        bool* found);
    QNetworkRequest bearerRequest(const QUrl& url) const;
};
