#include "recording/recordingsetup.h"

#include "ui_recordingsetup.h"

#include "codec/codectables.h"
#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "recording/containermasks.h"
#include "recording/encoderrows.h"
#include "recording/presetcontrols.h"
#include "recording/presetnames.h"
#include "recording/recordingpresetjson.h"
#include "recording/sourcelists.h"
#include "records/licensemodel.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/folderchooser.h"
#include "stores/privatesettings.h"
#include "widgets/messagebox.h"

#include <QJsonArray>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QUuid>

Q_LOGGING_CATEGORY(lcRecording, "streaming.recording")

namespace {

using SourceMap = QMap<int, int>;

const char settingsKey[] = "RECORDING";
const char fileTagKey[] = "ql.recording.filetag";

const char* const mediaBins[] = {QT_TRANSLATE_NOOP("RecordingSetup", "None"), QT_TRANSLATE_NOOP("RecordingSetup", "CLIP 1"),
                                 QT_TRANSLATE_NOOP("RecordingSetup", "CLIP 2")};

} // namespace

RecordingSetup::RecordingSetup(QWidget* parent, OutputInterface* host)
    : QDialog(parent), ui(new Ui::RecordingSetup), host(host)
{
    ui->setupUi(this);
    m_rows = std::make_unique<EncoderRows>(ui->presetList, host, 1);
    if (QPushButton* close = ui->buttonBox->button(QDialogButtonBox::Close)) {
        close->setText(tr("Close"));
        close->setMinimumWidth(close->fontMetrics().horizontalAdvance(close->text()) + 20);
    }
    const QString tag = QSettings().value(QLatin1String(fileTagKey)).toString();
    if (!tag.isEmpty())
        ui->fileTag->setText(tag);
    ui->folder->setText(FileTag::defaultFolder());
    initializeUi();
}

RecordingSetup::~RecordingSetup()
{
    delete ui;
}

void RecordingSetup::initializeUi()
{
    const LicenseModel& license = CodecTables::licenseModel();
    const QMap<int, QString>& containers = license.containers();
    for (auto it = containers.cbegin(); it != containers.cend(); ++it)
        ui->containerList->addItem(it.value().toUpper(), it.key());

    for (QComboBox* list : {ui->videoSourceList, ui->audioSourceList})
        SourceLists::addProgramme(list);
    if (license.audioBusEnabled()) {
        const ProjectPreset::Processing processing = QuillonEngine::projectPreset().processing();
        SourceLists::addBuses(ui->audioSourceList, processing.busAEnabled, processing.busBEnabled);
    }

    SourceLists::fillSplitTimes(ui->splitTimeList);
    ui->splitTimeList->setEnabled(false);
    for (const char* bin : mediaBins)
        ui->mediaToBin->addItem(tr(bin), QString::fromLatin1(bin));
    ui->mediaToBin->setCurrentIndex(0);

    ui->maxResolution->setText(tr("Max Resolution: %1x%2").arg(license.maxWidth()).arg(license.maxHeight()));
    ui->maxRecording->setText(tr("Max Recording: %1").arg(license.maxRecording()));
    ui->encoderList->initialize(CodecTables::UsageRecording, LicenseModel::usageRecording,
                                license.availableAudioMask());

    connect(ui->containerList, qOverload<int>(&QComboBox::currentIndexChanged), this, &RecordingSetup::updatePreset);
    connect(ui->browse, &QToolButton::clicked, this, &RecordingSetup::existingDirectory);
    connect(ui->namingEdit, &QToolButton::clicked, this, &RecordingSetup::showNamingEdit);
    connect(ui->addPreset, &QToolButton::clicked, this, &RecordingSetup::updatePreset);
    connect(ui->removePreset, &QToolButton::clicked, this, &RecordingSetup::updatePreset);
    connect(ui->presetList, &QListWidget::currentRowChanged, this, &RecordingSetup::updatePreset);
    connect(ui->presetList, &QListWidget::itemDoubleClicked, this, &RecordingSetup::updatePreset);
    connect(ui->encoderList, &EncoderListWidget::presetChanged, this, &RecordingSetup::updatePreset);
    connect(ui->videoSourceList, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RecordingSetup::videoSourceChange);
    connect(ui->splitFile, &QCheckBox::toggled, ui->splitTimeList, &QWidget::setEnabled);
    connect(ui->buttonBox, &QDialogButtonBox::clicked, this, &QDialog::close);

    ui->namingEdit->setToolTip(tr("Edit Naming"));
    ui->addPreset->setToolTip(tr("Add Presets"));
    ui->removePreset->setToolTip(tr("Remove Presets"));
    ui->removePreset->setEnabled(false);
    buildCodecs();
}

void RecordingSetup::buildCodecs()
{
    int videoMask = 0;
    int audioMask = 0;
    if (ContainerMasks::forContainer(ui->containerList->currentData().toInt(),
                                     CodecTables::licenseModel().availableVideoMask(), &videoMask, &audioMask))
        ui->encoderList->setCodecMask(videoMask, audioMask);
}

void RecordingSetup::reloadPresets()
{
    ui->presetName->clear();
    loadSetting();
}

QList<CodecPreset> RecordingSetup::codecPresets() const
{
    return m_rows->presets();
}

bool RecordingSetup::encoding(bool on)
{
    return m_rows->setEncoding(on);
}

bool RecordingSetup::isEncoding() const
{
    return m_rows->isEncoding();
}

