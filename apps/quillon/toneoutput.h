#pragma once

#include <QAudioFormat>
#include <QCoreApplication>
#include <QObject>
#include <QStringList>

#include <memory>

class QAudioOutput;
class ToneGenerator;

// Plays the programme's tone on one of the machine's audio devices.
class ToneOutput : public QObject
{
    Q_OBJECT
public:
    // The system's default device, under a name that stays the same on every machine.
    static const QString defaultDeviceName;
    // The default device first, then each output device the machine has.
    static QStringList deviceNames();
    // Stereo signed 16-bit PCM, what the tone is played as.
    static QAudioFormat pcmFormat(int sampleRate);

    explicit ToneOutput(QObject* parent = nullptr);
    ~ToneOutput() override;

    // False with *message when the device is not there or cannot play the format.
    bool start(const QString& deviceName, int sampleRate, int frequency, QString* message);
    void stop();
    bool isRunning() const { return m_output != nullptr; }

private:
    std::unique_ptr<ToneGenerator> m_generator;
    std::unique_ptr<QAudioOutput> m_output;
};
