#include "support/fakeview.h"

#include <QJsonArray>
#include <QJsonObject>

FakeView::FakeView() : m_manager(std::make_unique<QNetworkAccessManager>()) {}
FakeView::~FakeView() = default;

QNetworkAccessManager* FakeView::networkAccessManager() { return m_manager.get(); }
void FakeView::openWebAuthorize(const QUrl& url) { openedUrls.append(url); }
void FakeView::closeWebAuthorize() { ++closeCount; }
void FakeView::bandwidthTest() {}
void FakeView::resetManager() { m_manager.reset(); }

void FakeView::debugMessage(const QString& tag, const QJsonArray& data) { messages.append({tag, QVariant(data)}); }
void FakeView::debugMessage(const QString& tag, const QJsonObject& data) { messages.append({tag, QVariant(data)}); }
void FakeView::debugMessage(const QString& tag, const QStringList& data) { messages.append({tag, QVariant(data)}); }

QStringList FakeView::tags() const
{
    QStringList result;
    for (const auto& message : messages)
        result.append(message.first);
    return result;
}
