#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QUrl>

class QNetworkAccessManager;

// What a provider may ask of the window that hosts it. The streaming dialog
// implements it; providers never open windows of their own.
class ViewInterface
{
public:
    // Every provider request goes through this manager; it owns the replies.
    virtual QNetworkAccessManager* networkAccessManager() = 0;
    // Shows the service's authorisation page; each page it reaches comes back
    // to the provider's authorize().
    virtual void openWebAuthorize(const QUrl& url) = 0;
    virtual void closeWebAuthorize() = 0;
    // Starts the best-server test on the current provider.
    virtual void bandwidthTest() = 0;
    // Every reply, with the tag of the request that fetched it.
    virtual void debugMessage(const QString& tag, const QJsonArray& data) = 0;
    virtual void debugMessage(const QString& tag, const QJsonObject& data) = 0;
    virtual void debugMessage(const QString& tag, const QStringList& data) = 0;

    virtual ~ViewInterface() = default;
};
