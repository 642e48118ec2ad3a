#pragma once

#include "quillon/activitylog.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <memory>

class ChatPanel;
class CodecPreset;
class HostSession;
class QDialog;

namespace Ui {
class MainWindow;
}

// The switcher's output console: a button per output dialog, the stores' presets and
// servers, the outputs the engine runs and a log of what it was asked to do.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(HostSession& session, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Opens the registry's dialog of that id; returns it (null for an unknown id).
    QDialog* openDialog(const QString& id);

public slots:
    void reloadStores();

private slots:
    void appendLogLine(const QString& line, ActivityLog::Level level);
    void encodingChanged(int kind, const CodecPreset& preset, bool on);
    void refreshRunning();
    // A dialog may have added or removed codec presets or saved servers.
    void refreshStoreLists();

private:
    void buildDialogButtons();
    void refreshPresets();
    void refreshServers();

    std::unique_ptr<Ui::MainWindow> ui;
    HostSession& m_session;
    QHash<QString, QPointer<QDialog>> m_keptDialogs;
    QTimer m_runningTimer; // elapsed times and retry countdowns, once a second
    ChatPanel* m_chatPanel = nullptr;
};
