#pragma once

#include "streaming_export.h"

#include <QDialog>
#include <QString>

#include <memory>

class CodecPreset;
struct Snapshot;

namespace Ui {
class FileNamingDialog;
}

// Edits a file tag with a live preview of the file name it gives. Edits go
// straight into the record passed in (exactly one of preset or shot).
class STREAMING_EXPORT FileNamingDialog : public QDialog
{
    Q_OBJECT

public:
    FileNamingDialog(QWidget* parent, CodecPreset* preset, Snapshot* shot);
    ~FileNamingDialog() override;

    QString fileTag() const;

private slots:
    void fileTagChange(const QString& text);

private:
    std::unique_ptr<Ui::FileNamingDialog> ui;
    CodecPreset* m_preset = nullptr;
    Snapshot* m_shot = nullptr;
};
