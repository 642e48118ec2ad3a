#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

// One received chat message.
struct ChatDesc {
    int type = 0;
    QPixmap picture;    // the author's picture
    QUrl pictureUrl;
    QString author;
    QString message;
    QString color;
    QByteArray id;
    QStringList badges;
    QVariantMap attributes;
};
