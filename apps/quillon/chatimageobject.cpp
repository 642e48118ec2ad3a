#include "quillon/chatimageobject.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

QSizeF ChatImageObject::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    const QTextImageFormat image = format.toImageFormat();
    return QSizeF(qMax(0.0, image.width()), qMax(0.0, image.height()));
}

void ChatImageObject::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int,
                                 const QTextFormat& format)
{
    const QImage image =
        document->resource(QTextDocument::ImageResource, QUrl(format.toImageFormat().name())).value<QImage>();
    if (!image.isNull())
        painter->drawImage(rect, image);
}
