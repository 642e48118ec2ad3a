#include "output/outputrow.h"

#include "capture/displaymode.h"
#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "output/displaylayout.h"
#include "stores/nametables.h"

#include <QComboBox>
#include <QSignalBlocker>

Q_LOGGING_CATEGORY(lcOutput, "streaming.output")

namespace {

const char* const kindNames[] = {QT_TRANSLATE_NOOP("OutputRow", "SDI %1"), QT_TRANSLATE_NOOP("OutputRow", "NDI %1"),
                                 QT_TRANSLATE_NOOP("OutputRow", "DISPLAY %1"), QT_TRANSLATE_NOOP("OutputRow", "AUDIO %1"),
                                 QT_TRANSLATE_NOOP("OutputRow", "VIRTUAL CAM %1")};
const char multiviewName[] = QT_TRANSLATE_NOOP("OutputRow", "MULTIVIEW %1");

// The pixel format a kind sends, with or without its key.
int defaultColorFormat(int kind, int keyer)
{
    QString name;
    if (kind & (OutputInfo::Sdi | OutputInfo::Ndi))
        name = keyer ? QStringLiteral("UYVA") : QStringLiteral("UYVY");
    else if (kind & OutputInfo::Display)
        name = QStringLiteral("BGRA");
    else if (kind & OutputInfo::VirtualCamera)
        name = QStringLiteral("NV12");
    return qMax(0, NameTables::pixelFormats().indexOf(name));
}

void setCurrent(QComboBox* list, int index)
{
    const QSignalBlocker blocker(list);
    list->setCurrentIndex(index);
}

QString storedDevice(const QString& name)
{
    return name.isEmpty() ? QStringLiteral("None") : name;
}

} // namespace

OutputRow::OutputRow(OutputLists::Usage usage, int kind, int number, const Controls& controls)
    : m_usage(usage), m_controls(controls)
{
    m_info.kind = kind;
    m_info.number = number;
    const int kinds = usage == OutputLists::External
        ? OutputInfo::Sdi | OutputInfo::Ndi | OutputInfo::Display | OutputInfo::VirtualCamera
        : kind;
    OutputLists::fillDevices(m_controls.device, kinds);
    if (m_controls.audioDevice)
        OutputLists::fillAudioDevices(m_controls.audioDevice);
    OutputLists::fillVideoSources(m_controls.videoSource, usage);
    OutputLists::fillAudioSources(m_controls.audioSource);
    // Nothing is sent until the operator picks a device; the sources start at the programme.
    OutputLists::selectLayout(m_controls.videoSource, LayoutType::Program, -1);
    OutputLists::selectLayout(m_controls.audioSource, LayoutType::Program, -1);
    deviceChanged();
    videoSourceChanged();
    audioSourceChanged();
    if (m_controls.audioDevice)
        audioDeviceChanged();
}

QString OutputRow::name() const
{
    if (m_usage == OutputLists::External)
        return QStringLiteral("EXTERNAL %1").arg(m_info.number);
    return playoutName(m_info);
}

QString OutputRow::playoutName(const OutputInfo& info, bool translated)
{
    const char* text = nullptr;
    if (info.videoSourceType == LayoutType::Multiview && !(info.kind & OutputInfo::Display)) {
        text = multiviewName;
    } else {
        for (int bit = 0; bit < int(std::size(kindNames)) && !text; ++bit)
            if (info.kind & (1 << bit))
                text = kindNames[bit];
    }
    if (!text)
        return QString();
    return (translated ? tr(text) : QString::fromLatin1(text)).arg(info.number);
}

bool OutputRow::isConfigured() const
{
    return !m_info.deviceName.isEmpty() && m_info.kind != 0 && !m_info.displayModeName.isEmpty();
}

