#include "support/httpserver.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace {
QByteArray routeKey(const QByteArray& method, const QString& path)
{
    return method + ' ' + path.toUtf8();
}
} // namespace

QByteArray HttpServer::Request::header(const QByteArray& name) const
{
    for (const auto& header : headers) {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0)
            return header.second;
    }
    return {};
}

HttpServer::HttpServer(QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            socket->setParent(this);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readFrom(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_buffers.remove(socket);
                m_held.removeAll(socket);
                socket->deleteLater();
            });
        }
    });
    m_server.listen(QHostAddress::LocalHost, 0);
}

HttpServer::~HttpServer() { m_server.close(); }
quint16 HttpServer::port() const { return m_server.serverPort(); }
QString HttpServer::baseUrl() const { return QStringLiteral("http://127.0.0.1:%1").arg(port()); }

void HttpServer::on(const QByteArray& method, const QString& path, const Reply& reply)
{
    on(method, path, [reply](const Request&) { return reply; });
}

void HttpServer::on(const QByteArray& method, const QString& path, const Handler& handler)
{
    m_routes.insert(routeKey(method, path), handler);
}

void HttpServer::onJson(const QByteArray& method, const QString& path, const QByteArray& body, int status)
{
    on(method, path, json(body, status));
}

QList<HttpServer::Request> HttpServer::requests(const QByteArray& method, const QString& path) const
{
    QList<Request> matching;
    for (const Request& request : m_requests) {
        if (request.method == method && request.path == path)
            matching.append(request);
    }
    return matching;
}

void HttpServer::release(const Reply& reply)
{
    const QList<QTcpSocket*> held = m_held;
    m_held.clear();
    for (QTcpSocket* socket : held)
        answer(socket, reply);
}

HttpServer::Reply HttpServer::json(const QByteArray& body, int status)
{
    Reply reply;
    reply.status = status;
    reply.body = body;
    return reply;
}

void HttpServer::readFrom(QTcpSocket* socket)
{
    QByteArray& buffer = m_buffers[socket];
    buffer += socket->readAll();
    for (;;) {
        const int headerEnd = buffer.indexOf("\r\n\r\n");
        if (headerEnd < 0)
            return;
        const QList<QByteArray> lines = buffer.left(headerEnd).split('\n');
        const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
        Request request;
        request.method = requestLine.value(0);
        request.target = requestLine.value(1);
        const int mark = request.target.indexOf('?');
        request.path = QString::fromUtf8(mark < 0 ? request.target : request.target.left(mark));
        request.query = mark < 0 ? QString() : QString::fromUtf8(request.target.mid(mark + 1));
        int length = 0;
        for (int i = 1; i < lines.size(); ++i) {
            const QByteArray line = lines.at(i).trimmed();
            const int colon = line.indexOf(':');
            if (colon <= 0)
                continue;
            const QByteArray name = line.left(colon).trimmed();
            const QByteArray value = line.mid(colon + 1).trimmed();
            request.headers.append({name, value});
            if (name.compare("content-length", Qt::CaseInsensitive) == 0)
                length = value.toInt();
        }
        if (buffer.size() < headerEnd + 4 + length)
            return;
        request.body = buffer.mid(headerEnd + 4, length);
        buffer.remove(0, headerEnd + 4 + length);
        m_requests.append(request);

        // Unmatched requests get 404 with an empty JSON object.
        const Handler handler = m_routes.value(routeKey(request.method, request.path));
        const Reply reply = handler ? handler(request) : json("{}", 404);
        if (reply.silent) {
            m_held.append(socket);
            return;
        }
        answer(socket, reply);
        return;
    }
}

void HttpServer::answer(QTcpSocket* socket, const Reply& reply)
{
    // Clients read the status code; any reason phrase will do.
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + " Status\r\n";
    head += "Content-Type: " + reply.contentType + "\r\n";
    head += "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    for (const auto& header : reply.headers)
        head += header.first + ": " + header.second + "\r\n";
    head += "Connection: close\r\n\r\n";
    socket->write(head);
    socket->write(reply.body);
    socket->disconnectFromHost();
}
