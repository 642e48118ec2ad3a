#pragma once

#include <QMetaType>
#include <QString>

// An account at a service: its tokens or user name and password.
struct OAuth {
    QString id;           // the account's identity at the provider
    QString provider;     // the provider's name
    QString accessToken;
    QString refreshToken;
    QString username;
    QString password;
    bool authorized = false; // the server needs a user name and password
};

// Carried as item data by the server and channel lists.
Q_DECLARE_METATYPE(OAuth)
