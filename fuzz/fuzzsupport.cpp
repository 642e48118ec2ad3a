#include "fuzzsupport.h"

#include "provider/serviceconfig.h"

#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QNetworkReply>
#include <QStandardPaths>

#include <cstring>

namespace {

// A reply that is complete when it is made, as one served from a cache would be.
class FuzzReply : public QNetworkReply
{
public:
    FuzzReply(const QByteArray& body, QNetworkAccessManager::Operation op, const QNetworkRequest& request, QObject* parent)
        : QNetworkReply(parent), m_body(body)
    {
        setRequest(request);
        setUrl(request.url());
        setOperation(op);
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 200);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        setFinished(true);
        // Listeners that connect after the request still hear of the end, later, as from a socket.
        QMetaObject::invokeMethod(this, &QNetworkReply::finished, Qt::QueuedConnection);
    }

    void abort() override {}
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_body.size() - m_read + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 count = qMin<qint64>(maxSize, m_body.size() - m_read);
        if (count <= 0)
            return -1;
        std::memcpy(data, m_body.constData() + m_read, static_cast<std::size_t>(count));
        m_read += count;
        return count;
    }

private:
    QByteArray m_body;
    qint64 m_read = 0;
};

// Made once, a child of the application, for the whole run.
FuzzNetwork& sharedNetwork()
{
    static FuzzNetwork* network = new FuzzNetwork(QCoreApplication::instance());
    return *network;
}

void swallow(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

void FuzzNetwork::reset(QList<QByteArray> bodies)
{
    // What the last input left unread goes, as it did with that input's network.
    qDeleteAll(findChildren<QNetworkReply*>(QString(), Qt::FindDirectChildrenOnly));
    m_bodies = std::move(bodies);
    m_requests = 0;
}

QNetworkReply* FuzzNetwork::createRequest(Operation op, const QNetworkRequest& request, QIODevice*)
{
    const QByteArray body = m_requests < m_bodies.size() ? m_bodies.at(m_requests) : QByteArray();
    ++m_requests;
    return new FuzzReply(body, op, request, this);
}

FuzzView::FuzzView(QList<QByteArray> replies) : m_network(sharedNetwork())
{
    m_network.reset(std::move(replies));
}

namespace Fuzz {

void startApplication(bool widgets)
{
    if (QCoreApplication::instance())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    // Fixed addresses without a settings file read per request.
    for (int key = 0; key < ServiceConfig::KeyCount; ++key) {
        const auto k = static_cast<ServiceConfig::Key>(key);
        qputenv(ServiceConfig::environmentName(k).toLatin1().constData(), ServiceConfig::defaultValue(k).toUtf8());
    }
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    if (widgets)
        new QApplication(argc, argv);
    else
        new QGuiApplication(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-fuzz"));
    qInstallMessageHandler(swallow);
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QByteArray> pieces(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QList<QByteArray> result;
    const QByteArray separator("\n--\n");
    int start = 0;
    for (int at = input.indexOf(separator); at >= 0; at = input.indexOf(separator, start)) {
        result.append(input.mid(start, at - start));
        start = at + separator.size();
    }
    result.append(input.mid(start));
    return result;
}

QString scratchDirectory(const char* name)
{
    const QString path = QDir::tempPath() + QStringLiteral("/libstreaming-fuzz-%1-%2")
                                                .arg(QLatin1String(name))
                                                .arg(QCoreApplication::applicationPid());
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

} // namespace Fuzz
