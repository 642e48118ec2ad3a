#include "recording/isocordersetup.h"

#include "ui_isocordersetup.h"

#include "codec/codectables.h"
#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "recording/containermasks.h"
#include "recording/isocodeclists.h"
#include "recording/isocorderjson.h"
#include "recording/isosourceitem.h"
#include "recording/sourcelists.h"
#include "records/licensemodel.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/folderchooser.h"
#include "stores/privatesettings.h"
#include "widgets/messagebox.h"

#include <QJsonArray>
#include <QLoggingCategory>
#include <QSettings>

Q_LOGGING_CATEGORY(lcIso, "streaming.isocorder")

namespace {

using SourceMap = QMap<int, int>;

const char settingsKey[] = "ISOCORDER";
const char fileTagKey[] = "ql.isocoder.filetag";

IsoSourceItem* rowWidget(const QListWidget* list, QListWidgetItem* item)
{
    return qobject_cast<IsoSourceItem*>(list->itemWidget(item));
}

void selectData(QComboBox* list, const QVariant& data)
{
    const int index = list->findData(data);
    if (index >= 0)
        list->setCurrentIndex(index);
}

void selectText(QComboBox* list, const QString& text)
{
    const int index = list->findText(text);
    if (index >= 0)
        list->setCurrentIndex(index);
}

} // namespace

IsoCorderSetup::IsoCorderSetup(QWidget* parent, OutputInterface* host)
    : QDialog(parent), ui(new Ui::IsoCorderSetup), host(host)
{
    ui->setupUi(this);
    const QString tag = QSettings().value(QLatin1String(fileTagKey)).toString();
    if (!tag.isEmpty())
        ui->fileTag->setText(tag);
    ui->folder->setText(FileTag::defaultFolder());
    initializeUi();
    m_defaults = codecPreset();
}

IsoCorderSetup::~IsoCorderSetup()
{
    delete ui;
}

void IsoCorderSetup::initializeUi()
{
    const LicenseModel& license = CodecTables::licenseModel();
    m_videoMask = license.availableVideoMask();
    m_audioMask = license.availableAudioMask();
    const QMap<int, QString>& containers = license.containers();
    for (auto it = containers.cbegin(); it != containers.cend(); ++it)
        ui->containerList->addItem(it.value().toUpper(), it.key());

    SourceLists::fillSplitTimes(ui->splitTimeList);
    SourceLists::addProgramme(ui->audioSourceList);
    if (license.audioBusEnabled()) {
        const ProjectPreset::Processing processing = QuillonEngine::projectPreset().processing();
        SourceLists::addBuses(ui->audioSourceList, processing.busAEnabled, processing.busBEnabled);
    }
    IsoCodecLists::fillKeyFrames(ui->keyFrameList);
    IsoCodecLists::fillNvencPresets(ui->nvencPreset);
    IsoCodecLists::fillAmfPresets(ui->amfPreset);
    IsoCodecLists::fillX264Presets(ui->x264Preset);
    for (QComboBox* profiles : {ui->x264Profile, ui->nvencProfile, ui->amfProfile})
        IsoCodecLists::fillProfiles(profiles, IsoCodecLists::profiles());
    IsoCodecLists::fillX264Tunes(ui->x264Tune);
    IsoCodecLists::fillNvencBframes(ui->nvencBframes);
    IsoCodecLists::fillChannels(ui->channelList);
    IsoCodecLists::fillSampleRates(ui->sampleRateList);
    IsoCodecLists::fillAudioBitrates(ui->audioBitrateList);
    ui->maxIsoRecording->setText(tr("Max ISO Recording: %1").arg(license.maxIsoRecording()));

    connect(ui->containerList, qOverload<int>(&QComboBox::currentIndexChanged), this, &IsoCorderSetup::containerChange);
    connect(ui->browse, &QToolButton::clicked, this, &IsoCorderSetup::existingDirectory);
    connect(ui->namingEdit, &QToolButton::clicked, this, &IsoCorderSetup::showNamingEdit);
    connect(ui->videoCodecList, qOverload<int>(&QComboBox::currentIndexChanged), this, &IsoCorderSetup::codecChange);
    connect(ui->audioCodecList, qOverload<int>(&QComboBox::currentIndexChanged), this, &IsoCorderSetup::codecChange);
    connect(ui->presetList, &QListWidget::itemSelectionChanged, this, &IsoCorderSetup::itemSelectionChange);
    connect(ui->splitFile, &QCheckBox::toggled, ui->splitTimeList, &QWidget::setEnabled);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &IsoCorderSetup::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &IsoCorderSetup::reject);
    containerChange();
}

