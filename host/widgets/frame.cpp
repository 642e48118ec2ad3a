#include "widgets/frame.h"

Frame::Frame(QWidget* parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Plain);
}
