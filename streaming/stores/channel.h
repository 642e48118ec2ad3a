#pragma once

#include <QMetaType>
#include <QString>

// A channel, page or server a provider can stream to.
struct Channel {
    QString id;        // the channel's identity at the provider
    QString provider;  // the provider's name
    QString title;
    QString description;
    QString url;       // stream URL
    QString key;       // stream key
    QString server;    // ingest server name
    QString page;      // page (or event) name
    QString mode;      // SRT mode
    QString filter;    // SRT filter
    int port = 0;
    int latency = 0;
    int keyLength = 0;
    QString passphrase;
    QString streamId;
};

// Carried as item data by the server and channel lists.
Q_DECLARE_METATYPE(Channel)