int IsoCorderSetup::exec()
{
    loadSetting();
    return QDialog::exec();
}

void IsoCorderSetup::accept()
{
    saveSetting();
    QDialog::accept();
}

void IsoCorderSetup::reject()
{
    loadSetting();
    QDialog::reject();
}

void IsoCorderSetup::reloadPresets()
{
}

void IsoCorderSetup::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
}

void IsoCorderSetup::setSources(const QList<Source>& sources)
{
    const QSignalBlocker blocker(ui->presetList);
    ui->presetList->clear();
    for (const Source& source : sources) {
        auto* item = new QListWidgetItem(ui->presetList);
        auto* row = new IsoSourceItem;
        row->setSource(source.first, source.second);
        item->setSizeHint(row->size());
        ui->presetList->setItemWidget(item, row);
    }
}

QList<IsoCorderSetup::Source> IsoCorderSetup::sources() const
{
    QList<Source> list;
    for (QListWidgetItem* item : ui->presetList->selectedItems())
        if (const IsoSourceItem* row = rowWidget(ui->presetList, item))
            list.append({row->sourceName(), row->media()});
    return list;
}

bool IsoCorderSetup::validCheck() const
{
    return !ui->presetList->selectedItems().isEmpty();
}

void IsoCorderSetup::itemSelectionChange()
{
    const QList<QListWidgetItem*> selected = ui->presetList->selectedItems();
    if (selected.size() <= CodecTables::licenseModel().maxIsoRecording())
        return;
    MessageBox::warning(this, tr("Preset"), tr("Check the maximum number of isocorder."));
    selected.last()->setSelected(false);
}

void IsoCorderSetup::containerChange()
{
    const LicenseModel& license = CodecTables::licenseModel();
    ContainerMasks::forContainer(ui->containerList->currentData().toInt(), license.availableVideoMask(), &m_videoMask,
                                 &m_audioMask);
    {
        const QSignalBlocker videoBlocker(ui->videoCodecList);
        const QSignalBlocker audioBlocker(ui->audioCodecList);
        const QString video = ui->videoCodecList->currentText();
        const QString audio = ui->audioCodecList->currentText();
        ui->videoCodecList->clear();
        ui->audioCodecList->clear();
        for (const QString& name : CodecTables::codecsByBit(license.videoCodecs())) {
            const int bit = license.videoCodecs().value(name);
            if (bit & license.availableVideoMask() & m_videoMask)
                ui->videoCodecList->addItem(name, bit);
        }
        for (const QString& name : CodecTables::codecsByBit(license.audioCodecs())) {
            const int bit = license.audioCodecs().value(name);
            if (bit & license.availableAudioMask() & m_audioMask)
                ui->audioCodecList->addItem(name, bit);
        }
        // A codec the new container also holds stays chosen.
        selectText(ui->videoCodecList, video);
        selectText(ui->audioCodecList, audio);
    }
    codecChange();
}

int IsoCorderSetup::videoPage() const
{
    switch (CodecTables::videoRule(ui->videoCodecList->currentText()).page) {
    case CodecTables::PresetPage::X264:
        return ui->presetStacked->indexOf(ui->x264);
    case CodecTables::PresetPage::Nvenc:
        return ui->presetStacked->indexOf(ui->nvenc);
    case CodecTables::PresetPage::Amf:
        return ui->presetStacked->indexOf(ui->amf);
    case CodecTables::PresetPage::None:
        break;
    }
    return -1;
}

