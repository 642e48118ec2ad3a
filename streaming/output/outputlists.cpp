#include "output/outputlists.h"

#include "capture/capturemanager.h"
#include "capture/displaymode.h"
#include "codec/codectables.h"
#include "engine/quillonengine.h"
#include "output/displaylayout.h"
#include "recording/sourcelists.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/outputinfo.h"

#include <QComboBox>

namespace {

using SourceMap = QMap<int, int>;

const int multiviewTiles[] = {4, 6, 8, 9, 10, 12, 13, 16};

void addSource(QComboBox* list, const QString& text, int type, int index = -1)
{
    list->addItem(text, QVariant::fromValue(SourceMap{{type, index}}));
}

QString layoutName(int type, int index = -1)
{
    return DisplayLayoutName(type, index, true, true, false);
}

QString deviceText(const VideoDevice& device)
{
    if (device.kind() == VideoDevice::Display) {
        const QSize size = device.displaySize();
        return OutputLists::tr("Display %1 (%2x%3)").arg(device.displayNumber()).arg(size.width()).arg(size.height());
    }
    if (device.kind() == VideoDevice::VirtualCamera)
        return OutputLists::tr("VirtualCam");
    if (!device.alias().isEmpty())
        return OutputLists::tr("(%1) %2").arg(device.alias(), device.name());
    return device.name();
}

// The cameras are the capture inputs, labelled with the device that feeds them.
void addCameras(QComboBox* list)
{
    int index = 0;
    for (const VideoDevice& device : CaptureManager::instance().videoDevices()) {
        if (!device.canCapture())
            continue;
        const QString label = device.alias().isEmpty() ? device.name() : device.alias();
        addSource(list, QStringLiteral("%1%2").arg(layoutName(LayoutType::Cam, index), OutputLists::tr(" - %1").arg(label)),
                  LayoutType::Cam, index);
        ++index;
    }
}

} // namespace

void OutputLists::fillDevices(QComboBox* list, int kinds)
{
    list->clear();
    list->addItem(tr("None"), QString());
    if (kinds & OutputInfo::Audio) {
        for (const QString& name : QuillonEngine::audioDevices())
            list->addItem(name, name);
    }
    for (const VideoDevice& device : CaptureManager::instance().outputDevices(kinds))
        list->addItem(deviceText(device), device.name());
}

void OutputLists::fillAudioDevices(QComboBox* list)
{
    fillDevices(list, OutputInfo::Audio);
}

void OutputLists::fillFormats(QComboBox* list, int kind, const QString& deviceName)
{
    list->clear();
    if (kind == OutputInfo::Audio) {
        if (deviceName.isEmpty())
            return;
        QList<int> rates{QuillonEngine::projectPreset().audioOutput().sampleRate, 48000, 44100};
        for (int i = 0; i < rates.size(); ++i) {
            if (rates.indexOf(rates.at(i)) != i)
                continue;
            const QString kHz = CodecManager::sampleRateTokHz(rates.at(i));
            list->addItem(tr("%1 kHz Stereo").arg(kHz), QStringLiteral("%1 kHz Stereo").arg(kHz));
        }
        return;
    }
    const LicenseModel& license = CodecTables::licenseModel();
    for (const QString& name : CaptureManager::instance().displayModes(deviceName)) {
        const DisplayMode mode = DisplayMode::fromName(name);
        if (!mode.isValid() || mode.fitsWithin(license.maxWidth(), license.maxHeight()))
            list->addItem(name, name);
    }
}

void OutputLists::fillAlpha(QComboBox* list, bool keying)
{
    list->clear();
    list->addItem(tr("Disable"), 0);
    if (keying) {
        list->addItem(tr("InternalKeyer"), 1);
        list->addItem(tr("ExternalKeyer"), 2);
    } else {
        list->addItem(tr("Enable"), 1);
    }
}

void OutputLists::addEnabledBuses(QComboBox* list)
{
    if (!CodecTables::licenseModel().audioBusEnabled())
        return;
    const ProjectPreset::Processing processing = QuillonEngine::projectPreset().processing();
    SourceLists::addBuses(list, processing.busAEnabled, processing.busBEnabled);
}

void OutputLists::fillVideoSources(QComboBox* list, Usage usage)
{
    list->clear();
    if (usage == Playout)
        addSource(list, tr("NONE"), LayoutType::None);
    addSource(list, layoutName(LayoutType::Program), LayoutType::Program);
    addSource(list, tr("PGM(Clean)"), LayoutType::CleanProgram);
    addSource(list, layoutName(LayoutType::DelayProgram), LayoutType::DelayProgram);
    addSource(list, layoutName(LayoutType::Preview), LayoutType::Preview);
    if (usage == Playout) {
        addEnabledBuses(list);
        addCameras(list);
        for (int i = 0; i < 2; ++i)
            addSource(list, layoutName(LayoutType::Clip, i), LayoutType::Clip, i);
    } else {
        addSource(list, layoutName(LayoutType::Multiview), LayoutType::Multiview);
    }
    for (int i = 0; i < int(std::size(multiviewTiles)); ++i)
        addSource(list, tr("Multiview %1").arg(multiviewTiles[i]), LayoutType::Multiview, i);
    if (usage == External) {
        for (int type : {LayoutType::Switcher, LayoutType::System, LayoutType::AudioMixer, LayoutType::VideoHub})
            addSource(list, layoutName(type), type);
    }
}

void OutputLists::fillAudioSources(QComboBox* list)
{
    list->clear();
    addSource(list, tr("NONE"), LayoutType::None);
    addSource(list, layoutName(LayoutType::Program), LayoutType::Program);
    addSource(list, tr("PGM Clean"), LayoutType::CleanProgram);
    addSource(list, tr("PGM Delay"), LayoutType::DelayProgram);
    addEnabledBuses(list);
    addCameras(list);
}

bool OutputLists::selectData(QComboBox* list, const QVariant& value)
{
    const int index = list->findData(value);
    if (index >= 0)
        list->setCurrentIndex(index);
    return index >= 0;
}

void OutputLists::addMissing(QComboBox* list, const QString& name)
{
    list->addItem(tr("%1 (not found)").arg(name), name);
    list->setItemData(list->count() - 1, true, MissingRole);
}

bool OutputLists::selectLayout(QComboBox* list, int type, int index)
{
    const SourceMap wanted{{type, index}};
    for (int i = 0; i < list->count(); ++i) {
        if (list->itemData(i).value<SourceMap>() == wanted) {
            list->setCurrentIndex(i);
            return true;
        }
    }
    return false;
}

QPair<int, int> OutputLists::layoutOf(const QComboBox* list)
{
    const SourceMap map = list->currentData().value<SourceMap>();
    if (map.isEmpty())
        return {LayoutType::None, -1};
    return {map.firstKey(), map.first()};
}

int OutputLists::kindOfDevice(const QString& deviceName)
{
    if (deviceName.isEmpty())
        return 0;
    const VideoDevice device = CaptureManager::instance().videoDevice(deviceName);
    return device.isValid() ? int(device.kind()) : 0;
}

bool OutputLists::deviceKeys(const QString& deviceName)
{
    return CaptureManager::instance().videoDevice(deviceName).supportsKeying();
}
