#pragma once

#include "provider/provider.h"

// Twitch through its REST interface: the OAuth implicit grant (the token comes back in
// the redirect's fragment), the ingest list as servers and the user's channel with its
// stream key. No events. The live chat derives from it and logs in with the same token
// (scope chat_login) as the channel name.
class Twitch : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x00000FA1;
    static constexpr quint32 eventFeatures = 0x00300000;

    explicit Twitch(ViewInterface* view);
    ~Twitch() override;

    bool authorize(const QUrl& redirect) override;
    bool isAuthorized() const override;
    bool revoke() override;

    // An ingest's "url_template" as a server address.
    static QString ingestUrl(const QString& urlTemplate);

protected:
    // For the live chat, which shows under a name of its own.
    Twitch(ViewInterface* view, const QString& name);
    // A request to the API host with the token ("OAuth") and the interface version asked for.
    QNetworkRequest apiRequest(const QString& pathAndQuery, const QByteArray& accept) const;
};
