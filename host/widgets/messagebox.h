#pragma once

#include "host_export.h"

#include <QList>
#include <QMessageBox>
#include <QString>

// Every message box of the library goes through here. Scripted, nothing is shown:
// the next queued answer (or the default button) is returned and the box is recorded.
class HOST_EXPORT MessageBox
{
public:
    enum class Kind { Information, Question, Warning, Critical };
    struct Shown {
        Kind kind;
        QString title;
        QString text;
    };

    static QMessageBox::StandardButton information(QWidget* parent, const QString& title, const QString& text,
                                                   QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                                   QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No,
                                                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton warning(QWidget* parent, const QString& title, const QString& text,
                                               QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                               QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton critical(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    // Test seam. While scripted no box is ever shown.
    static void setScripted(bool scripted);
    static bool isScripted();
    static void setNextAnswer(QMessageBox::StandardButton answer);
    static QList<Shown> shown();
    static Shown lastShown();
    static void clear();

private:
    static QMessageBox::StandardButton show(Kind kind, QWidget* parent, const QString& title, const QString& text,
                                            QMessageBox::StandardButtons buttons,
                                            QMessageBox::StandardButton defaultButton);
};
