#include "delaytoolbutton.h"

#include <QDateTime>
#include <QMouseEvent>

DelayToolButton::DelayToolButton(QWidget* parent) : QToolButton(parent)
{
}

void DelayToolButton::mouseReleaseEvent(QMouseEvent* event)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (m_lastClick != 0 && now - m_lastClick < m_delay) {
        setDown(false);
        event->accept();
        return;
    }
    m_lastClick = now;
    QToolButton::mouseReleaseEvent(event);
}
