#include "interface/memoryoutputinterface.h"

MemoryOutputInterface::MemoryOutputInterface(const QJsonObject& settings, QObject* parent)
    : QObject(parent), m_settings(settings)
{
}

QJsonObject MemoryOutputInterface::settings()
{
    return m_settings;
}

void MemoryOutputInterface::setSettings(const QString& key, const QJsonArray& array)
{
    m_settings.insert(key, array);
    settingsStored(key);
}

void MemoryOutputInterface::setSettingsObject(const QString& key, const QJsonObject& object)
{
    m_settings.insert(key, object);
    settingsStored(key);
}

void MemoryOutputInterface::encodingChanged(int kind, CodecPreset* preset, bool on)
{
    EncodingEvent event;
    event.kind = kind;
    if (preset)
        event.preset = *preset;
    event.on = on;
    m_encodingEvents.append(event);
    emit encodingChangedNotified(kind, event.preset, on);
}

void MemoryOutputInterface::playoutClosed(bool accepted)
{
    m_playoutClosed.append(accepted);
}

bool MemoryOutputInterface::playout(OutputInfo* output, bool on)
{
    ++m_playoutCalls;
    emit playoutRequested(on);
    return m_playoutHandler ? m_playoutHandler(output, on) : m_playoutResult;
}

void MemoryOutputInterface::replaceSettings(const QJsonObject& settings)
{
    m_settings = settings;
}

void MemoryOutputInterface::clearEvents()
{
    m_encodingEvents.clear();
    m_playoutClosed.clear();
    m_playoutCalls = 0;
}

void MemoryOutputInterface::settingsStored(const QString& key)
{
    emit settingsChanged(key);
}