void IsoCorderSetup::codecChange()
{
    // An audio change leaves the video rate as the operator set it.
    if (ui->videoCodecList->currentText() != m_bitrateCodec)
        rebuildVideoBitrate();
    const CodecTables::VideoRule& video = CodecTables::videoRule(ui->videoCodecList->currentText());
    const int page = videoPage();
    ui->presetStacked->setVisible(page >= 0);
    if (page >= 0)
        ui->presetStacked->setCurrentIndex(page);
    // The hardware encoders have their own profiles (HEVC NVENC: main and main10).
    const QStringList profiles = video.profiles.isEmpty() ? IsoCodecLists::profiles() : video.profiles;
    if (page == ui->presetStacked->indexOf(ui->nvenc))
        IsoCodecLists::fillProfiles(ui->nvencProfile, profiles);
    else if (page == ui->presetStacked->indexOf(ui->amf))
        IsoCodecLists::fillProfiles(ui->amfProfile, profiles);
    ui->x264Profile->setEnabled(video.profileChoice);
    ui->keyFrameList->setEnabled(video.keyFrame);
    ui->videoCodecList->setEnabled(ui->videoCodecList->count() > 0);

    const CodecTables::AudioRule& audio = CodecTables::audioRule(ui->audioCodecList->currentText());
    ui->audioBitrateList->setEnabled(!audio.bitRates.isEmpty());
}

void IsoCorderSetup::rebuildVideoBitrate()
{
    const IsoCodecLists::BitrateRange range = IsoCodecLists::fillVideoBitrates(
        ui->videoBitrateList, ui->videoBitrateLabel, ui->videoCodecList->currentData().toInt());
    m_bitrateCodec = ui->videoCodecList->currentText();
    m_bitrateMinimum = range.minimum;
    m_bitrateMaximum = range.maximum;
}

CodecPreset IsoCorderSetup::codecPreset() const
{
    CodecPreset preset;
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = ui->videoCodecList->currentText();
    v.enabled = !v.codec.isEmpty();
    v.keyFrame = ui->keyFrameList->currentData().toInt();
    if (m_bitrateMaximum == 0) {
        v.quality = qMax(0, ui->videoBitrateList->currentIndex());
    } else {
        // A typed rate outside the list's range is held to it.
        v.bitRate = qBound(m_bitrateMinimum, ui->videoBitrateList->currentText().toInt(), m_bitrateMaximum);
    }
    const int page = videoPage();
    if (page == ui->presetStacked->indexOf(ui->x264)) {
        v.preset = ui->x264Preset->currentData().toString();
        v.profile = ui->x264Profile->isEnabled() ? ui->x264Profile->currentIndex() : 0;
        v.tune = ui->x264Tune->currentData().toString();
    } else if (page == ui->presetStacked->indexOf(ui->nvenc)) {
        v.preset = ui->nvencPreset->currentData().toString();
        v.profile = ui->nvencProfile->currentIndex();
        v.bframes = ui->nvencBframes->currentData().toInt();
    } else if (page == ui->presetStacked->indexOf(ui->amf)) {
        v.preset = ui->amfPreset->currentData().toString();
        v.profile = ui->amfProfile->currentIndex();
    }

    CodecModel::AudioCodec& a = preset.audioCodec();
    a.codec = ui->audioCodecList->currentText();
    a.enabled = !a.codec.isEmpty();
    a.channels = ui->channelList->currentData().toInt();
    a.sampleRate = ui->sampleRateList->currentData().toInt();
    a.bitRate = ui->audioBitrateList->isEnabled() ? ui->audioBitrateList->currentData().toInt() : 0;
    a.bitPerSamples = CodecTables::audioRule(a.codec).bitPerSamples;
    preset.audioSource() = ui->audioSourceList->currentData().value<SourceMap>();

    preset.container().name = ui->containerList->currentText().toLower();
    preset.container().id = ui->containerList->currentData().toInt();
    CodecModel::Local& local = preset.local();
    local.enabled = true;
    local.path = ui->folder->text();
    local.fileTag = ui->fileTag->text();
    local.splitTime = ui->splitFile->isChecked() ? ui->splitTimeList->currentData().toInt() : 0;
    preset.streaming().enabled = false;
    return preset;
}

