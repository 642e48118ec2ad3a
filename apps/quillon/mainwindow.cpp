#include "quillon/mainwindow.h"
#include "ui_mainwindow.h"

#include "capture/displaymode.h"
#include "engine/quillonengine.h"
#include "interface/fileoutputinterface.h"
#include "quillon/encodinglogformatter.h"
#include "quillon/chatpanel.h"
#include "quillon/hostsession.h"
#include "quillon/isorecorder.h"
#include "quillon/stillgrabber.h"
#include "quillon/outputdialogregistry.h"
#include "quillon/playouthost.h"
#include "quillon/runninglineformatter.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QAction>
#include <QBoxLayout>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>

namespace {

void setPlaceholder(QListWidget* list, const QString& text)
{
    auto* item = new QListWidgetItem(text, list);
    item->setFlags(Qt::NoItemFlags);
    QFont font = item->font();
    font.setItalic(true);
    item->setFont(font);
}

} // namespace

MainWindow::MainWindow(HostSession& session, QWidget* parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::MainWindow>()), m_session(session)
{
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/resources/appicons/streaming.png")));
    ui->dataLabel->setText(tr("Data folder: %1").arg(QDir::toNativeSeparators(session.dataDirectory())));

    buildDialogButtons();
    refreshPresets();
    refreshServers();
    refreshRunning();

    const ProjectPreset::VideoOutput& video = session.project().videoOutput();
    auto* formatLabel = new QLabel(tr("%1 | %2 streams, %3 recordings")
                                       .arg(DisplayMode(video.height, video.interlaced, video.frameRate).name())
                                       .arg(session.license().maxStreaming())
                                       .arg(session.license().maxRecording()),
                                   this);
    formatLabel->setObjectName(QStringLiteral("formatLabel"));
    statusBar()->addPermanentWidget(formatLabel);

    ActivityLog* log = session.log();
    for (const QString& line : log->lines())
        ui->logView->appendPlainText(line);
    connect(log, &ActivityLog::lineAdded, this, &MainWindow::appendLogLine);
    // A damaged file at start is told here and in the log, never by a blocking box.
    if (!session.setupNotice().isEmpty())
        statusBar()->showMessage(session.setupNotice());
    else if (!log->lastWarning().isEmpty())
        statusBar()->showMessage(tr("Started with warnings; see the log."));
    else
        statusBar()->showMessage(tr("Ready."), 5000);

    connect(&session.setup(), &MemoryOutputInterface::encodingChangedNotified, this, &MainWindow::encodingChanged);
    connect(&QuillonEngine::instance(), &QuillonEngine::encodingRequested, this, &MainWindow::refreshRunning);
    connect(&QuillonEngine::instance(), &QuillonEngine::outputsChanged, this, &MainWindow::refreshRunning);
    connect(&session.playout(), &PlayoutHost::changed, this, &MainWindow::refreshRunning);
    m_runningTimer.setInterval(1000);
    connect(&m_runningTimer, &QTimer::timeout, this, &MainWindow::refreshRunning);
    connect(&session.setup(), &MemoryOutputInterface::settingsChanged, this, [this](const QString& key) {
        const QString error = m_session.setup().lastError();
        if (!error.isEmpty()) {
            m_session.log()->warning(error);
            statusBar()->showMessage(tr("The setup could not be saved; see the log."));
        } else {
            m_session.log()->info(tr("Setup saved (%1).").arg(key));
        }
    });
    connect(ui->actionReload, &QAction::triggered, this, &MainWindow::reloadStores);
    connect(ui->actionQuit, &QAction::triggered, this, &QWidget::close);

    m_chatPanel = new ChatPanel(session.streamingManager(), session.log(), this);
    addDockWidget(Qt::RightDockWidgetArea, m_chatPanel);
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->setObjectName(QStringLiteral("menuView"));
    view->addAction(m_chatPanel->toggleViewAction());
}

// Kept dialogs are children and go with the window.
MainWindow::~MainWindow() = default;

void MainWindow::buildDialogButtons()
{
    for (const OutputDialogRegistry::Entry& entry : OutputDialogRegistry::entries()) {
        const QString text = OutputDialogRegistry::label(entry);
        const QIcon icon(entry.icon);
        auto* button = new QPushButton(icon, text, ui->outputsGroup);
        button->setObjectName(entry.id + QStringLiteral("Button"));
        ui->dialogButtonLayout->addWidget(button);
        QAction* action = ui->menuOutputs->addAction(icon, text);
        action->setObjectName(entry.id + QStringLiteral("Action"));
        const QString id = entry.id;
        connect(button, &QPushButton::clicked, this, [this, id] { openDialog(id); });
        connect(action, &QAction::triggered, this, [this, id] { openDialog(id); });
    }
    // What the switcher's own panel does with those settings: grab stills, end the ISO files.
    auto* grab = new QPushButton(QIcon(QStringLiteral(":/resources/appicons/eye.png")), tr("Grab Still"),
                                 ui->outputsGroup);
    grab->setObjectName(QStringLiteral("grabStillButton"));
    auto* panel = new QHBoxLayout;
    panel->addWidget(grab);
    ui->dialogButtonLayout->addLayout(panel);
    connect(grab, &QPushButton::clicked, this, [this] { m_session.stillGrabber().grab(); });
    auto* stopIso = new QPushButton(QIcon(QStringLiteral(":/resources/appicons/recording_active.png")),
                                    tr("Stop ISO Recording"), ui->outputsGroup);
    stopIso->setObjectName(QStringLiteral("stopIsoButton"));
    stopIso->setEnabled(m_session.isoRecorder().isRunning());
    panel->addWidget(stopIso);
    connect(stopIso, &QPushButton::clicked, this, [this] { m_session.isoRecorder().stop(); });
    connect(&m_session.isoRecorder(), &IsoRecorder::runningChanged, stopIso, &QWidget::setEnabled);
}

