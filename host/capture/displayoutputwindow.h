#pragma once

#include "capture/displaymode.h"
#include "capture/programmepicture.h"
#include "host_export.h"

#include <QTimer>
#include <QWidget>

class QScreen;

// A display output: a frameless window on the chosen screen showing the programme at the
// chosen format, a new frame at the format's frame rate. The picture keeps the format's
// shape; a screen smaller than the format shows it scaled down.
class HOST_EXPORT DisplayOutputWindow : public QWidget
{
    Q_OBJECT
public:
    DisplayOutputWindow(QScreen* screen, const DisplayMode& mode, const ProgrammePicture& picture);

    DisplayMode mode() const { return m_mode; }
    const ProgrammePicture& picture() const { return m_picture; }
    // Frames per second the window draws (an interlaced format's rate counts fields).
    double framesPerSecond() const;
    int framesDrawn() const { return m_framesDrawn; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DisplayMode m_mode;
    ProgrammePicture m_picture;
    QTimer m_frameTimer;
    int m_framesDrawn = 0;
};
