#include "stores/streamingmanager.h"

#include "stores/orderedjson.h"
#include "stores/storefile.h"

#include <QDir>
#include <QFile>
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
// Account files only, after the server keys: a server of the operator's never holds a token.
const QString providerKey = QStringLiteral("Provider");
const QString channelIdKey = QStringLiteral("ChannelId");
const QString descriptionKey = QStringLiteral("Description");
const QString serverKey = QStringLiteral("Server");
const QString pageKey = QStringLiteral("Page");
const QString accountIdKey = QStringLiteral("AccountId");
const QString accessTokenKey = QStringLiteral("AccessToken");
const QString refreshTokenKey = QStringLiteral("RefreshToken");
const QString detailsKey = QStringLiteral("Details");
const QString accountFolder = QStringLiteral("accounts");

const QHash<QString, QStringList>& fileKeyOrder()
{
    static const QHash<QString, QStringList> order{
        {QString(),
         {titleKey, urlKey, streamKeyKey, authorizedKey, userIdKey, userPwKey, modeKey, filterKey, portKey, latencyKey,
          keyLengthKey, passphraseKey, streamIdKey, providerKey, channelIdKey, descriptionKey, serverKey, pageKey,
          accountIdKey, accessTokenKey, refreshTokenKey, detailsKey}},
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

QString StreamingManager::accountDirectory() const
{
    return serverDirectory() + QLatin1Char('/') + accountFolder;
}

void StreamingManager::reloadPresets()
{
    m_serverInfos.clear();
    StoreFile::finishPending(serverDirectory());
    StoreFile::forEachObject(serverDirectory(), [this](const QJsonObject& object) {
        m_serverInfos.append(serverInfoFromJson(object));
    });
    m_accounts.clear();
    StoreFile::finishPending(accountDirectory());
    StoreFile::forEachObject(accountDirectory(), [this](const QJsonObject& object) {
        m_accounts.append(accountFromJson(object));
    });
}

const QList<ServerInfo>& StreamingManager::accounts() const
{
    return m_accounts;
}

bool StreamingManager::writeAccount(const ServerInfo& account)
{
    const QString provider = account.oauth.provider;
    if (provider.isEmpty())
        return false;
    // Tokens: the folder is the owner's alone, as each file is.
    const QString directory = accountDirectory();
    StoreFile::makePrivateDirectory(serverDirectory());
    StoreFile::makePrivateDirectory(directory);
    if (!StoreFile::write(StoreFile::pathFor(directory, provider),
                          OrderedJson::indented(jsonFromAccount(account), fileKeyOrder()), StoreFile::OwnerOnly))
        return false;
    for (ServerInfo& kept : m_accounts) {
        if (kept.oauth.provider == provider) {
            kept = account;
            return true;
        }
    }
    m_accounts.append(account);
    return true;
}

bool StreamingManager::removeAccount(const QString& provider)
{
    for (int i = m_accounts.size() - 1; i >= 0; --i)
        if (m_accounts.at(i).oauth.provider == provider)
            m_accounts.removeAt(i);
    StoreFile::remove(StoreFile::pathFor(accountDirectory(), provider));
    return true;
}

const QList<ServerInfo>& StreamingManager::serverInfos() const
{
    return m_serverInfos;
}

bool StreamingManager::write(const Channel& channel, const OAuth& oauth)
{
    return replace(channel.title, channel, oauth);
}

bool StreamingManager::replace(const QString& oldTitle, const Channel& channel, const OAuth& oauth)
{
    const ServerInfo info{channel, oauth, {}};
    const QString directory = serverDirectory();
    // The files hold passwords and stream keys.
    StoreFile::makePrivateDirectory(directory);
    return StoreFile::replace(StoreFile::pathFor(directory, oldTitle), StoreFile::pathFor(directory, info.channel.title),
                              OrderedJson::indented(jsonFromServerInfo(info), fileKeyOrder()), StoreFile::OwnerOnly);
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

ServerInfo StreamingManager::accountFromJson(const QJsonObject& object)
{
    ServerInfo info = serverInfoFromJson(object);
    info.channel.provider = info.oauth.provider = object.value(providerKey).toString();
    info.channel.id = object.value(channelIdKey).toString();
    info.channel.description = object.value(descriptionKey).toString();
    info.channel.server = object.value(serverKey).toString();
    info.channel.page = object.value(pageKey).toString();
    info.oauth.id = object.value(accountIdKey).toString();
    info.oauth.accessToken = object.value(accessTokenKey).toString();
    info.oauth.refreshToken = object.value(refreshTokenKey).toString();
    info.details = object.value(detailsKey).toObject();
    return info;
}

QJsonObject StreamingManager::jsonFromAccount(const ServerInfo& info)
{
    QJsonObject object = jsonFromServerInfo(info);
    const QList<QPair<QString, QString>> extra{
        {providerKey, info.oauth.provider},          {channelIdKey, info.channel.id},
        {descriptionKey, info.channel.description},  {serverKey, info.channel.server},
        {pageKey, info.channel.page},                {accountIdKey, info.oauth.id},
        {accessTokenKey, info.oauth.accessToken},    {refreshTokenKey, info.oauth.refreshToken}};
    for (const auto& [key, value] : extra)
        if (!value.isEmpty())
            object.insert(key, value);
    if (!info.details.isEmpty())
        object.insert(detailsKey, info.details);
    return object;
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
