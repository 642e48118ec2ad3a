#include "output/playoutitem.h"
#include "ui_playoutitem.h"

#include "interface/outputinterface.h"
#include "output/outputrow.h"
#include "widgets/messagebox.h"

namespace {

const QIcon& playIcon()
{
    static const QIcon icon = [] {
        QIcon made(QStringLiteral(":/resources/appicons/recording.png"));
        made.addFile(QStringLiteral(":/resources/appicons/recording_active.png"), QSize(), QIcon::Normal, QIcon::On);
        return made;
    }();
    return icon;
}

} // namespace

PlayoutItem::PlayoutItem(QWidget* parent, OutputInterface* host, int kind, int number)
    : QWidget(parent), ui(new Ui::PlayoutItem), m_host(host)
{
    ui->setupUi(this);
    ui->playBtn->setIcon(playIcon());
    OutputRow::Controls controls;
    controls.device = ui->deviceList;
    controls.format = ui->formatList;
    controls.videoSource = ui->videoSourceList;
    controls.audioSource = ui->audioSourceList;
    controls.alpha = ui->alphaList;
    controls.audioDevice = ui->audioDeviceList;
    m_row = std::make_unique<OutputRow>(OutputLists::Playout, kind, number, controls);

    // Each kind shows what it can carry: SDI and NDI embed sound and key, a display plays its
    // sound on an audio device, an audio output has no picture, a virtual camera only a picture.
    const bool audio = kind & OutputInfo::Audio;
    const bool display = kind & OutputInfo::Display;
    const bool camera = kind & OutputInfo::VirtualCamera;
    const bool keys = kind & (OutputInfo::Sdi | OutputInfo::Ndi);
    ui->videoSourceLabel->setVisible(!audio);
    ui->videoSourceList->setVisible(!audio);
    ui->audioSourceLabel->setVisible(!camera);
    ui->audioSourceList->setVisible(!camera);
    ui->alphaLabel->setVisible(keys);
    ui->alphaList->setVisible(keys);
    ui->audioDeviceLabel->setVisible(display);
    ui->audioDeviceList->setVisible(display);
    showName();

    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(ui->deviceList, changed, this, &PlayoutItem::videoDeviceChange);
    connect(ui->audioDeviceList, changed, this, &PlayoutItem::audioDeviceChange);
    connect(ui->formatList, changed, this, &PlayoutItem::videoFormatChange);
    connect(ui->videoSourceList, changed, this, &PlayoutItem::videoSourceChange);
    connect(ui->audioSourceList, changed, this, &PlayoutItem::audioSourceChange);
    connect(ui->alphaList, changed, this, &PlayoutItem::alphaChange);
    connect(ui->playBtn, &QToolButton::toggled, this, &PlayoutItem::playout);
}

PlayoutItem::~PlayoutItem() = default;

const OutputInfo& PlayoutItem::info() const
{
    return m_row->info();
}

QString PlayoutItem::name() const
{
    return m_row->name();
}

bool PlayoutItem::isConfigured() const
{
    return m_row->isConfigured();
}

bool PlayoutItem::isPlaying() const
{
    return ui->playBtn->isChecked();
}

void PlayoutItem::setPlaying(bool on)
{
    const QSignalBlocker blocker(ui->playBtn);
    ui->playBtn->setChecked(on);
    m_row->setRunning(on);
}

void PlayoutItem::load(const QJsonObject& playout)
{
    m_row->load(playout);
    showName();
}

void PlayoutItem::store(QJsonObject* playout) const
{
    m_row->store(playout);
}

void PlayoutItem::showName()
{
    ui->outputName->setText(OutputRow::playoutName(m_row->info(), true));
}

void PlayoutItem::videoDeviceChange(int)
{
    m_row->deviceChanged();
}

void PlayoutItem::audioDeviceChange(int)
{
    m_row->audioDeviceChanged();
}

void PlayoutItem::videoFormatChange(int)
{
    m_row->formatChanged();
}

void PlayoutItem::videoSourceChange(int)
{
    m_row->videoSourceChanged();
    showName();
}

void PlayoutItem::audioSourceChange(int)
{
    m_row->audioSourceChanged();
}

void PlayoutItem::alphaChange(int)
{
    m_row->alphaChanged();
}

void PlayoutItem::playout(bool on)
{
    const OutputInfo& info = m_row->info();
    bool done = false;
    if (m_host && !info.deviceName.isEmpty() && info.kind != 0)
        done = m_host->playout(m_row->infoPtr(), on);
    if (!on || done) {
        m_row->setRunning(on);
        if (on)
            emit started();
        return;
    }
    // Without a device there is nothing to start: the same answer as a refusing host.
    MessageBox::warning(this, tr("warning"), tr("Cannot start output."));
    setPlaying(false);
}
