#include "capture/displayoutputwindow.h"

#include <QPainter>
#include <QScreen>
#include <QWindow>

DisplayOutputWindow::DisplayOutputWindow(QScreen* screen, const DisplayMode& mode, const ProgrammePicture& picture)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), m_mode(mode), m_picture(picture)
{
    setObjectName(QStringLiteral("displayOutput"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::BlankCursor);
    // The format's raster in the screen's own pixels, at most the screen.
    const QRect area = screen->geometry();
    QSize size = QSize(mode.width(), mode.height()) / screen->devicePixelRatio();
    if (size.width() > area.width() || size.height() > area.height())
        size.scale(area.size(), Qt::KeepAspectRatio);
    winId();
    windowHandle()->setScreen(screen);
    setGeometry(QRect(area.topLeft(), size));

    m_frameTimer.setTimerType(Qt::PreciseTimer);
    m_frameTimer.setInterval(qMax(1, qRound(1000.0 / framesPerSecond())));
    connect(&m_frameTimer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    m_frameTimer.start();
}

double DisplayOutputWindow::framesPerSecond() const
{
    const double rate = m_mode.frameRate() * (m_mode.isInterlaced() ? 0.5 : 1.0);
    return rate > 0 ? rate : 25.0;
}

void DisplayOutputWindow::paintEvent(QPaintEvent*)
{
    const QTime now = QTime::currentTime();
    const int frame = int(now.msec() * framesPerSecond() / 1000.0);
    QPainter painter(this);
    m_picture.paint(&painter, rect(), now, frame);
    ++m_framesDrawn;
}
