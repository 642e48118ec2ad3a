#pragma once

#include "interface/memoryoutputinterface.h"
#include "records/codecpreset.h"
#include "setup/streamingsetup.h"
#include "stores/codecmanager.h"
#include "support/httpserver.h"
#include "support/serviceenvironment.h"
#include "support/tempstores.h"
#include "support/testkit.h"
#include "widgets/messagebox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QTest>

#include <memory>

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

// What a streaming dialog test keeps around the dialog: the services pointed at a local
// server, fresh stores holding streamingCodecPreset(), a host in memory. A test class
// derives from it (after QObject) and calls the steps from its own slots.
class StreamingSetupFixture
{
protected:
    void startFixture(const char* testName)
    {
        TestKit::initDialogTest(testName);
        ServiceEnvironment::pointAt(m_service.baseUrl());
    }

    // False when the stores could not be made.
    bool resetFixture()
    {
        QSettings().clear();
        MessageBox::clear();
        m_stores = std::make_unique<TempStores>();
        m_host = std::make_unique<MemoryOutputInterface>();
        return m_stores->isValid() && m_stores->codecManager().write(streamingCodecPreset());
    }

    // Drops the dialog and the stores; returns the first window still shown, empty when none.
    QString dropFixture()
    {
        m_form.reset();
        m_dialog.reset();
        m_host.reset();
        m_stores.reset();
        m_service.clearRequests();
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible())
                return widget->objectName().isEmpty() ? QStringLiteral("(unnamed)") : widget->objectName();
        return QString();
    }

    void stopFixture()
    {
        ServiceEnvironment::reset();
        QSettings().clear();
    }

    StreamingSetup& open()
    {
        m_dialog = std::make_unique<StreamingSetup>(nullptr, m_host.get());
        m_dialog->reloadPresets();
        m_dialog->show();
        m_form = std::make_unique<StreamingSetupForm>(*m_dialog);
        return *m_dialog;
    }

    HttpServer m_service;
    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<StreamingSetup> m_dialog;
    std::unique_ptr<StreamingSetupForm> m_form;
};
