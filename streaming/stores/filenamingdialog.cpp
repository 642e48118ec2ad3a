#include "stores/filenamingdialog.h"
#include "ui_filenamingdialog.h"

#include "records/codecpreset.h"
#include "stores/filetag.h"
#include "stores/snapshot.h"

#include <QPushButton>

FileNamingDialog::FileNamingDialog(QWidget* parent, CodecPreset* preset, Snapshot* shot)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , ui(std::make_unique<Ui::FileNamingDialog>())
    , m_preset(preset)
    , m_shot(shot)
{
    ui->setupUi(this);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui->fileTag, &QLineEdit::textChanged, this, &FileNamingDialog::fileTagChange);

    if (m_preset) {
        ui->fileTag->setText(m_preset->local().fileTag);
    } else if (m_shot) {
        ui->codecContainer->hide();
        ui->fileTag->setText(m_shot->fileTag);
    }
    // An empty tag emits no change; the preview still shows what it gives.
    if (ui->fileTag->text().isEmpty() && (m_preset || m_shot))
        fileTagChange(QString());
}

FileNamingDialog::~FileNamingDialog() = default;

QString FileNamingDialog::fileTag() const
{
    return ui->fileTag->text();
}

void FileNamingDialog::fileTagChange(const QString& text)
{
    if (m_preset) {
        m_preset->local().fileTag = text;
        ui->fileName->setText(FileTag::fromCodecPreset(m_preset, true));
    } else if (m_shot) {
        m_shot->fileTag = text;
        ui->fileName->setText(FileTag::fromSnapshot(*m_shot, true));
    }
}
