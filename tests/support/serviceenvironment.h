#pragma once

#include <QString>

// Points every service host of ServiceConfig at one test server through the
// QUILLON_* environment variables, and gives each service the credentials
// "test-client" and "test-secret".
namespace ServiceEnvironment {
void pointAt(const QString& baseUrl);
void reset();
} // namespace ServiceEnvironment
