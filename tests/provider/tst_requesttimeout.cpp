// ctest: slow
#include "provider/provider.h"
#include "support/fakeview.h"
#include "support/httpserver.h"

#include <QElapsedTimer>
#include <QNetworkReply>
#include <QPointer>
#include <QtTest>

namespace {
class WaitingProvider : public Provider
{
public:
    using Provider::Provider;
    using Provider::get;
};
} // namespace

class TestRequestTimeout : public QObject
{
    Q_OBJECT

private slots:
    void silentServerGivesEmptyObjectAndReleasesReply()
    {
        HttpServer server;
        server.on("GET", "/channels", HttpServer::Reply{200, {}, "application/json", {}, true});
        FakeView view;
        auto provider = std::make_unique<WaitingProvider>(&view, "Test");

        QElapsedTimer timer;
        timer.start();
        const QJsonObject reply = provider->get(QNetworkRequest(QUrl(server.baseUrl() + "/channels")));
        const qint64 waited = timer.elapsed();
        QVERIFY(reply.isEmpty());
        QVERIFY2(waited >= Provider::requestTimeout - 50, qPrintable(QString::number(waited)));
        QCOMPARE(server.heldCount(), 1);
        // The reply is neither aborted nor awaited: it stays with the manager...
        const QList<QNetworkReply*> pending = view.networkAccessManager()->findChildren<QNetworkReply*>();
        QCOMPARE(pending.size(), 1);
        QPointer<QNetworkReply> late(pending.first());
        QVERIFY(!late->isFinished());

        // ...and when it finally ends, after its provider is gone, it releases itself
        // without reaching the destroyed provider.
        provider.reset();
        server.release(HttpServer::json(R"({"channels":{}})"));
        QTRY_VERIFY(late.isNull());
        QVERIFY(view.networkAccessManager()->findChildren<QNetworkReply*>().isEmpty());
    }
};

QTEST_MAIN(TestRequestTimeout)
#include "tst_requesttimeout.moc"