void OutputRow::deviceChanged()
{
    m_info.deviceName = m_controls.device->currentData().toString();
    if (m_usage == OutputLists::External)
        m_info.kind = OutputLists::kindOfDevice(m_info.deviceName);

    // The format stays when the new device shows it too; else the project's, else the first.
    const QString previous = m_info.displayModeName;
    {
        const QSignalBlocker blocker(m_controls.format);
        OutputLists::fillFormats(m_controls.format, m_info.kind, m_info.deviceName);
        const ProjectPreset::VideoOutput v = QuillonEngine::projectPreset().videoOutput();
        if (!OutputLists::selectData(m_controls.format, previous))
            OutputLists::selectData(m_controls.format, DisplayMode(v.height, v.interlaced, v.frameRate).name());
    }
    formatChanged();

    const int keyer = m_info.keyer;
    {
        const QSignalBlocker blocker(m_controls.alpha);
        OutputLists::fillAlpha(m_controls.alpha, OutputLists::deviceKeys(m_info.deviceName));
        OutputLists::selectData(m_controls.alpha, keyer);
    }
    alphaChanged();
}

void OutputRow::formatChanged()
{
    m_info.displayModeName = m_controls.format->currentData().toString();
}

void OutputRow::videoSourceChanged()
{
    const QPair<int, int> layout = OutputLists::layoutOf(m_controls.videoSource);
    m_info.videoSourceType = layout.first;
    m_info.videoSourceIndex = layout.second;
}

void OutputRow::audioSourceChanged()
{
    const QPair<int, int> layout = OutputLists::layoutOf(m_controls.audioSource);
    m_info.audioSourceType = layout.first;
    m_info.audioSourceIndex = layout.second;
}

void OutputRow::alphaChanged()
{
    m_info.keyer = m_controls.alpha->currentData().toInt();
    m_info.colorFormat = defaultColorFormat(m_info.kind, m_info.keyer);
}

void OutputRow::audioDeviceChanged()
{
    m_info.audioDeviceName = m_controls.audioDevice->currentData().toString();
}

QString OutputRow::alternateName() const
{
    OutputInfo other = m_info;
    other.videoSourceType = m_info.videoSourceType == LayoutType::Multiview ? LayoutType::None : LayoutType::Multiview;
    return playoutName(other);
}

// A multiview entry is shared by the kinds' rows of one number: it is this row's when its
// device is one of this row's devices.
bool OutputRow::ownsEntry(const QJsonValue& entry) const
{
    const QString device = entry.toObject().value(QLatin1String("DeviceName")).toString();
    return !device.isEmpty() && device != QLatin1String("None") && m_controls.device->findData(device) >= 0;
}

QJsonObject OutputRow::storedPlayout(OutputInterface* host)
{
    const QJsonValue value = host ? host->settings().value(QLatin1String("PLAYOUT")) : QJsonValue();
    if (!value.isObject() && !value.isUndefined())
        qCWarning(lcOutput) << "PLAYOUT is not an object; the outputs keep their settings";
    return value.toObject();
}

void OutputRow::load(const QJsonObject& playout)
{
    QString key = name();
    if (m_usage == OutputLists::Playout) {
        OutputInfo plain;
        plain.kind = m_info.kind;
        plain.number = m_info.number;
        const QString kindKey = playoutName(plain);
        const QString multiviewKey = QString::fromLatin1(multiviewName).arg(m_info.number);
        key = playout.contains(kindKey) || !ownsEntry(playout.value(multiviewKey)) ? kindKey : multiviewKey;
    }
    if (!playout.contains(key))
        return;
    const QJsonValue value = playout.value(key);
    if (!value.isObject()) {
        qCWarning(lcOutput) << "PLAYOUT" << key << "is not an object; the row keeps its settings";
        return;
    }
    const QJsonObject entry = value.toObject();
    loadDevice(m_controls.device, entry.value(QLatin1String("DeviceName")));
    loadFormat(entry.value(QLatin1String("DisplayModeName")));

    const QJsonValue keyer = entry.value(QLatin1String("Keyer"));
    if (keyer.isDouble() && OutputLists::selectData(m_controls.alpha, keyer.toInt()))
        alphaChanged();
    // After the keyer, which sets the format its key needs: a stored format wins.
    const int color = NameTables::pixelFormats().indexOf(entry.value(QLatin1String("ColorFormat")).toString());
    if (color >= 0)
        m_info.colorFormat = color;
    else if (entry.contains(QLatin1String("ColorFormat")))
        qCWarning(lcOutput) << key << "has an unknown colour format; it keeps" << NameTables::pixelFormats().value(m_info.colorFormat);

    const char* videoKey = m_usage == OutputLists::External ? "TextureSource" : "VideoSource";
    loadSource(m_controls.videoSource, entry.value(QLatin1String(videoKey)), true);
    loadSource(m_controls.audioSource, entry.value(QLatin1String("AudioSource")), false);
    if (m_controls.audioDevice)
        loadDevice(m_controls.audioDevice, entry.value(QLatin1String("AudioDeviceName")));
}

