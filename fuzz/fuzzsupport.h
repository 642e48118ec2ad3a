#pragma once

// What the fuzz targets share: one application object for the whole run, a network that
// answers every request at once from the input, and the input cut into its pieces.

#include "provider/viewinterface.h"

#include <QByteArray>
#include <QList>
#include <QNetworkAccessManager>

#include <cstddef>
#include <cstdint>

namespace Fuzz {

// Creates the application (offscreen; QApplication when `widgets`, else QGuiApplication:
// providers load their icons) once. Settings go to Qt's test locations, every service
// address comes from the environment, and log messages are formatted but not printed.
void startApplication(bool widgets);

// Runs what an input left queued: signals posted for later and deferred deletes.
void settle();

// The input cut at each separator line "\n--\n". A target that reads several documents
// (one reply per request, say) takes them in order.
QList<QByteArray> pieces(const std::uint8_t* data, std::size_t size);

// A directory of the process's own below the system's temporary folder, emptied at the start.
QString scratchDirectory(const char* name);

} // namespace Fuzz

// Answers each request with the next body it was given, already finished, so a provider's
// blocking request returns at once; when the bodies run out, the body is empty.
class FuzzNetwork : public QNetworkAccessManager
{
public:
    explicit FuzzNetwork(QObject* parent = nullptr) : QNetworkAccessManager(parent) {}

    // The next input's bodies; its replies start from the first again.
    void reset(QList<QByteArray> bodies);
    int requests() const { return m_requests; }

protected:
    QNetworkReply* createRequest(Operation op, const QNetworkRequest& request, QIODevice* outgoingData) override;

private:
    QList<QByteArray> m_bodies;
    int m_requests = 0;
};

// The view a provider talks to: the network above and nothing else. The network is made
// once per run (making one costs more than most inputs) and given each input's replies.
class FuzzView : public ViewInterface
{
public:
    explicit FuzzView(QList<QByteArray> replies);

    FuzzNetwork& network() { return m_network; }
    QNetworkAccessManager* networkAccessManager() override { return &m_network; }
    void openWebAuthorize(const QUrl&) override {}
    void closeWebAuthorize() override {}
    void bandwidthTest() override {}
    void debugMessage(const QString&, const QJsonArray&) override {}
    void debugMessage(const QString&, const QJsonObject&) override {}
    void debugMessage(const QString&, const QStringList&) override {}

private:
    FuzzNetwork& m_network;
};
