#pragma once

#include "stores/channel.h"
#include "stores/oauth.h"

#include <QJsonObject>

// A saved server: its channel part followed by its account part. A signed-in
// service account adds what its provider needs back (lists the service gave).
struct ServerInfo {
    Channel channel;
    OAuth oauth;
    QJsonObject details;
};
