#pragma once

#include <QObject>
#include <QTextObjectInterface>

// Draws the chat's images (emotes, badges, pictures) in a plain-text view, which has no
// image support of its own: the size the HTML gave, the picture from the document's
// resources, nothing while it has not arrived.
class ChatImageObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};
