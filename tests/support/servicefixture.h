#pragma once

#include "provider/livechannel.h"
#include "support/fakeview.h"
#include "support/httpserver.h"
#include "support/serviceenvironment.h"

#include <QStandardPaths>
#include <QStringList>

// Each route is "METHOD /path", answered with status 200 and the JSON text.
inline void serveJson(HttpServer& server, const QList<QPair<QString, QByteArray>>& replies)
{
    for (const auto& [route, json] : replies)
        server.onJson(route.section(' ', 0, 0).toLatin1(), route.section(' ', 1), json);
}

// One line per request: method and target, then " | " and the Authorization and Accept
// headers if any, then " | form " and a form body (or " | <content type> " and another body).
inline QStringList requestLines(const HttpServer& server, int from = 0)
{
    QStringList lines;
    for (const HttpServer::Request& request : server.requests().mid(from)) {
        QString line = QString::fromLatin1(request.method + ' ' + request.target);
        for (const char* header : {"Authorization", "Accept"})
            if (!request.header(header).isEmpty())
                line += " | " + QString::fromLatin1(request.header(header));
        if (!request.body.isEmpty()) {
            const QByteArray type = request.header("Content-Type");
            line += " | " + QString::fromLatin1(type == "application/x-www-form-urlencoded" ? "form" : type);
            line += ' ' + QString::fromUtf8(request.body);
        }
        lines << line;
    }
    return lines;
}

// What a provider sees in a test: every service host pointed at one local server,
// and a view that lends its network manager. One per test function.
struct ServiceFixture {
    ServiceFixture()
    {
        QStandardPaths::setTestModeEnabled(true);
        ServiceEnvironment::pointAt(server.baseUrl());
    }
    ~ServiceFixture() { ServiceEnvironment::reset(); }

    void serve(const QList<QPair<QString, QByteArray>>& replies) { serveJson(server, replies); }
    QStringList requestLines() const { return ::requestLines(server); }

    HttpServer server;
    FakeView view; // declared last: it goes first, with the replies its manager still holds
};

// The text a provider gives a reply that lacks what it asked for, after the tag.
inline const QString unreadableReply = QStringLiteral(",The service sent a reply that could not be read.");

// An expected lastError in a table: a tag alone stands for the tag and unreadableReply.
inline QString expectedError(const QString& text)
{
    return text.isEmpty() || text.contains(',') ? text : text + unreadableReply;
}

// A listed channel on one line: id|name|category|watch page|stream URL|stream key.
inline QStringList describe(const QList<LiveChannel>& channels)
{
    QStringList lines;
    for (const LiveChannel& c : channels)
        lines << QStringList{c.id, c.name, c.category, c.watchUrl, c.streamUrl, c.streamKey}.join('|');
    return lines;
}
