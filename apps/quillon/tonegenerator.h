#pragma once

#include <QAudioFormat>
#include <QIODevice>

// The programme's tone as an endless stream of 16-bit PCM samples, the same sine on every
// channel at the engine's level (an eighth of full scale).
class ToneGenerator : public QIODevice
{
    Q_OBJECT
public:
    ToneGenerator(const QAudioFormat& format, int frequency, QObject* parent = nullptr);

    // Only signed 16-bit little-endian PCM is generated.
    static bool canGenerate(const QAudioFormat& format);
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    QAudioFormat m_format;
    int m_frequency;
    qint64 m_frame = 0; // within one second, so the phase never loses precision
};
