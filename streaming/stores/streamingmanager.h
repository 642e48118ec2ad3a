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

    void setChatBuffer(const ChatDesc& desc);
    const QList<ChatDesc>& chatDescs() const;
    QList<ChatProvider*> chatProviders() const;
    void setChatProviders(const QList<ChatProvider*>& providers);

    const LicenseModel& licenseModel() const;
    // The host may change the licence state while it runs (activation, lowered limits).
    void setLicenseModel(const LicenseModel& license);

    // The directory the server files live in.
    QString serverDirectory() const;

    static constexpr int chatBufferSize = 20;

private:
    ServerInfo serverInfoFromJson(const QJsonObject& object);
    QJsonObject jsonFromServerInfo(const ServerInfo& info);

    ContentsSettings m_settings;
    QList<ServerInfo> m_serverInfos;
    QList<ChatProvider*> m_chatProviders;
    LicenseModel m_licenseModel;
    QList<ChatDesc> m_chatDescs;
};
