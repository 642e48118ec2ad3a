#include "support/ircserver.h"

#include <QTcpSocket>

IrcServer::IrcServer(const QHostAddress& address, quint16 port)
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            socket->setParent(this);
            if (m_client)
                m_client->abort();
            m_client = socket;
            m_received.clear();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                if (socket == m_client)
                    m_received += socket->readAll();
            });
        }
    });
    m_server.listen(address, port);
}

IrcServer::~IrcServer() = default;

void IrcServer::pointChatHere() const
{
    qputenv("QUILLON_TWITCH_IRC", m_server.serverAddress().toString().toLatin1());
    qputenv("QUILLON_TWITCH_IRCPORT", QByteArray::number(port()));
}

void IrcServer::send(const QByteArray& bytes)
{
    if (m_client) {
        m_client->write(bytes);
        m_client->flush();
    }
}

void IrcServer::drop()
{
    if (m_client)
        m_client->disconnectFromHost();
}
