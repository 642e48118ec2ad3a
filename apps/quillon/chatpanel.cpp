#include "quillon/chatpanel.h"

#include "chat/chatprovider.h"
#include "quillon/activitylog.h"
#include "quillon/chatmessageview.h"
#include "stores/streamingmanager.h"

#include <QAbstractSocket>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcChatPanel, "quillon.chat")

ChatPanel::ChatPanel(StreamingManager& store, ActivityLog* log, QWidget* parent)
    : QDockWidget(tr("Live Chat"), parent),
      m_store(store),
      m_log(log),
      m_rooms(new QComboBox),
      m_connect(new QPushButton(tr("Connect"))),
      m_superChats(new QPushButton(tr("Super Chats"))),
      m_status(new QLabel),
      m_view(new ChatMessageView),
      m_input(new QLineEdit),
      m_send(new QPushButton(tr("Send")))
{
    setObjectName(QStringLiteral("chatPanel"));
    m_rooms->setObjectName(QStringLiteral("chatRooms"));
    m_connect->setObjectName(QStringLiteral("chatConnect"));
    m_superChats->setObjectName(QStringLiteral("chatSuperChats"));
    m_superChats->setEnabled(false);
    m_status->setObjectName(QStringLiteral("chatStatus"));
    m_view->setObjectName(QStringLiteral("chatView"));
    m_input->setObjectName(QStringLiteral("chatInput"));
    m_send->setObjectName(QStringLiteral("chatSend"));
    m_status->setWordWrap(true);
    // Titles and service errors come from outside: never read as markup.
    m_status->setTextFormat(Qt::PlainText);
    m_input->setPlaceholderText(tr("Message"));
    m_rooms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_rooms->setMinimumContentsLength(12);

    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    auto* top = new QHBoxLayout;
    top->addWidget(m_rooms, 1);
    top->addWidget(m_connect);
    top->addWidget(m_superChats);
    layout->addLayout(top);
    layout->addWidget(m_status);
    layout->addWidget(m_view, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_input, 1);
    bottom->addWidget(m_send);
    layout->addLayout(bottom);
    setWidget(contents);

    m_batch.setSingleShot(true);
    m_batch.setInterval(batchInterval);
    connect(&m_batch, &QTimer::timeout, this, &ChatPanel::flush);
    connect(m_connect, &QPushButton::clicked, this, &ChatPanel::reconnect);
    connect(m_superChats, &QPushButton::clicked, this, &ChatPanel::showSuperChats);
    connect(m_send, &QPushButton::clicked, this, &ChatPanel::send);
    connect(m_input, &QLineEdit::returnPressed, this, &ChatPanel::send);

    // The store keeps the newest messages across views.
    m_view->appendMessages(store.chatDescs());
    reloadRooms();
}

ChatPanel::~ChatPanel()
{
    if (m_chat)
        m_chat->removeListener(this);
}

void ChatPanel::reloadRooms()
{
    const QString chosen = m_rooms->currentText();
    m_roomList = ChatRooms::signedIn();
    m_rooms->clear();
    for (const ChatRoom& room : qAsConst(m_roomList))
        m_rooms->addItem(QIcon(room.service == QLatin1String("Twitch") ? QStringLiteral(":/resources/twitchchat.png")
                                                                      : QStringLiteral(":/resources/youtubechat.png")),
                         room.title);
    if (m_rooms->findText(chosen) >= 0)
        m_rooms->setCurrentText(chosen);
    const bool any = !m_roomList.isEmpty();
    m_rooms->setEnabled(any);
    m_connect->setEnabled(any);
    if (!any && !m_chat)
        m_status->setText(tr("Sign in to Twitch or YouTube in the streaming dialog to use the chat."));
    else if (!m_chat)
        m_status->setText(tr("Not connected."));
}

void ChatPanel::reconnect()
{
    const int index = m_rooms->currentIndex();
    if (index < 0 || index >= m_roomList.size())
        return;
    flush();
    if (m_chat)
        m_chat->removeListener(this);
    m_view->setImageSource({});
    m_chat.reset();
    m_room = m_roomList.at(index);
    m_chat = ChatRooms::open(m_room, this);
    m_superChats->setEnabled(m_chat && m_chat->hasSuperChats());
    if (!m_chat) {
        showFailure(tr("the account is no longer signed in"));
        reloadRooms();
        return;
    }
    m_chat->addListener(this);
    m_notShown = m_notShownTold = 0;
    ChatProvider* chat = m_chat.get();
    m_view->setImageSource([chat](const QString& url) { return chat->chatImage(url); });
    m_store.setChatProviders({m_chat.get()});
    m_connect->setText(tr("Reconnect"));
    m_status->setText(tr("Connecting to %1…").arg(m_room.title));
    m_log->info(tr("Chat: connecting to %1.").arg(m_room.title));
    m_chat->chatConnect(m_room.nick, m_room.room);
}

