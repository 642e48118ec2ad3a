#include "support/serviceenvironment.h"

#include "provider/serviceconfig.h"

namespace ServiceEnvironment {

void pointAt(const QString& baseUrl)
{
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        const QByteArray name = ServiceConfig::environmentName(key).toLatin1();
        const QString keyName = ServiceConfig::keyName(key);
        if (keyName.endsWith(QLatin1String(".clientid")))
            qputenv(name.constData(), "test-client");
        else if (keyName.endsWith(QLatin1String(".clientsecret")))
            qputenv(name.constData(), "test-secret");
        // Ingest and chat addresses are not HTTP hosts, the redirect is never contacted, and
        // server tables are JSON: tests that need one set it themselves.
        else if (!keyName.endsWith(QLatin1String(".ingest")) && !keyName.endsWith(QLatin1String(".servers"))
                 && key != ServiceConfig::OAuthRedirect && key != ServiceConfig::TwitchIrc
                 && key != ServiceConfig::TwitchIrcPort)
            qputenv(name.constData(), baseUrl.toUtf8());
    }
}

void reset()
{
    for (int index = 0; index < ServiceConfig::KeyCount; ++index)
        qunsetenv(ServiceConfig::environmentName(static_cast<ServiceConfig::Key>(index)).toLatin1().constData());
}

} // namespace ServiceEnvironment
