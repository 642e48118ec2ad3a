#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

// A small HTTP/1.1 server on 127.0.0.1 (port 0) for tests: it answers each
// request from a table of canned replies (by method and path) or a handler,
// and records every request it saw.
class HttpServer : public QObject
{
    Q_OBJECT
public:
    struct Request {
        QByteArray method;
        QString path;        // as sent, without the query
        QString query;       // as sent, without the "?"
        QByteArray target;   // the whole request target
        QList<QPair<QByteArray, QByteArray>> headers;
        QByteArray body;

        // The first header of that name (case-insensitive), or empty.
        QByteArray header(const QByteArray& name) const;
    };

    struct Reply {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        QList<QPair<QByteArray, QByteArray>> headers;
        // Never answers: the connection stays open until release() or destruction.
        bool silent = false;
    };

    using Handler = std::function<Reply(const Request&)>;

    explicit HttpServer(QObject* parent = nullptr);
    ~HttpServer() override;

    quint16 port() const;
    QString baseUrl() const; // "http://127.0.0.1:<port>"

    void on(const QByteArray& method, const QString& path, const Reply& reply);
    void on(const QByteArray& method, const QString& path, const Handler& handler);
    // A 200 reply with the given JSON text.
    void onJson(const QByteArray& method, const QString& path, const QByteArray& json, int status = 200);

    const QList<Request>& requests() const { return m_requests; }
    QList<Request> requests(const QByteArray& method, const QString& path) const;
    void clearRequests() { m_requests.clear(); }
    // Answers every held (silent) request with this reply and closes it.
    void release(const Reply& reply);
    int heldCount() const { return m_held.size(); }

    static Reply json(const QByteArray& body, int status = 200);

private:
    struct Connection {
        QByteArray buffer;
    };

    void readFrom(QTcpSocket* socket);
    void answer(QTcpSocket* socket, const Reply& reply);

    QTcpServer m_server;
    QHash<QByteArray, Handler> m_routes;
    QList<Request> m_requests;
    QHash<QTcpSocket*, QByteArray> m_buffers;
    QList<QTcpSocket*> m_held;
};