void ChatPanel::showSuperChats()
{
    if (!m_chat || !m_chat->hasSuperChats())
        return;
    flush();
    QList<ChatDesc> events;
    QString error;
    if (!m_chat->loadSuperChats(&events, &error)) {
        const QString line = tr("The Super Chats could not be loaded: %1").arg(error);
        m_status->setText(line);
        m_log->warning(tr("Chat: %1").arg(line));
        return;
    }
    if (!events.isEmpty()) {
        m_view->appendNotice(tr("Recent Super Chats of the channel:"), false);
        m_view->appendMessages(events);
    }
    m_status->setText(tr("%n Super Chat(s) shown.", nullptr, events.size()));
}

void ChatPanel::send()
{
    const QString text = m_input->text().trimmed();
    if (text.isEmpty() || !m_chat)
        return;
    m_chat->sendMessage(text);
    m_input->clear();
}

void ChatPanel::chatEvent(const QString& tag, const QVariant& data)
{
    if (tag == ChatProvider::messageTag) {
        m_pending.append(data.value<ChatDesc>());
        // Shown at a pace a person can read; in a flood the older lines of a batch give way.
        if (m_pending.size() > maxShownPerBatch) {
            m_pending.removeFirst();
            ++m_notShown;
        }
        if (!m_batch.isActive())
            m_batch.start();
    } else if (tag == ChatProvider::imageTag) {
        const QVariantMap image = data.toMap();
        m_view->setImage(image.value(QStringLiteral("url")).toString(),
                         image.value(QStringLiteral("image")).value<QImage>());
    } else if (tag == ChatProvider::connectedTag) {
        m_status->setText(tr("Connected to %1.").arg(m_room.title));
        m_log->info(tr("Chat: connected to %1.").arg(m_room.title));
    } else if (tag == ChatProvider::failedTag) {
        showFailure(data.userType() == QMetaType::Int ? socketErrorText(data.toInt()) : data.toString());
    } else if (tag == ChatProvider::noticeTag) {
        flush();
        m_view->appendNotice(data.toString(), false);
    } else if (tag == ChatProvider::sendFailedTag) {
        flush();
        m_view->appendNotice(tr("Not sent: %1").arg(data.toString()), true);
    }
}

void ChatPanel::flush()
{
    m_batch.stop();
    if (m_pending.isEmpty())
        return;
    const QList<ChatDesc> batch = m_pending;
    m_pending.clear();
    m_view->appendMessages(batch);
    if (m_notShown > m_notShownTold) {
        m_notShownTold = m_notShown;
        m_status->setText(tr("Connected to %1. A busy chat: %Ln message(s) not shown.", nullptr, m_notShown)
                              .arg(m_room.title));
    }
}

void ChatPanel::showFailure(const QString& reason)
{
    flush();
    const QString line = tr("The chat connection failed: %1. Choose Reconnect to try again.").arg(reason);
    m_view->appendNotice(line, true);
    m_status->setText(line);
    m_log->warning(tr("Chat: %1").arg(line));
}

QString ChatPanel::socketErrorText(int error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError: return tr("the chat server refused the connection");
    case QAbstractSocket::RemoteHostClosedError: return tr("the chat server closed the connection");
    case QAbstractSocket::HostNotFoundError: return tr("the chat server was not found");
    case QAbstractSocket::SocketTimeoutError: return tr("the chat server did not answer");
    case QAbstractSocket::NetworkError: return tr("the network is not reachable");
    default: return tr("network error %1").arg(error);
    }
}

// Replies may carry account details; the log names the request only.
void ChatPanel::debugMessage(const QString& tag, const QJsonArray&) { qCDebug(lcChatPanel) << tag; }
void ChatPanel::debugMessage(const QString& tag, const QJsonObject&) { qCDebug(lcChatPanel) << tag; }
void ChatPanel::debugMessage(const QString& tag, const QStringList&) { qCDebug(lcChatPanel) << tag; }
