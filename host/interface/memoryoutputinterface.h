#pragma once

#include "interface/outputinterface.h"
#include "records/codecpreset.h"

#include <QList>
#include <QObject>

#include <functional>

// Keeps the setup object in memory and records what the dialogs told the host.
class HOST_EXPORT MemoryOutputInterface : public QObject, public OutputInterface
{
    Q_OBJECT
public:
    struct EncodingEvent {
        int kind = 0;
        CodecPreset preset;
        bool on = false;
    };

    explicit MemoryOutputInterface(const QJsonObject& settings = QJsonObject(), QObject* parent = nullptr);

    QJsonObject settings() override;
    void setSettings(const QString& key, const QJsonArray& array) override;
    void setSettingsObject(const QString& key, const QJsonObject& object) override;
    void encodingChanged(int kind, CodecPreset* preset, bool on) override;
    void playoutClosed(bool accepted) override;
    bool playout(OutputInfo* output, bool on) override;

    void replaceSettings(const QJsonObject& settings);
    const QList<EncodingEvent>& encodingEvents() const { return m_encodingEvents; }
    const QList<bool>& playoutClosedEvents() const { return m_playoutClosed; }
    int playoutCalls() const { return m_playoutCalls; }
    // What playout() answers; true unless a test wants a refusal.
    void setPlayoutResult(bool result) { m_playoutResult = result; }
    // A host that drives outputs answers playout() itself; empty returns to the fixed answer.
    using PlayoutHandler = std::function<bool(OutputInfo* output, bool on)>;
    void setPlayoutHandler(PlayoutHandler handler) { m_playoutHandler = std::move(handler); }
    void clearEvents();

signals:
    void settingsChanged(const QString& key);
    void encodingChangedNotified(int kind, const CodecPreset& preset, bool on);
    void playoutRequested(bool on);

protected:
    // Called after every change of the setup object.
    virtual void settingsStored(const QString& key);

private:
    QJsonObject m_settings;
    QList<EncodingEvent> m_encodingEvents;
    QList<bool> m_playoutClosed;
    int m_playoutCalls = 0;
    bool m_playoutResult = true;
    PlayoutHandler m_playoutHandler;
};
