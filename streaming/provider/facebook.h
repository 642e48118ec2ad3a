#pragma once

#include "provider/provider.h"

// Facebook Live through the Graph API: the OAuth code flow on the service's own login
// success page, the live videos of the user and of every page the user manages (each
// with its own token), and live videos created, changed and ended from the event dialog.
class Facebook : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x000003E4;
    static constexpr quint32 eventFeatures = 0x557F0000;
    // What the event dialog shows for a new live video and for a change.
    static constexpr quint32 createFields = 0x55000000;
    static constexpr quint32 updateFields = 0x05000000;

    explicit Facebook(ViewInterface* view);
    ~Facebook() override;

    bool authorize(const QUrl& redirect) override;
    bool loadChannels() override;
    // Creates the live video for the chosen page (or, when none is chosen, the owner the
    // channel was listed under, else the user).
    bool createEvent(const EventInfo& event, const LiveChannel& channel) override;
    // Ends the live video; the service keeps it.
    bool deleteEvent(const LiveChannel& channel) override;
    bool updateEvent(const EventInfo& event, const LiveChannel& channel) override;
    bool isAuthorized() const override;
    bool revoke() override;
    quint32 features(bool alternate) const override;
    using Provider::features;

    // The page the sign-in ends on; it carries the code.
    static QUrl loginSuccessPage();
    // The watch link inside the player markup the service lists a video with.
    static QString watchLink(const QString& embedHtml);
    // The stream URL and key in a "stream_url": the text before the video id (less the
    // "/" before it) and the id with what follows. False unless the id is in it once.
    static bool splitStreamUrl(const QString& streamUrl, const QString& id, QString* url, QString* key);

private:
    // Lists one owner's usable live videos; false when its listing failed.
    bool listVideos(const PageInfo& owner, QList<LiveChannel>* channels, QList<EventInfo>* events);
    // The token that acts for the video's owner.
    QString tokenFor(const LiveChannel& channel) const;
    static QUrl graphUrl(const QString& pathAndQuery);
};