void IsoCorderSetup::presetToUi(CodecPreset* preset)
{
    // The lists as a fresh dialog shows them for that container, not as the formats the
    // operator went through before left them (a format without masks of its own keeps those).
    const LicenseModel& license = CodecTables::licenseModel();
    m_videoMask = license.availableVideoMask();
    m_audioMask = license.availableAudioMask();
    {
        const QSignalBlocker blocker(ui->containerList);
        selectText(ui->containerList, preset->container().name.toUpper());
    }
    containerChange();
    {
        const QSignalBlocker videoBlocker(ui->videoCodecList);
        const QSignalBlocker audioBlocker(ui->audioCodecList);
        selectText(ui->videoCodecList, preset->videoCodec().codec);
        selectText(ui->audioCodecList, preset->audioCodec().codec);
    }
    codecChange();

    const CodecModel::VideoCodec& v = preset->videoCodec();
    selectData(ui->keyFrameList, v.keyFrame);
    if (m_bitrateMaximum == 0)
        ui->videoBitrateList->setCurrentIndex(qBound(0, v.quality, ui->videoBitrateList->count() - 1));
    else if (v.bitRate > 0)
        ui->videoBitrateList->setCurrentText(QString::number(qBound(m_bitrateMinimum, v.bitRate, m_bitrateMaximum)));
    const int page = videoPage();
    const auto selectProfile = [&v](QComboBox* list) {
        if (v.profile >= 0 && v.profile < list->count())
            list->setCurrentIndex(v.profile);
    };
    if (page == ui->presetStacked->indexOf(ui->x264)) {
        selectData(ui->x264Preset, v.preset);
        selectProfile(ui->x264Profile);
        selectData(ui->x264Tune, v.tune.isEmpty() ? QStringLiteral("none") : v.tune);
    } else if (page == ui->presetStacked->indexOf(ui->nvenc)) {
        selectData(ui->nvencPreset, v.preset);
        selectProfile(ui->nvencProfile);
        selectData(ui->nvencBframes, v.bframes);
    } else if (page == ui->presetStacked->indexOf(ui->amf)) {
        selectData(ui->amfPreset, v.preset);
        selectProfile(ui->amfProfile);
    }

    const CodecModel::AudioCodec& a = preset->audioCodec();
    selectData(ui->channelList, a.channels);
    selectData(ui->sampleRateList, a.sampleRate);
    selectData(ui->audioBitrateList, a.bitRate);
    SourceLists::selectSource(ui->audioSourceList, preset->audioSource());

    const CodecModel::Local& local = preset->local();
    ui->folder->setText(local.path.isEmpty() ? m_defaults.local().path : local.path);
    ui->fileTag->setText(local.fileTag.isEmpty() ? m_defaults.local().fileTag : local.fileTag);
    ui->splitFile->setChecked(local.splitTime >= 1);
    selectData(ui->splitTimeList, local.splitTime >= 1 ? local.splitTime : SourceLists::defaultSplitSeconds);
}

