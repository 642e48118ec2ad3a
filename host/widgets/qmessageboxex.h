#pragma once

#include "host_export.h"

#include <QMessageBox>

// The host's styled message box; questions go through the scripted seam.
class HOST_EXPORT QMessageBoxEx : public QMessageBox
{
    Q_OBJECT
public:
    using QMessageBox::QMessageBox;

    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = StandardButtons(Yes | No),
                                   StandardButton defaultButton = NoButton);
};
