#include "support/serviceenvironment.h"

#include <QtGlobal>

void ServiceEnvironment::pointAt(const QString& baseUrl)
{
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        const QByteArray name = ServiceConfig::environmentName(key).toLatin1();
        const QString keyName = ServiceConfig::keyName(key);
        if (isHostKey(key))
            qputenv(name.constData(), baseUrl.toUtf8());
        else if (keyName.endsWith(QLatin1String(".clientid")))
            qputenv(name.constData(), clientId().toUtf8());
        else if (keyName.endsWith(QLatin1String(".clientsecret")))
            qputenv(name.constData(), clientSecret().toUtf8());
    }
}

void ServiceEnvironment::reset()
{
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        qunsetenv(ServiceConfig::environmentName(key).toLatin1().constData());
    }
}

bool ServiceEnvironment::isHostKey(ServiceConfig::Key key)
{
    // Ingest and chat addresses are not HTTP hosts; the redirect is never contacted.
    switch (key) {
    case ServiceConfig::OAuthRedirect:
    case ServiceConfig::TwitchIngest:
    case ServiceConfig::TwitchIrc:
    case ServiceConfig::HitboxIngest:
    case ServiceConfig::FacebookIngest:
        return false;
    default: {
        // Server tables are JSON, not addresses; tests that need one set it themselves.
        const QString name = ServiceConfig::keyName(key);
        return !name.endsWith(QLatin1String(".clientid")) && !name.endsWith(QLatin1String(".clientsecret"))
            && !name.endsWith(QLatin1String(".servers"));
    }
    }
}
