#pragma once

#include "provider/serviceconfig.h"

#include <QString>

// Points every service host of ServiceConfig at one test server through the
// QUILLON_* environment variables, and gives each service test credentials.
class ServiceEnvironment
{
public:
    static void pointAt(const QString& baseUrl);
    static void reset();
    static bool isHostKey(ServiceConfig::Key key);

    static QString clientId() { return QStringLiteral("test-client"); }
    static QString clientSecret() { return QStringLiteral("test-secret"); }
};
