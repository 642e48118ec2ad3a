#pragma once

#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>

// The address a service's sign-in page sends the browser to when it is done, and what
// that address carries: a code or a token, or the service's refusal.
class OAuthRedirect
{
public:
    // Only an address at `target` (scheme, host, port and path) finishes the sign-in: a
    // page on the way that happens to carry "code" or "error" in its address does not.
    static bool reaches(const QUrl& url, const QUrl& target);
    // The query items of the address and of its fragment, read as a query (the implicit
    // grant returns the token there; some services add "#_=_" after the query).
    static QUrlQuery items(const QUrl& url);
    // The refusal the address carries ("error", "error_description"...), shaped as a service
    // error reply; empty when it carries none.
    static QJsonObject denial(const QUrlQuery& items);
};
