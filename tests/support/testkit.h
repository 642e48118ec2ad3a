#pragma once

#include "records/codecpreset.h"
#include "widgets/messagebox.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

// Small helpers the store, codec and recording tests share.
namespace TestKit {

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

// Every entry of a directory, hidden ones included, by name.
inline QStringList entries(const QString& dir)
{
    return QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

inline QStringList comboTexts(const QComboBox* box)
{
    QStringList result;
    for (int i = 0; box && i < box->count(); ++i)
        result.append(box->itemText(i));
    return result;
}

// Picks the row with that text as an operator would; false when there is none.
inline bool choose(QComboBox* box, const QString& text)
{
    const int index = box ? box->findText(text) : -1;
    if (index >= 0)
        box->setCurrentIndex(index);
    return index >= 0;
}

template <typename T>
T* control(const QObject* parent, const char* name)
{
    T* found = parent ? parent->findChild<T*>(QLatin1String(name)) : nullptr;
    if (!found)
        qWarning("no control %s", name);
    return found;
}

// A 16:9 preset with AAC stereo audio at 48 kHz, 128 kbps, 16 bits.
inline CodecPreset preset(const QString& codec, int height, int bitRate, double frameRate = 29.97)
{
    CodecPreset p;
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = height * 16 / 9;
    v.height = height;
    v.frameRate = frameRate;
    v.keyFrame = 2;
    v.bitRate = bitRate;
    CodecModel::AudioCodec& a = p.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = 128;
    a.bitPerSamples = 16;
    return p;
}

// QSettings of their own for the test, and message boxes answered from the script.
inline void initDialogTest(const char* name)
{
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-tests"));
    QCoreApplication::setApplicationName(QLatin1String(name));
    QStandardPaths::setTestModeEnabled(true);
    MessageBox::setScripted(true);
}

} // namespace TestKit
