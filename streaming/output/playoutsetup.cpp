#include "output/playoutsetup.h"
#include "ui_playoutsetup.h"

#include "capture/capturemanager.h"
#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "output/outputrow.h"
#include "output/playoutitem.h"

#include <QVBoxLayout>

namespace {

const char settingsKey[] = "PLAYOUT";

} // namespace

PlayoutSetup::PlayoutSetup(QWidget* parent, OutputInterface* host)
    : QDialog(parent), ui(new Ui::PlayoutSetup), host(host)
{
    ui->setupUi(this);
    for (QWidget* container : {ui->sdiContainer, ui->ndiContainer, ui->displayContainer, ui->audioContainer,
                               ui->vcamContainer}) {
        auto* layout = new QVBoxLayout(container);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &PlayoutSetup::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &PlayoutSetup::reject);
    buildOutputs();
}

PlayoutSetup::~PlayoutSetup() = default;

void PlayoutSetup::buildOutputs()
{
    QList<OutputInfo> playing;
    for (PlayoutItem* row : qAsConst(m_rows)) {
        if (row->isPlaying())
            playing.append(row->info());
        delete row;
    }
    m_rows.clear();

    const CaptureManager& capture = CaptureManager::instance();
    // One row per device of each kind, so every device can have its output; at least one a tab.
    const QList<QPair<int, QWidget*>> tabs{
        {OutputInfo::Sdi, ui->sdiContainer},
        {OutputInfo::Ndi, ui->ndiContainer},
        {OutputInfo::Display, ui->displayContainer},
        {OutputInfo::Audio, ui->audioContainer},
        {OutputInfo::VirtualCamera, ui->vcamContainer},
    };
    for (const auto& tab : tabs) {
        const int devices = tab.first == OutputInfo::Audio ? QuillonEngine::audioDevices().size()
                                                           : capture.outputDevices(tab.first).size();
        auto* layout = static_cast<QVBoxLayout*>(tab.second->layout());
        while (QLayoutItem* item = layout->takeAt(0))
            delete item;
        for (int number = 1; number <= qMax(1, devices); ++number) {
            auto* row = new PlayoutItem(tab.second, host, tab.first, number);
            layout->addWidget(row);
            m_rows.append(row);
            connect(row, &PlayoutItem::started, this, [this, row] { saveSetting({row}); });
        }
        layout->addStretch(1);
    }
    reloadPresets();
    for (OutputInfo& info : playing)
        encoding(&info, true);
}

int PlayoutSetup::exec()
{
    reloadPresets();
    return QDialog::exec();
}

void PlayoutSetup::open(bool fromHost)
{
    reloadPresets();
    m_fromHost = fromHost;
    setModal(false);
    show();
}

void PlayoutSetup::open()
{
    open(false);
}

void PlayoutSetup::reloadPresets()
{
    const QJsonObject playout = OutputRow::storedPlayout(host);
    // A running row shows what runs; it is read again once it stops.
    for (PlayoutItem* row : qAsConst(m_rows))
        if (!row->isPlaying())
            row->load(playout);
}

void PlayoutSetup::reloadPreset(OutputInfo* info)
{
    if (!info)
        return;
    const QJsonObject playout = OutputRow::storedPlayout(host);
    for (PlayoutItem* row : qAsConst(m_rows))
        if (row->info().sameOutput(*info))
            row->load(playout);
}

const QList<OutputInfo>& PlayoutSetup::outputInfos() const
{
    return m_outputInfos;
}

void PlayoutSetup::encoding(OutputInfo* info, bool on)
{
    for (PlayoutItem* row : qAsConst(m_rows))
        if (info && row->info().sameOutput(*info))
            row->setPlaying(on);
}

void PlayoutSetup::encoding(bool on)
{
    for (PlayoutItem* row : qAsConst(m_rows))
        row->setPlaying(on);
}

bool PlayoutSetup::isEncoding() const
{
    for (const PlayoutItem* row : m_rows)
        if (row->isPlaying())
            return true;
    return false;
}

bool PlayoutSetup::validCheck()
{
    m_outputInfos.clear();
    for (const PlayoutItem* row : qAsConst(m_rows))
        if (row->isConfigured())
            m_outputInfos.append(row->info());
    return !m_outputInfos.isEmpty();
}

void PlayoutSetup::saveSetting(const QList<PlayoutItem*>& rows)
{
    if (!host)
        return;
    // Other entries (the external outputs, other hosts' keys) stay as they are.
    QJsonObject playout = OutputRow::storedPlayout(host);
    for (const PlayoutItem* row : rows)
        row->store(&playout);
    host->setSettingsObject(QLatin1String(settingsKey), playout);
}

void PlayoutSetup::accept()
{
    validCheck();
    saveSetting(m_rows);
    m_fromHost = false;
    QDialog::accept();
}

void PlayoutSetup::reject()
{
    if (m_fromHost && host)
        host->playoutClosed(false);
    m_fromHost = false;
    QDialog::reject();
}
