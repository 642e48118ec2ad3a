#pragma once

#include "provider/account.h"

#include <QList>
#include <QLoggingCategory>
#include <QString>
#include <QUrl>

Q_DECLARE_LOGGING_CATEGORY(lcStreamingSetup)

// The services the streaming dialog offers out of the box, in list order, with
// their ingest tables. Hosts and home pages come from ServiceConfig, so a
// deployment can replace them (a whole ingest table included) without a rebuild.
// Server labels are translated in the context "BaseWidget".
namespace ServiceTables {

enum class Kind {
    Hitbox, // the Smashcast API provider
    YouTube, Facebook, Twitch, // the services' APIs, signed in through their web pages
    Simple, // no API: a fixed URL or a server table and a pasted key
    Custom, // the user's own servers
};

struct Service {
    QString name;
    Kind kind = Kind::Simple;
    quint32 features = 0; // for Simple; the API classes bring their own
    QUrl homeUrl;
    QString streamUrl;         // fixed ingest address, when the service has one
    QList<LabelPair> servers;  // (label, URL) in table order
    QString icon;              // resource path of the list icon
    QString label;             // shown in the service list; the name unless two entries share it
};

// Every service of the list, deployment overrides applied: the built-in entries up to
// "Custom", then the services' APIs.
QList<Service> services();
// The table compiled in for a service (no overrides); empty for an unknown name.
QList<LabelPair> builtInServers(const QString& service);
// A "*.servers" override: a JSON array of [label, url] pairs. False (and a log
// line) for anything else; an empty text is no override.
bool parseServerTable(const QString& text, QList<LabelPair>* servers);

// Services whose panel rows follow their own rules.
inline QString facebookName() { return QStringLiteral("Facebook"); }
inline QString dailyMotionName() { return QStringLiteral("DailyMotion"); }
inline QString customName() { return QStringLiteral("Custom"); }

} // namespace ServiceTables
