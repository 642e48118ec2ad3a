#include "provider/serviceconfig.h"

#include <QSettings>
#include <QtGlobal>

namespace {

struct Entry {
    const char* name;
    const char* defaultValue;
};

// In the order of ServiceConfig::Key.
const Entry entries[] = {
    {"oauth.redirect", "http://localhost/oauth2callback"},
    {"youtube.home", "https://www.youtube.com"},
    {"youtube.web", "https://www.youtube.com"},
    {"youtube.oauth", "https://accounts.google.com"},
    {"youtube.api", "https://www.googleapis.com"},
    {"youtube.contentapi", "https://content.googleapis.com"},
    {"youtube.clientid", ""},
    {"youtube.clientsecret", ""},
    {"streamlabs.api", "https://streamlabs.com"},
    {"streamlabs.clientid", ""},
    {"streamlabs.clientsecret", ""},
    {"facebook.home", "https://www.facebook.com"},
    {"facebook.web", "https://www.facebook.com"},
    {"facebook.graph", "https://graph.facebook.com"},
    {"facebook.clientid", ""},
    {"facebook.clientsecret", ""},
    {"twitch.home", "https://www.twitch.tv"},
    {"twitch.web", "https://www.twitch.tv"},
    {"twitch.api", "https://api.twitch.tv"},
    {"twitch.identity", "https://id.twitch.tv"},
    {"twitch.ingest", "rtmp://live.twitch.tv"},
    {"twitch.irc", "irc.chat.twitch.tv"},
    {"twitch.ircport", "6667"},
    {"twitch.emotes", "https://static-cdn.jtvnw.net"},
    {"twitch.clientid", ""},
    {"ustream.home", "https://www.ustream.tv"},
    {"ustream.web", "https://www.ustream.tv"},
    {"ustream.api", "https://api.ustream.tv"},
    {"ustream.clientid", ""},
    {"ustream.clientsecret", ""},
    {"dailymotion.home", "https://www.dailymotion.com"},
    {"dailymotion.web", "https://www.dailymotion.com"},
    {"dailymotion.api", "https://api.dailymotion.com"},
    {"dailymotion.clientid", ""},
    {"dailymotion.clientsecret", ""},
    {"hitbox.home", "https://www.smashcast.tv"},
    {"hitbox.web", "https://www.smashcast.tv"},
    {"hitbox.api", "https://api.smashcast.tv"},
    {"hitbox.ingest", "rtmp://live.smashcast.tv"},
    {"hitbox.revokeapi", "https://api.smashcast.tv"},
    {"facebook.ingest", "rtmps://live-api-s.facebook.com:443/rtmp"},
    {"twitter.home", "https://twitter.com"},
    {"mixer.home", "https://mixer.com"},
    {"restream.home", "https://restream.io"},
    {"youtube.servers", ""},
    {"twitch.servers", ""},
    {"twitter.servers", ""},
    {"mixer.servers", ""},
    {"restream.servers", ""},
};

static_assert(sizeof(entries) / sizeof(entries[0]) == ServiceConfig::KeyCount,
              "one entry per key");

const Entry& entry(ServiceConfig::Key key)
{
    const int index = (key >= 0 && key < ServiceConfig::KeyCount) ? key : ServiceConfig::OAuthRedirect;
    return entries[index];
}

} // namespace

QString ServiceConfig::value(Key key)
{
    const QByteArray environment = environmentName(key).toLatin1();
    if (qEnvironmentVariableIsSet(environment.constData()))
        return qEnvironmentVariable(environment.constData());
    const QSettings settings;
    const QVariant stored = settings.value(settingsKey(key));
    if (stored.isValid())
        return stored.toString();
    return defaultValue(key);
}

QUrl ServiceConfig::url(Key key, const QString& pathAndQuery)
{
    QString base = value(key);
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return QUrl(base + pathAndQuery);
}

QString ServiceConfig::keyName(Key key)
{
    return QString::fromLatin1(entry(key).name);
}

QString ServiceConfig::environmentName(Key key)
{
    return QStringLiteral("QUILLON_") + keyName(key).toUpper().replace(QLatin1Char('.'), QLatin1Char('_'));
}

QString ServiceConfig::settingsKey(Key key)
{
    return QStringLiteral("ql.service.") + keyName(key);
}

QString ServiceConfig::defaultValue(Key key)
{
    return QString::fromLatin1(entry(key).defaultValue);
}
