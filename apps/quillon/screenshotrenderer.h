#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

class HostSession;
class MainWindow;
class QWidget;

// Renders the console and every registered dialog to PNG files without showing them.
class ScreenshotRenderer
{
    Q_DECLARE_TR_FUNCTIONS(ScreenshotRenderer)

public:
    ScreenshotRenderer(MainWindow& window, HostSession& session);

    // "mainwindow.png", one "<id>.png" per registered dialog (id in lower case) and one
    // per dialog those open (screenshotrenderer.cpp lists them). False with errorText()
    // set when the directory or a file cannot be written, or a dialog did not open.
    bool renderAll(const QString& directory);
    QStringList written() const { return m_written; }
    QString errorText() const { return m_errorText; }

    static bool grabToFile(QWidget* widget, const QString& path);

private:
    bool write(QWidget* widget, const QString& file);
    bool renderInner(const QString& dialogId, const std::function<bool(QWidget*)>& open, const QString& file);

    MainWindow& m_window;
    HostSession& m_session;
    QStringList m_written;
    QString m_errorText;
};
