#include "widgets/splashwidget.h"

#include <QPainter>

SplashWidget::SplashWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    m_timer.setInterval(40);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_angle = (m_angle + 12) % 360;
        update();
    });
}

void SplashWidget::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void SplashWidget::start()
{
    m_timer.start();
}

void SplashWidget::stop()
{
    m_timer.stop();
}

void SplashWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = qMin(width(), height());
    const int pen = qMax(2, side / 10);
    const QRectF arcRect((width() - side) / 2.0 + pen, (height() - side) / 2.0 + pen, side - 2.0 * pen,
                         side - 2.0 * pen);
    QColor track = m_color;
    track.setAlpha(60);
    painter.setPen(QPen(track, pen));
    painter.drawEllipse(arcRect);
    painter.setPen(QPen(m_color, pen, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(arcRect, -m_angle * 16, 100 * 16);
}

void SplashWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    start();
}

void SplashWidget::hideEvent(QHideEvent* event)
{
    stop();
    QWidget::hideEvent(event);
}