QDialog* MainWindow::openDialog(const QString& id)
{
    for (const OutputDialogRegistry::Entry& entry : OutputDialogRegistry::entries()) {
        if (entry.id != id)
            continue;
        QDialog* dialog = entry.keep ? m_keptDialogs.value(id).data() : nullptr;
        if (!dialog) {
            dialog = entry.create(this, m_session);
            connect(dialog, &QDialog::finished, this, &MainWindow::refreshStoreLists);
            if (entry.keep)
                m_keptDialogs.insert(id, dialog);
            else
                dialog->setAttribute(Qt::WA_DeleteOnClose);
        }
        m_session.log()->info(tr("Opened %1").arg(OutputDialogRegistry::label(entry)));
        if (entry.present)
            entry.present(dialog);
        else
            dialog->open();
        return dialog;
    }
    return nullptr;
}

void MainWindow::reloadStores()
{
    m_session.codecManager().reloadPresets();
    m_session.streamingManager().reloadPresets();
    refreshPresets();
    refreshServers();
    m_session.log()->info(tr("Stores reloaded: %1 codec presets, %2 saved servers.")
                              .arg(m_session.codecManager().codecPresets().size())
                              .arg(m_session.streamingManager().serverInfos().size()));
}

void MainWindow::refreshPresets()
{
    ui->codecPresetList->clear();
    QStringList labels;
    for (const CodecPreset& preset : m_session.codecManager().codecPresets())
        labels.append(CodecManager::namingFromPreset(&preset));
    labels.sort(Qt::CaseInsensitive);
    ui->codecPresetList->addItems(labels);
    if (labels.isEmpty())
        setPlaceholder(ui->codecPresetList, tr("No codec presets"));
}

void MainWindow::refreshServers()
{
    ui->serverList->clear();
    for (const ServerInfo& server : m_session.streamingManager().serverInfos())
        ui->serverList->addItem(tr("%1 - %2").arg(server.channel.title, server.channel.url));
    if (ui->serverList->count() == 0)
        setPlaceholder(ui->serverList, tr("No saved servers"));
}

void MainWindow::refreshStoreLists()
{
    refreshPresets();
    refreshServers();
    m_chatPanel->reloadRooms(); // an account may have been signed in or out
}

void MainWindow::refreshRunning()
{
    ui->runningList->clear();
    if (QuillonEngine::backend()) {
        for (const EngineOutput& output : QuillonEngine::outputs())
            ui->runningList->addItem(RunningLineFormatter::line(output));
    } else {
        for (const CodecPreset& preset : QuillonEngine::runningEncoders()) {
            const QString name = preset.name().isEmpty() ? tr("Unnamed") : preset.name();
            ui->runningList->addItem(tr("%1 - %2").arg(name, CodecManager::namingFromPreset(&preset)));
        }
    }
    // Ticks only while an encoder runs.
    const bool encoders = ui->runningList->count() > 0;
    ui->runningList->addItems(m_session.playout().runningLines());
    if (ui->runningList->count() == 0)
        setPlaceholder(ui->runningList, tr("Nothing running"));
    if (QuillonEngine::backend() && encoders)
        m_runningTimer.start();
    else
        m_runningTimer.stop();
}

void MainWindow::appendLogLine(const QString& line, ActivityLog::Level level)
{
    ui->logView->appendPlainText(line);
    if (level == ActivityLog::Level::Warning && statusBar()->currentMessage().isEmpty())
        statusBar()->showMessage(tr("Warning; see the log."), 10000);
}

void MainWindow::encodingChanged(int kind, const CodecPreset& preset, bool on)
{
    // The file the engine really writes, when it runs one for this preset.
    QString file;
    const QString key = preset.id().isEmpty() ? preset.name() : preset.id();
    for (const EngineOutput& output : QuillonEngine::outputs())
        if (on && kind == EncodingLogFormatter::Recording && output.key == key)
            file = QFileInfo(output.target).fileName();
    m_session.log()->info(EncodingLogFormatter::describe(kind, preset, on, file));
    refreshRunning();
}
