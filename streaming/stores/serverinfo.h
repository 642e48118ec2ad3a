#pragma once

#include "channel.h"
#include "oauth.h"

// A saved server: its channel part followed by its account part.
struct ServerInfo {
    Channel channel;
    OAuth oauth;
};
