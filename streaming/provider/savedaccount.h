#pragma once

#include "stores/serverinfo.h"

#include <QJsonObject>

class Provider;

// A service account the operator signed in to, kept by the streaming store so a
// restart of the host starts signed in. The file holds the tokens, the user name and
// password of services that log in with them, and what the service listed (channels,
// events, pages, servers, categories), so showing the account again asks the service
// for nothing. One file per service, apart from the operator's own servers.
class SavedAccount
{
public:
    // Authorised (a token) or logged in.
    static bool isSignedIn(const Provider& provider);
    // Keeps the provider's account when it is signed in, forgets it otherwise.
    static bool sync(const Provider& provider);
    // Gives a kept account back to the provider through its setters; false when none is kept.
    static bool restore(Provider* provider);

    // The records and the service's lists as the store keeps them, and back.
    static ServerInfo toServerInfo(const Provider& provider);
    static void apply(const ServerInfo& info, Provider* provider);
};
