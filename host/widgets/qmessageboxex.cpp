#include "widgets/qmessageboxex.h"

#include "widgets/messagebox.h"

QMessageBox::StandardButton QMessageBoxEx::question(QWidget* parent, const QString& title, const QString& text,
                                                    StandardButtons buttons, StandardButton defaultButton)
{
    return MessageBox::question(parent, title, text, buttons, defaultButton);
}
