#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class HostSession;
class MainWindow;
class QWidget;

// Renders the console and every registered dialog to PNG files without showing them.
class ScreenshotRenderer
{
    Q_DECLARE_TR_FUNCTIONS(ScreenshotRenderer)

public:
    ScreenshotRenderer(MainWindow& window, HostSession& session);

    // "mainwindow.png" and one "<id>.png" per dialog (id in lower case). False with
    // errorText() set when the directory or a file cannot be written.
    bool renderAll(const QString& directory);
    QStringList written() const { return m_written; }
    QString errorText() const { return m_errorText; }

    static bool grabToFile(QWidget* widget, const QString& path);

private:
    MainWindow& m_window;
    HostSession& m_session;
    QStringList m_written;
    QString m_errorText;
};
