#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

// One received chat message. The chat providers fill it; "attributes" may hold
// "service", "channel", "action" (bool), "badgeUrls" (a URL per badge, empty when not known)
// and "emotes" (a list of {"begin", "length", "url"}: UTF-16 ranges of the message shown as
// the image at "url").
struct ChatDesc {
    enum Type { Message = 0, Own = 1, SuperChat = 2 };

    int type = Message;
    QPixmap picture;    // the author's picture
    QUrl pictureUrl;
    QString author;
    QString message;
    QString color;
    QByteArray id;
    QStringList badges;
    QVariantMap attributes;
};

Q_DECLARE_METATYPE(ChatDesc)
