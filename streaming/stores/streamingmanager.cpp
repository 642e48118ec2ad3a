#include "stores/streamingmanager.h"

#include "stores/orderedjson.h"
#include "stores/storefile.h"

#include <QJsonValue>

template class Singleton<StreamingManager>;

namespace {

const QString titleKey = QStringLiteral("Title");
const QString urlKey = QStringLiteral("StreamUrl");
const QString streamKeyKey = QStringLiteral("StreamKey");
// Spelled so in every file ever written.
const QString authorizedKey = QStringLiteral("Authrized");
const QString userIdKey = QStringLiteral("UserId");
const QString userPwKey = QStringLiteral("UserPw");
const QString modeKey = QStringLiteral("Mode");
const QString filterKey = QStringLiteral("Filter");
const QString portKey = QStringLiteral("Port");
const QString latencyKey = QStringLiteral("Latency");
const QString keyLengthKey = QStringLiteral("KeyLength");
const QString passphraseKey = QStringLiteral("Passphrase");
const QString streamIdKey = QStringLiteral("StreamID");

const QHash<QString, QStringList>& fileKeyOrder()
{
    static const QHash<QString, QStringList> order{
        {QString(),
         {titleKey, urlKey, streamKeyKey, authorizedKey, userIdKey, userPwKey, modeKey, filterKey, portKey, latencyKey,
          keyLengthKey, passphraseKey, streamIdKey}},
    };
    return order;
}

} // namespace

StreamingManager::StreamingManager(const ContentsSettings& settings, const LicenseModel& license)
    : m_settings(settings)
    , m_licenseModel(license)
{
    m_instance = this;
    reloadPresets();
}

StreamingManager::StreamingManager(const StreamingManager& other) = default;

StreamingManager& StreamingManager::operator=(const StreamingManager& other) = default;

StreamingManager::~StreamingManager()
{
    // A copy never became the instance, so it must not clear it.
    if (m_instance == this)
        m_instance = nullptr;
}

QString StreamingManager::serverDirectory() const
{
    return m_settings.serverPresetPath();
}

void StreamingManager::reloadPresets()
{
    m_serverInfos.clear();
    StoreFile::forEachObject(serverDirectory(), [this](const QJsonObject& object) {
        m_serverInfos.append(serverInfoFromJson(object));
    });
}

const QList<ServerInfo>& StreamingManager::serverInfos() const
{
    return m_serverInfos;
}

bool StreamingManager::write(const Channel& channel, const OAuth& oauth)
{
    const ServerInfo info{channel, oauth};
    const QString path = StoreFile::pathFor(serverDirectory(), info.channel.title);
    // The file holds a password and a stream key.
    return StoreFile::write(path, OrderedJson::indented(jsonFromServerInfo(info), fileKeyOrder()),
                            StoreFile::OwnerOnly);
}

bool StreamingManager::remove(const QString title)
{
    StoreFile::remove(StoreFile::pathFor(serverDirectory(), title));
    return true;
}

ServerInfo StreamingManager::serverInfoFromJson(const QJsonObject& object)
{
    ServerInfo info;
    info.channel.title = object.value(titleKey).toString();
    info.channel.url = object.value(urlKey).toString();
    info.channel.key = object.value(streamKeyKey).toString();
    info.oauth.authorized = object.value(authorizedKey).toBool();
    info.oauth.username = object.value(userIdKey).toString();
    info.oauth.password = object.value(userPwKey).toString();
    info.channel.mode = object.value(modeKey).toString();
    info.channel.filter = object.value(filterKey).toString();
    info.channel.port = object.value(portKey).toInt();
    info.channel.latency = object.value(latencyKey).toInt();
    info.channel.keyLength = object.value(keyLengthKey).toInt();
    info.channel.passphrase = object.value(passphraseKey).toString();
    info.channel.streamId = object.value(streamIdKey).toString();
    return info;
}

QJsonObject StreamingManager::jsonFromServerInfo(const ServerInfo& info)
{
    return QJsonObject{
        {titleKey, info.channel.title},
        {urlKey, info.channel.url},
        {streamKeyKey, info.channel.key},
        {authorizedKey, info.oauth.authorized},
        {userIdKey, info.oauth.username},
        {userPwKey, info.oauth.password},
        {modeKey, info.channel.mode},
        {filterKey, info.channel.filter},
        {portKey, info.channel.port},
        {latencyKey, info.channel.latency},
        {keyLengthKey, info.channel.keyLength},
        {passphraseKey, info.channel.passphrase},
        {streamIdKey, info.channel.streamId},
    };
}

void StreamingManager::setChatBuffer(const ChatDesc& desc)
{
    m_chatDescs.append(desc);
    if (m_chatDescs.size() > chatBufferSize)
        m_chatDescs.removeFirst();
    qCDebug(lcStores) << "m_chatDescs->count()" << m_chatDescs.count();
}

const QList<ChatDesc>& StreamingManager::chatDescs() const
{
    return m_chatDescs;
}

QList<ChatProvider*> StreamingManager::chatProviders() const
{
    return m_chatProviders;
}

void StreamingManager::setChatProviders(const QList<ChatProvider*>& providers)
{
    m_chatProviders = providers;
}

const LicenseModel& StreamingManager::licenseModel() const
{
    return m_licenseModel;
}

void StreamingManager::setLicenseModel(const LicenseModel& license)
{
    m_licenseModel = license;
}
