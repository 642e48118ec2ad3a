#pragma once

#include "provider/viewinterface.h"

#include <QJsonValue>
#include <QList>
#include <QNetworkAccessManager>
#include <QPair>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <memory>

// A ViewInterface for tests: owns a network manager and records what
// providers asked of it.
class FakeView : public ViewInterface
{
public:
    FakeView();
    ~FakeView() override;

    QNetworkAccessManager* networkAccessManager() override;
    void openWebAuthorize(const QUrl& url) override;
    void closeWebAuthorize() override;
    void bandwidthTest() override;
    void debugMessage(const QString& tag, const QJsonArray& data) override;
    void debugMessage(const QString& tag, const QJsonObject& data) override;
    void debugMessage(const QString& tag, const QStringList& data) override;

    // Each debug message: its tag and the data (QJsonArray, QJsonObject or QStringList).
    QList<QPair<QString, QVariant>> messages;
    QStringList tags() const;
    QList<QUrl> openedUrls;
    int closeCount = 0;

    // Drops the network manager (and every reply it still owns).
    void resetManager();

private:
    std::unique_ptr<QNetworkAccessManager> m_manager;
};
