#pragma once

#include "codecmanager.h"
#include "codecpreset.h"
#include "memoryoutputinterface.h"
#include "streamingsetup.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QJsonArray>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

// The streaming dialog as an operator sees it: controls found by object name,
// services picked from the list, text typed, buttons clicked.
class StreamingSetupForm
{
public:
    explicit StreamingSetupForm(StreamingSetup& dialog)
        : dialog(dialog)
    {
    }

    template <class T>
    T* get(const char* name) const
    {
        T* child = dialog.findChild<T*>(QLatin1String(name));
        if (!child)
            qWarning("StreamingSetupForm: no %s", name);
        return child;
    }
    QComboBox* combo(const char* name) const { return get<QComboBox>(name); }
    QLineEdit* edit(const char* name) const { return get<QLineEdit>(name); }
    QAbstractButton* button(const char* name) const { return get<QAbstractButton>(name); }
    QWidget* widget(const char* name) const { return get<QWidget>(name); }
    QListWidget* rows() const { return get<QListWidget>("encoderList"); }
    // Shown as far as the dialog is concerned (the dialog itself may be hidden).
    bool shown(const char* name) const { return !widget(name)->isHidden(); }

    // Picks an entry of a list the way a click in its popup does.
    bool pick(const char* list, const QString& text) const
    {
        QComboBox* box = combo(list);
        const int index = box->findText(text);
        if (index < 0)
            return false;
        box->setCurrentIndex(index);
        return true;
    }
    bool pickService(const QString& name) const { return pick("providerSelect", name); }

    void type(const char* name, const QString& text) const
    {
        QLineEdit* line = edit(name);
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }

    void add() const { button("addPreset")->click(); }

    QStringList items(const char* list) const
    {
        QStringList texts;
        const QComboBox* box = combo(list);
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
        return texts;
    }

    StreamingSetup& dialog;
};

// A codec preset the streaming codec list offers: H.264 1080p with AAC.
inline CodecPreset streamingCodecPreset(int bitRate = 6000)
{
    CodecPreset preset;
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = QStringLiteral("H.264");
    v.width = 1920;
    v.height = 1080;
    v.frameRate = 30;
    v.keyFrame = 2;
    v.bitRate = bitRate;
    v.preset = QStringLiteral("veryfast");
    CodecModel::AudioCodec& a = preset.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = 160;
    a.bitPerSamples = 16;
    return preset;
}

// The stored "STREAMING" array of a host.
inline QJsonArray storedStreams(MemoryOutputInterface& host)
{
    return host.settings().value(QStringLiteral("STREAMING")).toArray();
}
