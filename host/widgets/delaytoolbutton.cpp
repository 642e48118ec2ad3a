#include "widgets/delaytoolbutton.h"

#include <QMouseEvent>

DelayToolButton::DelayToolButton(QWidget* parent) : QToolButton(parent)
{
}

void DelayToolButton::mouseReleaseEvent(QMouseEvent* event)
{
    // Only a release that completes a click counts; dragging off the button is no click.
    const bool completesClick = event->button() == Qt::LeftButton && isDown() && hitButton(event->pos());
    if (completesClick && m_lastClick.isValid() && m_lastClick.elapsed() < m_delay) {
        setDown(false);
        event->accept();
        return;
    }
    if (completesClick)
        m_lastClick.start();
    QToolButton::mouseReleaseEvent(event);
}
