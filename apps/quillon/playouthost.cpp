#include "quillon/playouthost.h"

#include "engine/quillonengine.h"
#include "engine/testpicture.h"
#include "output/displaylayout.h"
#include "quillon/activitylog.h"
#include "quillon/toneoutput.h"
#include "stores/outputinfo.h"

namespace {

const char externalPrefix[] = "EXTERNAL ";
const int multiviewTiles[] = {4, 6, 8, 9, 10, 12, 13, 16};

QString layoutName(int type, int index)
{
    return DisplayLayoutName(type, index, true, true, false);
}

// The picture a source shows on a display, labelled as the engine labels its pictures.
ProgrammePicture pictureOf(const OutputInfo& output)
{
    const int type = output.videoSourceType;
    const int index = output.videoSourceIndex;
    switch (type) {
    case LayoutType::None:
        return ProgrammePicture(ProgrammePicture::Black, QString());
    case LayoutType::Program:
        return ProgrammePicture(ProgrammePicture::Bars, QStringLiteral("PGM"));
    case LayoutType::CleanProgram:
        return ProgrammePicture(ProgrammePicture::Bars, QString());
    case LayoutType::Preview:
        return ProgrammePicture(ProgrammePicture::PreviewBars, QStringLiteral("PVW"));
    case LayoutType::Multiview:
        return ProgrammePicture(ProgrammePicture::Multiview, layoutName(type, index),
                                index >= 0 && index < int(std::size(multiviewTiles)) ? multiviewTiles[index] : 4);
    default:
        return ProgrammePicture(ProgrammePicture::Bars, layoutName(type, index));
    }
}

// "48 kHz Stereo" is 48000 Hz; anything else is the project's rate.
int sampleRateOf(const QString& format)
{
    const double kHz = format.section(QLatin1Char(' '), 0, 0).toDouble();
    return kHz > 0 ? qRound(kHz * 1000) : QuillonEngine::projectPreset().audioOutput().sampleRate;
}

} // namespace

PlayoutHost::PlayoutHost(ActivityLog* log, QObject* parent) : QObject(parent), m_log(log)
{
    // The audio outputs offered are the ones this machine has.
    QuillonEngine::setAudioDevices(ToneOutput::deviceNames());
}

PlayoutHost::~PlayoutHost() = default;

QString PlayoutHost::playoutKey(const OutputInfo& output)
{
    static const char* const kinds[] = {"SDI", "NDI", "DISPLAY", "AUDIO", "VIRTUAL CAM"};
    for (int bit = 0; bit < int(std::size(kinds)); ++bit)
        if (output.kind & (1 << bit))
            return QStringLiteral("%1 %2").arg(QLatin1String(kinds[bit])).arg(output.number);
    return QStringLiteral("OUTPUT %1").arg(output.number);
}

bool PlayoutHost::playout(OutputInfo* output, bool on)
{
    if (!output)
        return false;
    const QString key = playoutKey(*output);
    if (!on) {
        stop(key);
        return true;
    }
    return start(key, *output);
}

void PlayoutHost::applyExternal(const QList<OutputInfo>& outputs)
{
    for (const QString& key : m_lines.keys())
        if (key.startsWith(QLatin1String(externalPrefix)))
            stop(key);
    if (outputs.isEmpty()) {
        m_log->info(tr("No external output is configured."));
        return;
    }
    int started = 0;
    for (const OutputInfo& output : outputs)
        started += start(QLatin1String(externalPrefix) + QString::number(output.number), output) ? 1 : 0;
    m_log->info(tr("External outputs: %1 of %2 started.").arg(started).arg(outputs.size()));
}

bool PlayoutHost::startTone(const QString& key, const QString& device, const QString& format, int source,
                            QString* message)
{
    auto tone = std::make_unique<ToneOutput>();
    if (!tone->start(device, sampleRateOf(format), TestPicture::toneOf(source), message))
        return false;
    m_tones[key] = std::move(tone);
    return true;
}

bool PlayoutHost::start(const QString& key, const OutputInfo& output)
{
    stop(key);
    QString message;
    QString line;
    bool started = false;
    const QString audioSource = layoutName(output.audioSourceType, output.audioSourceIndex);
    if (output.kind & OutputInfo::Audio) {
        started = startTone(key, output.deviceName, output.displayModeName, output.audioSourceType, &message);
        line = tr("%1 - %2 %3 %4").arg(key, output.deviceName, output.displayModeName, audioSource);
    } else {
        const QString source = layoutName(output.videoSourceType, output.videoSourceIndex);
        started = m_devices.start({key, output.deviceName, output.displayModeName, source, pictureOf(output)}, &message);
        // A display's sound goes to the audio device chosen with it; without it, nothing starts.
        QString toneMessage;
        const bool sound = (output.kind & OutputInfo::Display) && !output.audioDeviceName.isEmpty();
        if (started && sound
            && !startTone(key, output.audioDeviceName, QString(), output.audioSourceType, &toneMessage)) {
            m_devices.stop(key);
            started = false;
            message = toneMessage;
        } else if (started && sound) {
            message += QLatin1Char(' ') + toneMessage;
        }
        line = tr("%1 - %2 %3 %4").arg(key, output.deviceName, output.displayModeName, source);
        if (m_devices.isStandIn(key))
            line += tr(" (stand-in)");
    }
    if (!started) {
        m_log->warning(tr("%1 does not start: %2").arg(key, message));
        return false;
    }
    m_log->info(tr("%1 started: %2").arg(key, message));
    m_lines.insert(key, line);
    emit changed();
    return true;
}

void PlayoutHost::stop(const QString& key)
{
    if (!m_lines.remove(key))
        return;
    m_devices.stop(key);
    m_tones.erase(key);
    m_log->info(tr("%1 stopped.").arg(key));
    emit changed();
}
