#include "setup/authorizedialog.h"

#include "ui_authorizedialog.h"

#include <QPushButton>

AuthorizeDialog::AuthorizeDialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AuthorizeDialog>())
{
    ui->setupUi(this);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui->username, &QLineEdit::textChanged, this, &AuthorizeDialog::authorizeChange);
    connect(ui->password, &QLineEdit::textChanged, this, &AuthorizeDialog::authorizeChange);

    const int labelWidth = qMax(ui->label_id->fontMetrics().horizontalAdvance(ui->label_id->text()),
                                ui->label_pw->fontMetrics().horizontalAdvance(ui->label_pw->text()));
    ui->label_id->setMinimumWidth(labelWidth);
    ui->label_pw->setMinimumWidth(labelWidth);
    authorizeChange();
    adjustSize();
}

AuthorizeDialog::~AuthorizeDialog() = default;

QString AuthorizeDialog::username() const
{
    return ui->username->text();
}

QString AuthorizeDialog::password() const
{
    return ui->password->text();
}

void AuthorizeDialog::authorizeChange()
{
    ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(!ui->username->text().isEmpty() && !ui->password->text().isEmpty());
}
