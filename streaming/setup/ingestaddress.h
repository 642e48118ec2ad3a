#pragma once

#include <QString>

// Ingest addresses as the services list them: most are URLs, some name a bare host
// ("live.example.net", "live.example.net:1935/app").
namespace IngestAddress {

// The host of either form; empty when there is none.
QString host(const QString& address);
// The stream URL a server choice gives: a URL as it stands; a bare host takes the host's
// (and a port's) place in `current`, which keeps its scheme and path, or becomes an
// rtmp URL of its own when there is no current URL.
QString chosen(const QString& server, const QString& current);

} // namespace IngestAddress
