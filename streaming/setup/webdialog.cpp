#include "setup/webdialog.h"

#include "ui_webdialog.h"

#include <QUrl>

WebDialog::WebDialog(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::WebDialog>())
    , m_serviceKeywords{QStringLiteral("facebook"), QStringLiteral("dailymotion"), QStringLiteral("twitch")}
{
    ui->setupUi(this);
    connect(ui->webView, &WebView::urlChanged, this, [this](const QString& url) { emit urlChanged(QUrl(url)); });
    load(QUrl());
}

WebDialog::~WebDialog() = default;

void WebDialog::load(const QUrl& url)
{
    const QString host = url.host();
    for (const QString& keyword : m_serviceKeywords) {
        if (host.contains(keyword, Qt::CaseInsensitive)) {
            ui->webView->deleteCookies();
            break;
        }
    }
    ui->webView->loadUrl(url);
}

void WebDialog::clear()
{
    load(QUrl());
}
