#include "recording/encoderitem.h"
#include "ui_encoderitem.h"

#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "stores/codecmanager.h"
#include "stores/nametables.h"

namespace {

// Decoded once and shared: a setup may hold a hundred rows.
const QIcon& buttonIcon(int kind)
{
    auto make = [](const char* off, const char* on) {
        QIcon icon{QString::fromLatin1(off)};
        icon.addFile(QString::fromLatin1(on), QSize(), QIcon::Normal, QIcon::On);
        return icon;
    };
    static const QIcon streaming =
        make(":/resources/appicons/streaming.png", ":/resources/appicons/streaming_active.png");
    static const QIcon recording =
        make(":/resources/appicons/recording.png", ":/resources/appicons/recording_active.png");
    return kind == 0 ? streaming : recording;
}

} // namespace

EncoderItem::EncoderItem(QWidget* parent, OutputInterface* host, int kind)
    : QWidget(parent), ui(new Ui::EncoderItem), m_host(host), m_kind(kind)
{
    ui->setupUi(this);
    ui->encodingBtn->setIcon(buttonIcon(kind));
    connect(ui->encodingBtn, &QToolButton::toggled, this, &EncoderItem::encoding);
}

EncoderItem::~EncoderItem() = default;

void EncoderItem::setPreset(QListWidgetItem* item, const CodecPreset* preset)
{
    if (!preset)
        return;
    m_item = item;
    m_preset = *preset;
    ui->presetName->setText(m_preset.name());
    ui->videoCodec->setText(videoSummary(m_preset));
    ui->audioCodec->setText(audioSummary(m_preset));
}

QString EncoderItem::videoSummary(const CodecPreset& preset)
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    if (!v.enabled)
        return QString();
    QString text = v.codec;
    if (v.frameRate > 0)
        text += QStringLiteral(" %1%2").arg(v.height).arg(v.field ? QStringLiteral("i") : QStringLiteral("p"))
              + QString::number(v.frameRate, 'g', QLocale::FloatingPointShortest);
    else
        text += QStringLiteral(" %1 %2").arg(v.height).arg(tr("AUTO"));
    if (v.keyFrame > 0)
        text += QStringLiteral(" %1s").arg(v.keyFrame);
    if (v.bitRate > 0)
        text += QStringLiteral(" %1").arg(v.bitRate);
    if (v.codec == QLatin1String("Apple ProRes"))
        text += QStringLiteral(" %1").arg(NameTables::proResProfile(v.quality));
    return text;
}

QString EncoderItem::audioSummary(const CodecPreset& preset)
{
    const CodecModel::AudioCodec& a = preset.audioCodec();
    if (!a.enabled)
        return QString();
    QString text = QStringLiteral("%1 ").arg(a.codec);
    text += a.channels == 2 ? tr("Stereo") : tr("Mono");
    text += QStringLiteral(" %1kHz").arg(CodecManager::sampleRateTokHz(a.sampleRate));
    if (a.bitRate > 0)
        text += QStringLiteral(" %1kbps").arg(a.bitRate);
    return text;
}

bool EncoderItem::isChecked() const
{
    return ui->encodingBtn->isChecked();
}

void EncoderItem::setChecked(bool on)
{
    ui->encodingBtn->setChecked(on);
}

void EncoderItem::encoding(bool on)
{
    const ProjectPreset project = QuillonEngine::projectPreset();
    CodecPreset resolved = m_preset;
    CodecModel::VideoCodec& v = resolved.videoCodec();
    // The engine counts frames; an interlaced rate is a field rate.
    if (v.frameRate > 0) {
        if (v.field)
            v.frameRate *= 0.5;
    } else {
        v.frameRate = project.videoOutput().frameRate * (project.videoOutput().interlaced ? 0.5 : 1.0);
    }
    QuillonEngine::encoding(&resolved, on);
    if (m_host)
        m_host->encodingChanged(m_kind, &m_preset, on);
}
