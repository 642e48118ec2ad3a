#pragma once

#include "host_export.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class CodecPreset;
struct OutputInfo;

// What every setup dialog asks of the host. Not owned by the dialogs.
class HOST_EXPORT OutputInterface
{
public:
    virtual ~OutputInterface();

    virtual QJsonObject settings() = 0;
    virtual void setSettings(const QString& key, const QJsonArray& array) = 0;
    virtual void setSettingsObject(const QString& key, const QJsonObject& object) = 0;
    // kind 0 streaming, 1 recording
    virtual void encodingChanged(int kind, CodecPreset* preset, bool on) = 0;
    virtual void playoutClosed(bool accepted) = 0;
    virtual bool playout(OutputInfo* output, bool on) = 0;
};
