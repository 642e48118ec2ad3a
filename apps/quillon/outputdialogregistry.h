#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>

class HostSession;
class QDialog;
class QWidget;

// The output dialogs the console offers, in button order. A dialog is added by adding
// one entry to the list in outputdialogregistry.cpp: the console's button and menu
// action, and the screenshot run, all come from here.
class OutputDialogRegistry
{
    Q_DECLARE_TR_FUNCTIONS(OutputDialogRegistry)

public:
    struct Entry {
        // Names the button ("<id>Button"), the menu action and the screenshot file ("<id>.png").
        QString id;
        // Source text, translated in this class's context by label().
        const char* label;
        QString icon;
        // Dialogs whose outputs keep running while hidden are made once and kept;
        // the others are made for each opening and deleted when closed.
        bool keep;
        std::function<QDialog*(QWidget* parent, HostSession& session)> create;
        // How the console brings the dialog up; empty means QDialog::open(). A dialog that
        // reloads its settings in exec() or opens with a flag says so here.
        std::function<void(QDialog* dialog)> present;
    };

    static const QList<Entry>& entries();
    static QString label(const Entry& entry);
};
