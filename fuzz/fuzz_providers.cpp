// What the services answer, read by each provider: the first byte picks the provider, the
// rest are its replies in the order it asks (one piece per request; an empty reply once
// they run out). The provider signs in (a password sign-in, or the sign-in page's redirect
// carrying a code and a token), lists its channels, then creates, changes and deletes an
// event on the first channel it listed, and signs out: every reply walker on that way
// reads whatever the input holds. The last piece doubles as an ingest table override.

#include "provider/custom.h"
#include "provider/dailymotion.h"
#include "provider/eventinfo.h"
#include "provider/facebook.h"
#include "provider/hitbox.h"
#include "provider/livechannel.h"
#include "provider/serviceconfig.h"
#include "provider/simpleprovider.h"
#include "provider/twitch.h"
#include "provider/ustream.h"
#include "provider/youtube.h"
#include "setup/servicetables.h"

#include "fuzzsupport.h"

#include <QUrl>

#include <memory>

namespace {

constexpr int providerCount = 8;

std::unique_ptr<Provider> make(int which, ViewInterface* view)
{
    switch (which) {
    case 0: return std::make_unique<YouTube>(view);
    case 1: return std::make_unique<Facebook>(view);
    case 2: return std::make_unique<Twitch>(view);
    case 3: return std::make_unique<DailyMotion>(view);
    case 4: return std::make_unique<Hitbox>(view);
    case 5: return std::make_unique<UStream>(view);
    case 6: return std::make_unique<Custom>(view);
    default:
        for (const ServiceTables::Service& service : ServiceTables::services())
            if (service.kind == ServiceTables::Kind::Simple)
                return std::make_unique<SimpleProvider>(view, service.features, service.name, service.homeUrl,
                                                        service.streamUrl, service.servers);
        return std::make_unique<Custom>(view);
    }
}

// Where each service's sign-in page ends, with what an approval carries.
QUrl approval(int which)
{
    const QString target = which == 1
        ? ServiceConfig::url(ServiceConfig::FacebookWeb, QStringLiteral("/connect/login_success.html")).toString()
        : ServiceConfig::redirectUrl();
    return QUrl(target + QStringLiteral("?code=fuzz-code#access_token=fuzz-token&expires_in=60"));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false); // providers load their icons
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const int which = data[0] % providerCount;
    const QList<QByteArray> replies = Fuzz::pieces(data + 1, size - 1);
    // The last piece is also read as an ingest table override, as the settings may hold one.
    QList<LabelPair> servers;
    ServiceTables::parseServerTable(QString::fromUtf8(replies.last()), &servers);
    {
        FuzzView view(replies);
        const std::unique_ptr<Provider> provider = make(which, &view);
        provider->setClientId(QStringLiteral("client"));
        provider->setClientSecret(QStringLiteral("secret"));
        if (!provider->login(QStringLiteral("operator"), QStringLiteral("password")))
            provider->authorize(approval(which));
        provider->loadChannels();
        provider->isAuthorized();

        LiveChannel channel;
        channel.id = QStringLiteral("channel");
        if (!provider->channels().isEmpty())
            channel = provider->channels().first();
        EventInfo event;
        event.title = QStringLiteral("Show");
        event.privacy = provider->privacies().isEmpty() ? QStringLiteral("public") : provider->privacies().first().second;
        event.category = provider->categories().isEmpty() ? QString() : provider->categories().first().second;
        event.startTime = QStringLiteral("2026-01-02T03:04:05Z");
        provider->createEvent(event, channel);
        event.id = provider->events().isEmpty() ? QStringLiteral("event") : provider->events().first().id;
        provider->updateEvent(event, channel);
        provider->deleteEvent(channel);
        provider->features(true);
        provider->revoke();
        Fuzz::settle();
    }
    Fuzz::settle();
    return 0;
}