void RecordingSetup::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    ui->encoderList->refresh();
    if (QListWidgetItem* item = ui->presetList->currentItem())
        applyPreset(EncoderRows::presetOf(item), false);
}

void RecordingSetup::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
}

void RecordingSetup::updatePreset()
{
    const QObject* from = sender();
    if (from == ui->containerList) {
        buildCodecs();
    } else if (from == ui->encoderList) {
        ui->addPreset->setEnabled(ui->encoderList->count() > 0);
    } else if (from == ui->presetList) {
        QListWidgetItem* item = ui->presetList->currentItem();
        if (!item) {
            ui->removePreset->setEnabled(false);
            return;
        }
        applyPreset(EncoderRows::presetOf(item), true);
        ui->removePreset->setEnabled(true);
    } else if (from == ui->removePreset) {
        removePresetClicked();
    } else if (from == ui->addPreset) {
        addPresetClicked();
    }
}

void RecordingSetup::applyPreset(const CodecPreset& preset, bool withMediaBin)
{
    const CodecModel::Local& local = preset.local();
    if (!local.path.isEmpty())
        ui->folder->setText(local.path);
    if (!local.fileTag.isEmpty())
        ui->fileTag->setText(local.fileTag);
    ui->containerList->setCurrentText(preset.container().name.toUpper());
    ui->encoderList->selectPreset(preset);
    SourceLists::selectSource(ui->videoSourceList, preset.videoSource());
    SourceLists::selectSource(ui->audioSourceList, preset.audioSource());
    ui->splitFile->setChecked(local.splitTime >= 1);
    const int split = ui->splitTimeList->findData(local.splitTime);
    if (split >= 0)
        ui->splitTimeList->setCurrentIndex(split);
    if (withMediaBin)
        ui->mediaToBin->setCurrentIndex(qMax(0, ui->mediaToBin->findData(local.mediaToBin)));
}

void RecordingSetup::removePresetClicked()
{
    if (m_rows->removeCurrent(this, tr("Preset"), tr("Please try again after recording is finished."),
                              tr("Are you sure you want to remove this item?")))
        saveSetting();
}

void RecordingSetup::addPresetClicked()
{
    if (ui->presetList->count() >= CodecTables::licenseModel().maxRecording()) {
        MessageBox::warning(this, tr("Preset"), tr("Check the maximum number of recording."));
        return;
    }
    // One pass over the rows: "Cam", "Cam 2", "Cam 3"...
    QStringList names;
    for (const CodecPreset& preset : m_rows->presets())
        names.append(preset.name());
    const QString name = PresetNames::unique(nameOrUntitled(), names);

    CodecPreset preset = presetFromControls(name);
    preset.setId(QUuid::createUuid().toString());
    m_rows->add(preset);
    ui->presetList->setCurrentRow(ui->presetList->count() - 1);
    saveSetting();
}

QString RecordingSetup::nameOrUntitled() const
{
    const QString name = ui->presetName->text();
    return name.isEmpty() ? tr("Untitled") : name;
}

CodecPreset RecordingSetup::presetFromControls(const QString& name) const
{
    const PresetControls controls{ui->encoderList, ui->videoSourceList, ui->audioSourceList, ui->containerList,
                                  ui->folder,      ui->fileTag,         ui->splitFile,       ui->splitTimeList};
    CodecPreset preset = controls.preset(name);
    preset.local().enabled = true;
    preset.local().mediaToBin = ui->mediaToBin->currentData().toString();
    preset.streaming().enabled = false;
    return preset;
}

void RecordingSetup::videoSourceChange()
{
    SourceLists::selectSource(ui->audioSourceList, ui->videoSourceList->currentData().value<SourceMap>());
}

void RecordingSetup::existingDirectory()
{
    FolderChooser::choose(this, ui->folder, FileTag::defaultFolder());
}

void RecordingSetup::showNamingEdit()
{
    CodecPreset preset = presetFromControls(nameOrUntitled());
    FileNamingDialog dialog(this, &preset, nullptr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString tag = dialog.fileTag();
    ui->fileTag->setText(tag);
    PrivateSettings settings; // the file also holds stream keys
    settings.setValue(QLatin1String(fileTagKey), tag);
    settings.sync();
}

void RecordingSetup::loadSetting()
{
    ui->presetList->clear();
    if (!host)
        return;
    const QJsonValue value = host->settings().value(QLatin1String(settingsKey));
    if (!value.isUndefined() && !value.isArray())
        qCWarning(lcRecording) << "ignoring" << settingsKey << "that is not an array";
    const QJsonArray array = value.toArray();
    const int limit = CodecTables::licenseModel().maxRecording();
    for (int i = 0; i < array.size() && i < limit; ++i) {
        if (!array.at(i).isObject())
            qCWarning(lcRecording) << settingsKey << "element" << i << "is not an object; it reads as an empty preset";
        m_rows->add(RecordingPresetJson::fromJson(array.at(i).toObject()));
    }
    if (ui->presetList->count() > 0)
        ui->presetList->setCurrentRow(0);
}

void RecordingSetup::saveSetting()
{
    if (!host)
        return;
    QJsonArray array;
    for (const CodecPreset& preset : m_rows->presets())
        array.append(RecordingPresetJson::toJson(preset));
    host->setSettings(QLatin1String(settingsKey), array);
}

void RecordingSetup::removeSetting()
{
    if (host)
        host->setSettings(QLatin1String(settingsKey), QJsonArray());
}
