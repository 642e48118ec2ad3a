#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <QPointer>
#include <QTcpServer>

class QTcpSocket;

// A Twitch-style IRC server for tests on a loopback address (port 0: any free one). It
// keeps every byte its client sent and sends what the test gives it, in the pieces the
// test chooses. One client at a time: a new one replaces the last.
class IrcServer : public QObject
{
    Q_OBJECT
public:
    explicit IrcServer(const QHostAddress& address = QHostAddress(QHostAddress::LocalHost), quint16 port = 0);
    ~IrcServer() override;

    bool isListening() const { return m_server.isListening(); }
    quint16 port() const { return m_server.serverPort(); }
    // Points the chat at this server (QUILLON_TWITCH_IRC and QUILLON_TWITCH_IRCPORT).
    void pointChatHere() const;

    // What the current client sent.
    const QByteArray& received() const { return m_received; }
    bool hasClient() const { return !m_client.isNull(); }
    // Sends to the current client as one write.
    void send(const QByteArray& bytes);
    // Closes the current client's connection.
    void drop();
    // Stops accepting connections.
    void close() { m_server.close(); }

private:
    QTcpServer m_server;
    QPointer<QTcpSocket> m_client;
    QByteArray m_received;
};
