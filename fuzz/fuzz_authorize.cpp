// The addresses a sign-in page reaches, handed to each provider's authorize: the first byte
// picks the provider and whether the rest is a whole address or what follows the service's
// own redirect address (its query and fragment, where codes, tokens and refusals ride).
// The redirect reader is also driven on its own. Requests the handlers make get empty
// replies: what the services answer is fuzz_providers' part.

#include "provider/dailymotion.h"
#include "provider/facebook.h"
#include "provider/oauthredirect.h"
#include "provider/serviceconfig.h"
#include "provider/twitch.h"
#include "provider/youtube.h"

#include "fuzzsupport.h"

#include <QUrl>
#include <QUrlQuery>

#include <memory>

namespace {

std::unique_ptr<Provider> make(int which, ViewInterface* view)
{
    switch (which) {
    case 0: return std::make_unique<YouTube>(view);
    case 1: return std::make_unique<Facebook>(view);
    case 2: return std::make_unique<Twitch>(view);
    default: return std::make_unique<DailyMotion>(view);
    }
}

QString target(int which)
{
    return which == 1 ? ServiceConfig::url(ServiceConfig::FacebookWeb, QStringLiteral("/connect/login_success.html")).toString()
                      : ServiceConfig::redirectUrl();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const int which = data[0] % 4;
    const bool afterTarget = data[0] & 4;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1));
    const QUrl redirect(afterTarget ? target(which) + text : text);

    OAuthRedirect::reaches(redirect, QUrl(target(which)));
    OAuthRedirect::denial(OAuthRedirect::items(redirect));
    {
        FuzzView view({});
        const std::unique_ptr<Provider> provider = make(which, &view);
        provider->setClientId(QStringLiteral("client"));
        provider->setClientSecret(QStringLiteral("secret"));
        provider->authorize(redirect);
        provider->lastError();
        Fuzz::settle();
    }
    Fuzz::settle();
    return 0;
}
