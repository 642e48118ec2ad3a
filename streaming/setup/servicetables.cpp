#include "setup/servicetables.h"

#include "provider/serviceconfig.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>

Q_LOGGING_CATEGORY(lcStreamingSetup, "streaming.setup")

namespace {

struct ServerRow {
    const char* label;
    const char* host;
    const char* query; // appended after the path
};

// How the URLs of one table are put together: scheme://host[:port]/path[query].
struct TableShape {
    const char* scheme;
    int port; // 0: the scheme's default, not written
    const char* path;
};

#define SERVER(label, host) {QT_TRANSLATE_NOOP("BaseWidget", label), host, ""}

const ServerRow youTubeRows[] = {
    SERVER("Main Server", "a.rtmp.youtube.com"),
    {QT_TRANSLATE_NOOP("BaseWidget", "Backup Server"), "b.rtmp.youtube.com", "?backup=1"},
};

const ServerRow twitchRows[] = {
    SERVER("Asia: Hong Kong", "hkg06.contribute.live-video.net"),
    SERVER("Asia: Seoul, South Korea", "sel03.contribute.live-video.net"),
    SERVER("Asia: Singapore", "sin04.contribute.live-video.net"),
    SERVER("Asia: Taipei, Taiwan", "tpe03.contribute.live-video.net"),
    SERVER("Asia: Tokyo, Japan", "tyo05.contribute.live-video.net"),
    SERVER("Australia: Sydney", "syd03.contribute.live-video.net"),
    SERVER("EU: Amsterdam, NL", "ams03.contribute.live-video.net"),
    SERVER("EU: Berlin, DE", "ber01.contribute.live-video.net"),
    SERVER("Europe: Copenhagen, DK", "cph.contribute.live-video.net"),
    SERVER("EU: Frankfurt, DE", "fra05.contribute.live-video.net"),
    SERVER("EU: Helsinki, FI", "hel03.contribute.live-video.net"),
    SERVER("EU: Lisbon, Portugal", "lis.contribute.live-video.net"),
    SERVER("EU: London, UK", "lhr04.contribute.live-video.net"),
    SERVER("EU: Madrid, Spain", "mad01.contribute.live-video.net"),
    SERVER("EU: Marseille, FR", "mrs.contribute.live-video.net"),
    SERVER("EU: Milan, Italy", "mil02.contribute.live-video.net"),
    SERVER("EU: Paris, FR", "cdg02.contribute.live-video.net"),
    SERVER("EU: Prague, CZ", "prg03.contribute.live-video.net"),
    SERVER("EU: Stockholm, SE", "arn04.contribute.live-video.net"),
    SERVER("EU: Vienna, Austria", "vie02.contribute.live-video.net"),
    SERVER("EU: Warsaw, Poland", "waw02.contribute.live-video.net"),
    SERVER("NA: Mexico City", "qro03.contribute.live-video.net"),
    SERVER("NA: Quebec, Canada", "ymq03.contribute.live-video.net"),
    SERVER("NA: Toronto, Canada", "yto01.contribute.live-video.net"),
    SERVER("South America: Argentina", "bue01.contribute.live-video.net"),
    SERVER("South America: Chile", "scl01.contribute.live-video.net"),
    SERVER("South America: Lima, Peru", "lim02.contribute.live-video.net"),
    SERVER("South America: Medellin, Colombia", "mde01.contribute.live-video.net"),
    SERVER("South America: Rio de Janeiro, Brazil", "rio01.contribute.live-video.net"),
    SERVER("South America: Sao Paulo, Brazil", "sao03.contribute.live-video.net"),
    SERVER("US Central: Dallas, TX", "dfw.contribute.live-video.net"),
    SERVER("US Central: Denver, CO", "den52.contribute.live-video.net"),
    SERVER("US Central: Houston, TX", "hou52.contribute.live-video.net"),
    SERVER("US Central: Salt Lake City, UT", "slc.contribute.live-video.net"),
    SERVER("US East: Ashburn, VA", "iad05.contribute.live-video.net"),
    SERVER("US East: Atlanta, GA", "atl.contribute.live-video.net"),
    SERVER("US East: Chicago", "ord03.contribute.live-video.net"),
    SERVER("US East: Miami, FL", "mia05.contribute.live-video.net"),
    SERVER("US East: New York, NY", "jfk.contribute.live-video.net"),
    SERVER("US West: Los Angeles, CA", "lax.contribute.live-video.net"),
    SERVER("US West: Phoenix, AZ", "phx.contribute.live-video.net"),
    SERVER("US West: Portland, Oregon", "pdx.contribute.live-video.net"),
    SERVER("US West: San Francisco, CA", "sfo.contribute.live-video.net"),
    SERVER("US West: San Jose, CA", "sjc.contribute.live-video.net"),
    SERVER("US West: Seattle, WA", "sea.contribute.live-video.net"),
};

const ServerRow twitterRows[] = {
    SERVER("US West: California", "ca.pscp.tv"),
    SERVER("US West: Oregon", "or.pscp.tv"),
    SERVER("US East: Virginia", "va.pscp.tv"),
    SERVER("South America: Brazil", "br.pscp.tv"),
    SERVER("EU West: Ireland", "ie.pscp.tv"),
    SERVER("EU Central: Germany", "de.pscp.tv"),
    SERVER("Asia/Pacific: Australia", "au.pscp.tv"),
    SERVER("Asia/Pacific: Japan", "jp.pscp.tv"),
    SERVER("Asia/Pacific: Singapore", "sg.pscp.tv"),
};

const ServerRow mixerRows[] = {
    SERVER("US: Dallas, TX", "ingest-dal.mixer.com"),
    SERVER("US: San Jose, CA", "ingest-sjc.mixer.com"),
    SERVER("US: Seattle, WA", "ingest-sea.mixer.com"),
    SERVER("US: Washington DC", "ingest-wdc.mixer.com"),
    SERVER("Canada: Toronto", "ingest-tor.mixer.com"),
    SERVER("EU: London", "ingest-lon.mixer.com"),
    SERVER("EU: Amsterdam", "ingest-ams.mixer.com"),
    SERVER("EU: Milan", "ingest-mil.mixer.com"),
    SERVER("EU: Paris", "ingest-par.mixer.com"),
    SERVER("EU: Frankfurt", "ingest-fra.mixer.com"),
    SERVER("EU: Oslo", "ingest-osl.mixer.com"),
    SERVER("Brazil: Sao Paulo", "ingest-sao.mixer.com"),
    SERVER("Australia: Melbourne", "ingest-mel.mixer.com"),
    SERVER("Australia: Sydney", "ingest-syd.mixer.com"),
    SERVER("Mexico: Mexico City", "ingest-mex.mixer.com"),
    SERVER("Asia: Hong Kong", "ingest-hkg.mixer.com"),
    SERVER("Asia: Tokyo", "ingest-tok.mixer.com"),
    SERVER("South Korea: Seoul", "ingest-seo.mixer.com"),
    SERVER("India: Chennai", "ingest-che.mixer.com"),
};

const ServerRow restreamRows[] = {
    SERVER("Autodetect", "live.restream.io"),
    SERVER("EU-West (London, GB)", "london.restream.io"),
    SERVER("EU-West (Amsterdam, NL)", "amsterdam.restream.io"),
    SERVER("EU-West (Luxembourg)", "luxembourg.restream.io"),
    SERVER("EU-West (Paris, FR)", "paris.restream.io"),
    SERVER("EU-Central (Frankfurt, DE)", "frankfurt.restream.io"),
    SERVER("EU-East (Falkenstein, DE)", "falkenstein.restream.io"),
    SERVER("EU-South (Madrid, Spain)", "madrid.restream.io"),
    SERVER("Russia (Moscow)", "moscow.restream.io"),
    SERVER("US-West (Seattle, WA)", "seattle.restream.io"),
    SERVER("US-West (San Jose, CA)", "sanjose.restream.io"),
    SERVER("US-Central (Dallas, TX)", "dallas.restream.io"),
    SERVER("US-East (Washington, DC)", "washington.restream.io"),
    SERVER("US-East (Miami, FL)", "miami.restream.io"),
    SERVER("NA-East (Toronto, Canada)", "toronto.restream.io"),
    SERVER("SA (Saint Paul, Brazil)", "saopaulo.restream.io"),
    SERVER("Asia (Singapore)", "singapore.restream.io"),
    SERVER("Asia (Seoul, South Korea)", "seoul.restream.io"),
    SERVER("Asia (Tokyo, Japan)", "tokyo.restream.io"),
    SERVER("India (Bangalore)", "bangalore.restream.io"),
    SERVER("Australia (Sydney)", "sydney.restream.io"),
};

#undef SERVER

constexpr quint32 simpleWithServers = 0xE11;
constexpr quint32 simpleWithFixedUrl = 0x210;
constexpr int noKey = -1;

struct Table {
    const ServerRow* rows;
    int count;
    TableShape shape;
};

template <int N>
constexpr Table table(const ServerRow (&rows)[N], TableShape shape)
{
    return Table{rows, N, shape};
}

struct ServiceRow {
    const char* name;
    ServiceTables::Kind kind;
    quint32 features;
    int homeKey;    // ServiceConfig::Key, or noKey
    int fixedUrlKey;
    int serversKey; // the override of the table
    Table servers;
    const char* icon;
    const char* label = nullptr; // when it differs from the name
};

const ServiceRow serviceRows[] = {
    {"Smashcast API", ServiceTables::Kind::Hitbox, 0, noKey, noKey, noKey, {nullptr, 0, {}},
     ":/resources/hitbox.png"},
    {"Facebook", ServiceTables::Kind::Simple, simpleWithFixedUrl, ServiceConfig::FacebookHome,
     ServiceConfig::FacebookIngest, noKey, {nullptr, 0, {}}, ":/resources/facebook.png"},
    {"YouTube", ServiceTables::Kind::Simple, simpleWithServers, ServiceConfig::YouTubeHome, noKey,
     ServiceConfig::YouTubeServers, table(youTubeRows, {"rtmp", 0, "/live2"}), ":/resources/youtube.png"},
    {"Twitch", ServiceTables::Kind::Simple, simpleWithServers, ServiceConfig::TwitchHome, noKey,
     ServiceConfig::TwitchServers, table(twitchRows, {"rtmp", 0, "/app"}), ":/resources/twitch.png"},
    {"Twitter", ServiceTables::Kind::Simple, simpleWithServers, ServiceConfig::TwitterHome, noKey,
     ServiceConfig::TwitterServers, table(twitterRows, {"rtmp", 80, "/x"}), ":/resources/service.png"},
    {"Mixer", ServiceTables::Kind::Simple, simpleWithServers, ServiceConfig::MixerHome, noKey,
     ServiceConfig::MixerServers, table(mixerRows, {"rtmp", 1935, "/beam"}), ":/resources/service.png"},
    {"Restream", ServiceTables::Kind::Simple, simpleWithServers, ServiceConfig::RestreamHome, noKey,
     ServiceConfig::RestreamServers, table(restreamRows, {"rtmp", 0, "/live"}), ":/resources/service.png"},
    {"Custom", ServiceTables::Kind::Custom, 0, noKey, noKey, noKey, {nullptr, 0, {}}, ":/resources/custom.png"},
    // The services' own APIs, after the built-in entries: signed in, they list the
    // account's channels. Names as the providers give them, labels that tell them apart.
    {"YouTube API", ServiceTables::Kind::YouTube, 0, noKey, noKey, noKey, {nullptr, 0, {}}, ":/resources/youtube.png",
     QT_TRANSLATE_NOOP("StreamingSetup", "YouTube (sign in)")},
    {"Facebook", ServiceTables::Kind::Facebook, 0, noKey, noKey, noKey, {nullptr, 0, {}}, ":/resources/facebook.png",
     QT_TRANSLATE_NOOP("StreamingSetup", "Facebook (sign in)")},
    {"Twitch", ServiceTables::Kind::Twitch, 0, noKey, noKey, noKey, {nullptr, 0, {}}, ":/resources/twitch.png",
     QT_TRANSLATE_NOOP("StreamingSetup", "Twitch (sign in)")},
};

QList<LabelPair> serversOf(const Table& table)
{
    QList<LabelPair> servers;
    for (int i = 0; i < table.count; ++i) {
        const ServerRow& row = table.rows[i];
        QString url = QStringLiteral("%1://%2").arg(QLatin1String(table.shape.scheme), QLatin1String(row.host));
        if (table.shape.port > 0)
            url += QStringLiteral(":%1").arg(table.shape.port);
        url += QLatin1String(table.shape.path) + QLatin1String(row.query);
        servers.append({QCoreApplication::translate("BaseWidget", row.label), url});
    }
    return servers;
}

QString configValue(int key)
{
    return key == noKey ? QString() : ServiceConfig::value(static_cast<ServiceConfig::Key>(key));
}

} // namespace

