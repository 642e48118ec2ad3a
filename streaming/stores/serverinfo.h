#pragma once

#include "stores/channel.h"
#include "stores/oauth.h"

// A saved server: its channel part followed by its account part.
struct ServerInfo {
    Channel channel;
    OAuth oauth;
};