void OutputRow::loadDevice(QComboBox* list, const QJsonValue& value)
{
    if (!value.isString())
        return;
    QString name = value.toString();
    if (name == QLatin1String("None"))
        name.clear();
    if (list->findData(name) < 0) {
        qCWarning(lcOutput) << "device" << name << "is not connected; it stays chosen";
        OutputLists::addMissing(list, name);
    }
    setCurrent(list, list->findData(name));
    if (list == m_controls.device)
        deviceChanged();
    else
        audioDeviceChanged();
}

void OutputRow::loadFormat(const QJsonValue& value)
{
    const QString mode = value.toString();
    if (mode.isEmpty())
        return;
    int index = m_controls.format->findData(mode);
    // A device that is gone keeps the format it had; a device here offers what it can do.
    if (index < 0 && m_controls.device->currentData(OutputLists::MissingRole).toBool()) {
        m_controls.format->addItem(mode, mode);
        index = m_controls.format->count() - 1;
    }
    if (index < 0) {
        qCWarning(lcOutput) << m_info.deviceName << "does not offer" << mode << "; the format stays" << m_info.displayModeName;
        return;
    }
    setCurrent(m_controls.format, index);
    formatChanged();
}

void OutputRow::loadSource(QComboBox* list, const QJsonValue& value, bool video)
{
    const QString text = value.toString();
    if (text.isEmpty())
        return; // an empty source leaves the choice as it is
    const QSignalBlocker blocker(list);
    const int type = layoutTypeFromString(text);
    if (type < 0 || !OutputLists::selectLayout(list, type, layoutIndexFromString(text))) {
        qCWarning(lcOutput) << "source" << text << "is not offered; the row keeps its source";
        return;
    }
    if (video)
        videoSourceChanged();
    else
        audioSourceChanged();
}

void OutputRow::store(QJsonObject* playout) const
{
    QJsonObject entry{
        {QStringLiteral("DeviceName"), storedDevice(m_info.deviceName)},
        {QStringLiteral("DisplayModeName"), m_info.displayModeName},
        {QStringLiteral("ColorFormat"), NameTables::pixelFormats().value(m_info.colorFormat)},
        {QStringLiteral("Keyer"), m_info.keyer},
        {QStringLiteral("AudioSource"), DisplayLayoutName(m_info.audioSourceType, m_info.audioSourceIndex, true, true, false)},
    };
    const QString video = DisplayLayoutName(m_info.videoSourceType, m_info.videoSourceIndex, true, true, false);
    if (m_usage == OutputLists::External) {
        entry.insert(QStringLiteral("TextureSource"), video);
    } else {
        entry.insert(QStringLiteral("VideoSource"), video);
        entry.insert(QStringLiteral("AudioDeviceName"), storedDevice(m_info.audioDeviceName));
        const QString other = alternateName();
        if (other != name() && playout->contains(other)
            && (m_info.videoSourceType == LayoutType::Multiview || ownsEntry(playout->value(other))))
            playout->remove(other);
    }
    playout->insert(name(), entry);
}

void OutputRow::setRunning(bool running)
{
    for (QComboBox* list : {m_controls.device, m_controls.format, m_controls.videoSource, m_controls.audioSource,
                            m_controls.alpha, m_controls.audioDevice})
        if (list)
            list->setEnabled(!running);
}
