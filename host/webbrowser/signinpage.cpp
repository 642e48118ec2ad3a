#include "webbrowser/signinpage.h"

#include <QLoggingCategory>

namespace {
Q_LOGGING_CATEGORY(lcPage, "host.webbrowser")
}

void SignInPage::javaScriptAlert(const QUrl& securityOrigin, const QString& message)
{
    qCInfo(lcPage) << "The page" << securityOrigin.host() << "showed an alert:" << message.left(200);
}

bool SignInPage::javaScriptConfirm(const QUrl& securityOrigin, const QString& message)
{
    qCInfo(lcPage) << "The page" << securityOrigin.host() << "asked to confirm:" << message.left(200);
    return false;
}

bool SignInPage::javaScriptPrompt(const QUrl& securityOrigin, const QString& message, const QString&, QString*)
{
    qCInfo(lcPage) << "The page" << securityOrigin.host() << "asked for text:" << message.left(200);
    return false;
}
