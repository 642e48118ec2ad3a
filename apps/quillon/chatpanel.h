#pragma once

#include "chat/chatlistener.h"
#include "chat/chatrooms.h"
#include "provider/viewinterface.h"
#include "stores/chatdesc.h"

#include <QDockWidget>
#include <QList>
#include <QNetworkAccessManager>
#include <QTimer>

#include <memory>

class ActivityLog;
class ChatMessageView;
class ChatProvider;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class StreamingManager;

// The console's live chat: the chat of a Twitch channel or YouTube broadcast of an account
// signed in through the streaming dialog, read and answered without a browser. Messages
// are shown in batches a few times a second, so a busy chat never holds up the console.
class ChatPanel : public QDockWidget, public ChatListener, public ViewInterface
{
    Q_OBJECT

public:
    // Messages are shown together at most this often, and at most this many at a time:
    // 400 lines a second is more than anyone reads, and it keeps the console responsive
    // in a flood. The messages left out are counted in the status line.
    static constexpr int batchInterval = 50;
    static constexpr int maxShownPerBatch = 20;

    ChatPanel(StreamingManager& store, ActivityLog* log, QWidget* parent = nullptr);
    ~ChatPanel() override;

    ChatMessageView* messageView() const { return m_view; }
    ChatProvider* chat() const { return m_chat.get(); }

public slots:
    // Lists the chats of the accounts signed in now.
    void reloadRooms();
    // Connects to the chosen chat again, from the start.
    void reconnect();
    // Shows the recent Super Chats of the chosen YouTube chat's channel.
    void showSuperChats();

private:
    void chatEvent(const QString& tag, const QVariant& data) override;
    void send();
    void flush();
    void showFailure(const QString& reason);
    static QString socketErrorText(int error);

    QNetworkAccessManager* networkAccessManager() override { return &m_network; }
    void openWebAuthorize(const QUrl&) override {}
    void closeWebAuthorize() override {}
    void bandwidthTest() override {}
    void debugMessage(const QString& tag, const QJsonArray& data) override;
    void debugMessage(const QString& tag, const QJsonObject& data) override;
    void debugMessage(const QString& tag, const QStringList& data) override;

    StreamingManager& m_store;
    ActivityLog* m_log;
    QComboBox* m_rooms;
    QPushButton* m_connect;
    QPushButton* m_superChats;
    QLabel* m_status;
    ChatMessageView* m_view;
    QLineEdit* m_input;
    QPushButton* m_send;
    QNetworkAccessManager m_network;
    QList<ChatRoom> m_roomList;
    ChatRoom m_room;
    QList<ChatDesc> m_pending;
    QTimer m_batch;
    qint64 m_notShown = 0;
    qint64 m_notShownTold = 0;
    // Declared last: it goes first, while the panel it tells is still whole.
    std::unique_ptr<ChatProvider> m_chat;
};
