#pragma once

#include <QCoreApplication>

class QLineEdit;
class QWidget;

// The folder a dialog's files go to, chosen by the operator: folders only, and a link is kept
// as the path the operator picked rather than where it points.
class FolderChooser
{
    Q_DECLARE_TR_FUNCTIONS(FolderChooser)

public:
    // Starts at `start`; a choice replaces the text of `field`, a cancel leaves it.
    static void choose(QWidget* parent, QLineEdit* field, const QString& start);
};