namespace ServiceTables {

QList<Service> services()
{
    QList<Service> list;
    for (const ServiceRow& row : serviceRows) {
        Service service;
        service.name = QString::fromLatin1(row.name);
        service.kind = row.kind;
        service.features = row.features;
        service.homeUrl = QUrl(configValue(row.homeKey));
        service.streamUrl = configValue(row.fixedUrlKey);
        service.servers = serversOf(row.servers);
        const QString override = configValue(row.serversKey);
        QList<LabelPair> replaced;
        if (!override.isEmpty() && parseServerTable(override, &replaced))
            service.servers = replaced;
        service.icon = QString::fromLatin1(row.icon);
        service.label = row.label ? QCoreApplication::translate("StreamingSetup", row.label) : service.name;
        list.append(service);
    }
    return list;
}

QList<LabelPair> builtInServers(const QString& service)
{
    for (const ServiceRow& row : serviceRows)
        if (service == QLatin1String(row.name))
            return serversOf(row.servers);
    return {};
}

bool parseServerTable(const QString& text, QList<LabelPair>* servers)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isArray()) {
        qCWarning(lcStreamingSetup) << "server table override is not a JSON array, the built-in table stays:"
                                    << error.errorString();
        return false;
    }
    QList<LabelPair> parsed;
    for (const QJsonValue& value : document.array()) {
        const QJsonArray pair = value.toArray();
        if (pair.size() != 2 || !pair.at(0).isString() || !pair.at(1).isString()) {
            qCWarning(lcStreamingSetup) << "server table override needs [label, url] pairs, the built-in table stays";
            return false;
        }
        parsed.append({pair.at(0).toString(), pair.at(1).toString()});
    }
    *servers = parsed;
    return true;
}

} // namespace ServiceTables
