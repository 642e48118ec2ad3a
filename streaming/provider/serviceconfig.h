#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

// Every deployment value of the services (hosts, registered client ids and
// secrets, the OAuth redirect address) in one table. A value comes from, in
// order: the environment variable QUILLON_<KEY> (key upper-cased, dots as
// underscores), the application setting "ql.service.<key>", the built-in
// default. Client ids and secrets have no default: they belong to the build
// that registers the application with each service.
class ServiceConfig
{
public:
    enum Key {
        OAuthRedirect,
        YouTubeHome, YouTubeWeb, YouTubeOAuth, YouTubeApi, YouTubeContentApi,
        YouTubeClientId, YouTubeClientSecret,
        StreamlabsApi, StreamlabsClientId, StreamlabsClientSecret,
        FacebookHome, FacebookWeb, FacebookGraph, FacebookClientId, FacebookClientSecret,
        TwitchHome, TwitchWeb, TwitchApi, TwitchIdentity, TwitchIngest, TwitchIrc, TwitchIrcPort, TwitchEmotes,
        TwitchClientId,
        UStreamHome, UStreamWeb, UStreamApi, UStreamClientId, UStreamClientSecret,
        DailyMotionHome, DailyMotionWeb, DailyMotionApi, DailyMotionClientId, DailyMotionClientSecret,
        HitboxHome, HitboxWeb, HitboxApi, HitboxIngest, HitboxRevokeApi,
        // The built-in services of the streaming dialog. A "*.servers" value, when set,
        // replaces that service's ingest table: a JSON array of [label, url] pairs.
        FacebookIngest, TwitterHome, MixerHome, RestreamHome,
        YouTubeServers, TwitchServers, TwitterServers, MixerServers, RestreamServers,
        KeyCount
    };

    static QString value(Key key);
    // The value of a host key followed by `pathAndQuery` (which starts with "/").
    static QUrl url(Key key, const QString& pathAndQuery);
    // The loopback address the code-flow services redirect to.
    static QString redirectUrl() { return value(OAuthRedirect); }

    static QString keyName(Key key);          // "dailymotion.api"
    static QString environmentName(Key key);  // "QUILLON_DAILYMOTION_API"
    static QString settingsKey(Key key);      // "ql.service.dailymotion.api"
    static QString defaultValue(Key key);
};
