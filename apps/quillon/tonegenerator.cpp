#include "quillon/tonegenerator.h"

#include <QtEndian>
#include <QtMath>

ToneGenerator::ToneGenerator(const QAudioFormat& format, int frequency, QObject* parent)
    : QIODevice(parent), m_format(format), m_frequency(frequency)
{
}

bool ToneGenerator::canGenerate(const QAudioFormat& format)
{
    return format.isValid() && format.sampleSize() == 16 && format.sampleType() == QAudioFormat::SignedInt
        && format.byteOrder() == QAudioFormat::LittleEndian && format.channelCount() > 0 && format.sampleRate() > 0;
}

qint64 ToneGenerator::bytesAvailable() const
{
    // Endless: a tenth of a second is always ready.
    return qint64(m_format.sampleRate() / 10) * m_format.channelCount() * 2 + QIODevice::bytesAvailable();
}

qint64 ToneGenerator::readData(char* data, qint64 maxSize)
{
    if (!canGenerate(m_format))
        return -1;
    const int channels = m_format.channelCount();
    const int rate = m_format.sampleRate();
    const qint64 frames = maxSize / (channels * 2);
    auto* out = reinterpret_cast<uchar*>(data);
    for (qint64 i = 0; i < frames; ++i) {
        const double phase = 2.0 * M_PI * m_frequency * double(m_frame) / rate;
        const qint16 value = qint16(qRound(qSin(phase) * 32767.0 / 8.0));
        for (int c = 0; c < channels; ++c, out += 2)
            qToLittleEndian<qint16>(value, out);
        m_frame = (m_frame + 1) % rate;
    }
    return frames * channels * 2;
}

qint64 ToneGenerator::writeData(const char*, qint64)
{
    return -1;
}
