#include "capture/programmepicture.h"

#include <QPainter>
#include <QtMath>

ProgrammePicture::ProgrammePicture(Look look, const QString& label, int tiles)
    : m_look(look), m_label(label), m_tiles(qMax(1, tiles))
{
}

QString ProgrammePicture::clockText(const QTime& time, int frame) const
{
    return QStringLiteral("%1 %2:%3")
        .arg(m_label, time.toString(QStringLiteral("HH:mm:ss")))
        .arg(frame, 2, 10, QLatin1Char('0'));
}

void ProgrammePicture::paintBars(QPainter* painter, const QRect& target, bool preview) const
{
    // The colours of the engine's stills, so every output of one source looks alike.
    static const QList<QColor> programme{Qt::red, Qt::green, Qt::yellow, Qt::blue, Qt::magenta, Qt::cyan};
    static const QList<QColor> previewBars{Qt::lightGray, Qt::yellow, Qt::cyan, Qt::green,
                                           Qt::magenta,   Qt::red,    Qt::blue};
    const QList<QColor>& colours = preview ? previewBars : programme;
    for (int i = 0; i < colours.size(); ++i) {
        const int left = target.left() + target.width() * i / colours.size();
        const int right = target.left() + target.width() * (i + 1) / colours.size();
        painter->fillRect(QRect(left, target.top(), right - left, target.height()), colours.at(i));
    }
}

void ProgrammePicture::paint(QPainter* painter, const QRect& target, const QTime& time, int frame) const
{
    painter->fillRect(target, Qt::black);
    if (m_look == Black)
        return;
    if (m_look == Multiview) {
        const int columns = qCeil(qSqrt(m_tiles));
        const int rows = (m_tiles + columns - 1) / columns;
        for (int i = 0; i < m_tiles; ++i) {
            const QRect cell(target.left() + target.width() * (i % columns) / columns,
                             target.top() + target.height() * (i / columns) / rows, target.width() / columns - 2,
                             target.height() / rows - 2);
            ProgrammePicture(i == 1 ? PreviewBars : Bars, QString()).paint(painter, cell, time, frame);
            painter->setPen(Qt::white);
            painter->drawText(cell, Qt::AlignLeft | Qt::AlignBottom,
                              i == 0 ? QStringLiteral(" PGM") : i == 1 ? QStringLiteral(" PVW")
                                                                       : QStringLiteral(" CAM %1").arg(i - 1));
        }
    } else {
        paintBars(painter, target, m_look == PreviewBars);
    }
    if (m_label.isEmpty())
        return;
    QFont font = painter->font();
    font.setPixelSize(qMax(12, target.height() / 12));
    painter->setFont(font);
    const QRect box(target.left(), target.bottom() - target.height() / 5, target.width(), target.height() / 8);
    painter->fillRect(box, QColor(0, 0, 0, 150));
    painter->setPen(Qt::white);
    painter->drawText(box, Qt::AlignCenter, clockText(time, frame));
}
