#include "stores/folderchooser.h"

#include <QFileDialog>
#include <QLineEdit>

void FolderChooser::choose(QWidget* parent, QLineEdit* field, const QString& start)
{
    const QString directory = QFileDialog::getExistingDirectory(
        parent, tr("Open Directory"), start, QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!directory.isEmpty())
        field->setText(directory);
}
