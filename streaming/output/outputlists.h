#pragma once

#include <QCoreApplication>
#include <QPair>
#include <QString>
#include <QVariant>

class QComboBox;

// The choices of an output row. Device, format and audio device items carry the name the
// setup object stores ("" for "None"); source items carry their source map (type to index).
class OutputLists
{
    Q_DECLARE_TR_FUNCTIONS(OutputLists)

public:
    enum Usage { Playout, External };
    // Item data role marking a device that is stored but not connected.
    static constexpr int MissingRole = Qt::UserRole + 1;

    // "None", then the output devices of the kinds (a bit set of output kinds); the audio kind
    // lists the engine's audio devices.
    static void fillDevices(QComboBox* list, int kinds);
    static void fillAudioDevices(QComboBox* list);
    // What the device outputs within the licence; the audio kind lists audio formats.
    static void fillFormats(QComboBox* list, int kind, const QString& deviceName);
    static void fillAlpha(QComboBox* list, bool keying);
    static void fillVideoSources(QComboBox* list, Usage usage);
    static void fillAudioSources(QComboBox* list);

    // The item whose data equals value becomes current; false (selection kept) when none does.
    static bool selectData(QComboBox* list, const QVariant& value);
    // A stored device this machine does not show now: listed as missing, so it is kept.
    static void addMissing(QComboBox* list, const QString& name);
    // The item whose source map is exactly {type: index}; false (selection kept) when none is.
    static bool selectLayout(QComboBox* list, int type, int index);
    // First entry (smallest type) of the current item's source map; {0, -1} when it has none.
    static QPair<int, int> layoutOf(const QComboBox* list);
    // The output kind of a device name ("" and unknown names give 0).
    static int kindOfDevice(const QString& deviceName);
    static bool deviceKeys(const QString& deviceName);

private:
    // "BUS A" ... "PGM+A+B" where the licence and the project enable the buses.
    static void addEnabledBuses(QComboBox* list);
};
