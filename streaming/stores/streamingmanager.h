#pragma once

#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/channel.h"
#include "stores/chatdesc.h"
#include "stores/oauth.h"
#include "stores/serverinfo.h"
#include "stores/singleton.h"
#include "streaming_export.h"

#include <QJsonObject>
#include <QList>
#include <QString>

class ChatProvider;
class StreamingManager;
extern template class STREAMING_EXPORT Singleton<StreamingManager>;

// The store of saved streaming servers (one JSON file each), the chat buffer
// of the newest messages and the licence state the dialogs read their limits from.
class STREAMING_EXPORT StreamingManager : public Singleton<StreamingManager>
{
public:
    StreamingManager(const ContentsSettings& settings, const LicenseModel& license);
    StreamingManager(const StreamingManager& other);
    StreamingManager& operator=(const StreamingManager& other);
    ~StreamingManager() override;

    void reloadPresets();
    const QList<ServerInfo>& serverInfos() const;
    bool write(const Channel& channel, const OAuth& oauth);
    bool remove(const QString title);
    // A server edited under a new title replaces its old file in one step.
    bool replace(const QString& oldTitle, const Channel& channel, const OAuth& oauth);

    void setChatBuffer(const ChatDesc& desc);
    const QList<ChatDesc>& chatDescs() const;
    QList<ChatProvider*> chatProviders() const;
    void setChatProviders(const QList<ChatProvider*>& providers);

    const LicenseModel& licenseModel() const;
    // The host may change the licence state while it runs (activation, lowered limits).
    void setLicenseModel(const LicenseModel& license);

    // The directory the server files live in.
    QString serverDirectory() const;

    // Service accounts the operator signed in to, kept as server files of their own
    // (tokens and lists after the server keys) in a folder below the server directory,
    // so the operator's server list never shows them. One file per service: writing
    // replaces the service's account, removing forgets it; both update accounts().
    QString accountDirectory() const;
    const QList<ServerInfo>& accounts() const;
    bool writeAccount(const ServerInfo& account);
    bool removeAccount(const QString& provider);

    static constexpr int chatBufferSize = 20;

private:
    ServerInfo serverInfoFromJson(const QJsonObject& object);
    QJsonObject jsonFromServerInfo(const ServerInfo& info);
    ServerInfo accountFromJson(const QJsonObject& object);
    QJsonObject jsonFromAccount(const ServerInfo& info);

    ContentsSettings m_settings;
    QList<ServerInfo> m_serverInfos;
    QList<ChatProvider*> m_chatProviders;
    LicenseModel m_licenseModel;
    QList<ChatDesc> m_chatDescs;
    QList<ServerInfo> m_accounts;
};
