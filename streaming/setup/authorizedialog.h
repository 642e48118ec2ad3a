#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AuthorizeDialog;
}

// Asks for the user name and password of a service that logs in without a web page.
class AuthorizeDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AuthorizeDialog(QWidget* parent = nullptr);
    ~AuthorizeDialog() override;

    QString username() const;
    QString password() const;

private slots:
    void authorizeChange();

private:
    std::unique_ptr<Ui::AuthorizeDialog> ui;
};
