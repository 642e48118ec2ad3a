#pragma once

#include "output/outputlists.h"
#include "stores/outputinfo.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLoggingCategory>

class OutputInterface;
class QComboBox;

Q_DECLARE_LOGGING_CATEGORY(lcOutput)

// What a playout row and an external output row share: the lists, the OutputInfo they fill,
// and the row's entry under "PLAYOUT". The row widgets forward their list slots here.
class OutputRow
{
    Q_DECLARE_TR_FUNCTIONS(OutputRow)

public:
    struct Controls {
        QComboBox* device = nullptr;
        QComboBox* format = nullptr;
        QComboBox* videoSource = nullptr;
        QComboBox* audioSource = nullptr;
        QComboBox* alpha = nullptr;
        QComboBox* audioDevice = nullptr; // playout rows only
    };

    // A playout row has one kind; an external row (kind 0) takes the kind of its device.
    OutputRow(OutputLists::Usage usage, int kind, int number, const Controls& controls);

    const OutputInfo& info() const { return m_info; }
    OutputInfo* infoPtr() { return &m_info; }
    // The key of the row's entry under "PLAYOUT".
    QString name() const;
    // "SDI %1" ... "VIRTUAL CAM %1" by the first kind bit, "MULTIVIEW %1" for a multiview that
    // is not on a display; translated for the operator's eyes, as stored otherwise.
    static QString playoutName(const OutputInfo& info, bool translated = false);
    // Device, kind and format are all set.
    bool isConfigured() const;

    void deviceChanged();
    void formatChanged();
    void videoSourceChanged();
    void audioSourceChanged();
    void alphaChanged();
    void audioDeviceChanged();

    // The host's "PLAYOUT" object; anything else there reads as empty (and is logged).
    static QJsonObject storedPlayout(OutputInterface* host);

    // Reads the row's entry from the "PLAYOUT" object; what is missing or unusable keeps its value.
    void load(const QJsonObject& playout);
    // Writes the row's entry, and drops the row's entry under its other name.
    void store(QJsonObject* playout) const;
    void setRunning(bool running);

private:
    QString alternateName() const;
    bool ownsEntry(const QJsonValue& entry) const;
    void loadDevice(QComboBox* list, const QJsonValue& value);
    void loadFormat(const QJsonValue& value);
    void loadSource(QComboBox* list, const QJsonValue& value, bool video);

    OutputLists::Usage m_usage;
    Controls m_controls;
    OutputInfo m_info;
};
