#include "quillon/toneoutput.h"

#include "quillon/tonegenerator.h"

#include <QAudioDeviceInfo>
#include <QAudioOutput>

const QString ToneOutput::defaultDeviceName = QStringLiteral("Default Output");

QStringList ToneOutput::deviceNames()
{
    QStringList names{defaultDeviceName};
    for (const QAudioDeviceInfo& device : QAudioDeviceInfo::availableDevices(QAudio::AudioOutput))
        if (!device.isNull() && !device.deviceName().isEmpty() && !names.contains(device.deviceName()))
            names.append(device.deviceName());
    return names;
}

QAudioFormat ToneOutput::pcmFormat(int sampleRate)
{
    QAudioFormat format;
    format.setSampleRate(sampleRate);
    format.setChannelCount(2);
    format.setSampleSize(16);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setSampleType(QAudioFormat::SignedInt);
    format.setByteOrder(QAudioFormat::LittleEndian);
    return format;
}

ToneOutput::ToneOutput(QObject* parent) : QObject(parent)
{
}

ToneOutput::~ToneOutput()
{
    stop();
}

bool ToneOutput::start(const QString& deviceName, int sampleRate, int frequency, QString* message)
{
    stop();
    QAudioDeviceInfo device;
    if (deviceName == defaultDeviceName) {
        device = QAudioDeviceInfo::defaultOutputDevice();
    } else {
        for (const QAudioDeviceInfo& candidate : QAudioDeviceInfo::availableDevices(QAudio::AudioOutput))
            if (candidate.deviceName() == deviceName)
                device = candidate;
    }
    if (device.isNull() || device.deviceName().isEmpty()) {
        *message = deviceName == defaultDeviceName ? tr("This machine has no audio output device.")
                                                   : tr("The audio device \"%1\" is not connected.").arg(deviceName);
        return false;
    }
    const QAudioFormat format = pcmFormat(sampleRate);
    if (!device.isFormatSupported(format) || !ToneGenerator::canGenerate(format)) {
        *message = tr("The audio device \"%1\" cannot play %2 Hz stereo.").arg(deviceName).arg(sampleRate);
        return false;
    }
    m_generator = std::make_unique<ToneGenerator>(format, frequency);
    m_generator->open(QIODevice::ReadOnly);
    m_output = std::make_unique<QAudioOutput>(device, format);
    m_output->start(m_generator.get());
    if (m_output->error() != QAudio::NoError) {
        stop();
        *message = tr("The audio device \"%1\" could not be opened.").arg(deviceName);
        return false;
    }
    *message = tr("The audio device \"%1\" plays a %2 Hz tone at %3 Hz.").arg(deviceName).arg(frequency).arg(sampleRate);
    return true;
}

void ToneOutput::stop()
{
    if (m_output)
        m_output->stop();
    m_output.reset();
    m_generator.reset();
}
