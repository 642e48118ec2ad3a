#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

class QUrl;
namespace Ui {
class WebDialog;
}

// The window in which a service's own authorisation page is shown. Every address the
// page reaches is reported by urlChanged; the provider decides what it means.
class WebDialog : public QDialog
{
    Q_OBJECT
public:
    explicit WebDialog(QWidget* parent = nullptr);
    ~WebDialog() override;

    void load(const QUrl& url);
    // Closes the page (its browser goes away).
    void clear();

signals:
    void urlChanged(const QUrl& url);

private:
    std::unique_ptr<Ui::WebDialog> ui;
    // Services that keep the last login in a cookie and would skip the account choice.
    const QStringList m_serviceKeywords;
};
