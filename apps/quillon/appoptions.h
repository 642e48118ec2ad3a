#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>

// The command line of the reference host.
class AppOptions
{
    Q_DECLARE_TR_FUNCTIONS(AppOptions)

public:
    // Reads the arguments (program name first); isValid() is false with errorText() set on bad input.
    static AppOptions parse(const QStringList& arguments);
    // True when the raw arguments ask for screenshots; read before the application object exists.
    static bool wantsScreenshots(int argc, char** argv);

    bool isValid() const { return m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }
    bool helpRequested() const { return m_helpRequested; }
    QString helpText() const { return m_helpText; }
    // Absolute; the platform's application data location unless --data was given.
    QString dataDirectory() const { return m_dataDirectory; }
    // Absolute; empty unless --screenshots was given.
    QString screenshotDirectory() const { return m_screenshotDirectory; }
    // The language of the texts: --lang, else the system's.
    QLocale locale() const { return m_locale; }
    bool languageRequested() const { return m_languageRequested; }

private:
    QString m_dataDirectory;
    QString m_screenshotDirectory;
    QString m_errorText;
    QString m_helpText;
    QLocale m_locale = QLocale::system();
    bool m_helpRequested = false;
    bool m_languageRequested = false;
};
