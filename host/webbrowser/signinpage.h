#pragma once

#include <QWebEnginePage>

// A service's sign-in page. The page is drawn off screen, so a script's alert, confirm
// or prompt would open a box over a window the operator never sees: they are logged
// and answered as closed instead.
class SignInPage : public QWebEnginePage
{
    Q_OBJECT
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    void javaScriptAlert(const QUrl& securityOrigin, const QString& message) override;
    bool javaScriptConfirm(const QUrl& securityOrigin, const QString& message) override;
    bool javaScriptPrompt(const QUrl& securityOrigin, const QString& message, const QString& defaultValue,
                          QString* result) override;
};