void IsoCorderSetup::loadSetting()
{
    const QJsonValue stored = host ? host->settings().value(QLatin1String(settingsKey)) : QJsonValue();
    if (!stored.isUndefined() && !stored.isObject())
        qCWarning(lcIso) << "ignoring" << settingsKey << "that is not an object";
    const QJsonObject root = stored.toObject();
    const QJsonValue codec = root.value(QLatin1String("CODEC"));
    if (!codec.isUndefined() && !codec.isObject())
        qCWarning(lcIso) << "ignoring" << settingsKey << "CODEC that is not an object";
    // Nothing stored yet: Cancel still goes back to what the dialog first showed.
    CodecPreset preset = codec.toObject().isEmpty() ? m_defaults : IsoCorderJson::codecFromJson(codec.toObject());
    presetToUi(&preset);
    selectStoredSources(root.value(QLatin1String("SOURCES")));
}

void IsoCorderSetup::selectStoredSources(const QJsonValue& stored)
{
    if (!stored.isUndefined() && !stored.isArray())
        qCWarning(lcIso) << "ignoring" << settingsKey << "SOURCES that is not an array";
    const QSignalBlocker blocker(ui->presetList);
    ui->presetList->clearSelection();
    for (int row = 0; row < ui->presetList->count(); ++row)
        if (IsoSourceItem* widget = rowWidget(ui->presetList, ui->presetList->item(row)))
            widget->resetMediaBin();

    const QJsonArray array = stored.toArray();
    const int limit = CodecTables::licenseModel().maxIsoRecording();
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isObject()) {
            qCWarning(lcIso) << settingsKey << "source" << i << "is not an object; skipped";
            continue;
        }
        const QJsonObject source = array.at(i).toObject();
        const QString device = source.value(QLatin1String("DEVICE")).toString();
        // The first row of that device only: two rows of one description keep the first.
        for (int row = 0; row < ui->presetList->count(); ++row) {
            QListWidgetItem* item = ui->presetList->item(row);
            IsoSourceItem* widget = rowWidget(ui->presetList, item);
            if (!widget || widget->deviceText() != device)
                continue;
            if (!item->isSelected() && ui->presetList->selectedItems().size() >= limit) {
                qCWarning(lcIso) << settingsKey << "source" << i << "is beyond the ISO limit; skipped";
                break;
            }
            widget->selectMediaBin(source.value(QLatin1String("RECORD_TO_BIN")).toString());
            item->setSelected(true);
            break;
        }
    }
}

void IsoCorderSetup::saveSetting()
{
    if (!host)
        return;
    QJsonArray sources;
    for (QListWidgetItem* item : ui->presetList->selectedItems()) {
        if (const IsoSourceItem* row = rowWidget(ui->presetList, item))
            sources.append(QJsonObject{{QStringLiteral("SOURCE"), row->sourceName()},
                                       {QStringLiteral("DEVICE"), row->deviceText()},
                                       {QStringLiteral("RECORD_TO_BIN"), row->mediaBin()}});
    }
    host->setSettingsObject(QLatin1String(settingsKey),
                            QJsonObject{{QStringLiteral("CODEC"), IsoCorderJson::codecToJson(codecPreset())},
                                        {QStringLiteral("SOURCES"), sources}});
}

void IsoCorderSetup::existingDirectory()
{
    FolderChooser::choose(this, ui->folder, FileTag::defaultFolder());
}

void IsoCorderSetup::showNamingEdit()
{
    // The preview names the first chosen source, in the project's format.
    CodecPreset preset = codecPreset();
    const QList<Source> chosen = sources();
    QListWidgetItem* first = ui->presetList->item(0);
    if (!chosen.isEmpty())
        preset.setSourceName(chosen.first().first);
    else if (const IsoSourceItem* row = first ? rowWidget(ui->presetList, first) : nullptr)
        preset.setSourceName(row->sourceName());
    const ProjectPreset::VideoOutput video = QuillonEngine::projectPreset().videoOutput();
    preset.videoCodec().width = video.width;
    preset.videoCodec().height = video.height;
    FileNamingDialog dialog(this, &preset, nullptr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString tag = dialog.fileTag();
    ui->fileTag->setText(tag);
    PrivateSettings settings; // the file also holds stream keys
    settings.setValue(QLatin1String(fileTagKey), tag);
    settings.sync();
}
