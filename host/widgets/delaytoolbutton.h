#pragma once

#include "host_export.h"

#include <QElapsedTimer>
#include <QToolButton>

// The host's styled ToolButton.
class HOST_EXPORT DelayToolButton : public QToolButton
{
    Q_OBJECT
public:
    explicit DelayToolButton(QWidget* parent = nullptr);

    // Clicks closer together than this are ignored (a double click must not start and stop).
    int delay() const { return m_delay; }
    void setDelay(int milliseconds) { m_delay = milliseconds; }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_delay = 500;
    QElapsedTimer m_lastClick; // monotonic: a clock change must not lock the button
};
