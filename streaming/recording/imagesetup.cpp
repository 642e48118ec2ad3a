#include "recording/imagesetup.h"

#include "ui_imagesetup.h"

#include "codec/codectables.h"
#include "interface/outputinterface.h"
#include "recording/presetnames.h"
#include "records/licensemodel.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/folderchooser.h"
#include "widgets/messagebox.h"
#include "widgets/qmessageboxex.h"

#include <QJsonArray>
#include <QLoggingCategory>
#include <QPushButton>
#include <QStandardPaths>

Q_LOGGING_CATEGORY(lcGrab, "streaming.grab")

// The rows carry their presets as item data.
Q_DECLARE_METATYPE(Snapshot)

namespace {

const char settingsKey[] = "GRAB";

const char* const formats[] = {"jpg", "png", "bmp", "tiff"};
const char* const sources[] = {QT_TRANSLATE_NOOP("ImageSetup", "PGM"), QT_TRANSLATE_NOOP("ImageSetup", "PGM(Clean)"),
                               QT_TRANSLATE_NOOP("ImageSetup", "PVW")};
const char* const stillBins[] = {QT_TRANSLATE_NOOP("ImageSetup", "None"), QT_TRANSLATE_NOOP("ImageSetup", "STILL 1"),
                                 QT_TRANSLATE_NOOP("ImageSetup", "STILL 2")};

Snapshot snapshotOf(const QListWidgetItem* item)
{
    return item ? item->data(Qt::UserRole).value<Snapshot>() : Snapshot();
}

QJsonObject toJson(const Snapshot& shot)
{
    return QJsonObject{
        {QStringLiteral("Source"), shot.source},       {QStringLiteral("PresetName"), shot.name},
        {QStringLiteral("ContainerName"), shot.extension}, {QStringLiteral("Path"), shot.directory},
        {QStringLiteral("FileTag"), shot.fileTag},     {QStringLiteral("MediaToBin"), shot.mediaToBin},
    };
}

// A hand-edited entry with a format or source the dialog does not offer gets the first one.
Snapshot fromJson(const QJsonObject& o, int position)
{
    Snapshot shot;
    shot.source = o.value(QLatin1String("Source")).toInt();
    shot.name = o.value(QLatin1String("PresetName")).toString();
    shot.extension = o.value(QLatin1String("ContainerName")).toString();
    shot.directory = o.value(QLatin1String("Path")).toString();
    shot.fileTag = o.value(QLatin1String("FileTag")).toString();
    shot.mediaToBin = o.value(QLatin1String("MediaToBin")).toString();
    if (shot.source < 0 || shot.source >= int(std::size(sources))) {
        qCWarning(lcGrab) << settingsKey << "entry" << position << "has no source" << shot.source << "; it grabs PGM";
        shot.source = 0;
    }
    if (std::find_if(std::begin(formats), std::end(formats),
                     [&shot](const char* format) { return shot.extension == QLatin1String(format); })
        == std::end(formats)) {
        qCWarning(lcGrab) << settingsKey << "entry" << position << "has no image format" << shot.extension
                          << "; it grabs" << formats[0];
        shot.extension = QString::fromLatin1(formats[0]);
    }
    return shot;
}

} // namespace

ImageSetup::ImageSetup(QWidget* parent, OutputInterface* host) : QDialog(parent), ui(new Ui::ImageSetup), host(host)
{
    ui->setupUi(this);
    if (QPushButton* close = ui->buttonBox->button(QDialogButtonBox::Close))
        close->setText(tr("Close"));
    ui->folder->setText(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QLatin1Char('/')
                        + QCoreApplication::applicationName());
    initializeUi();
}

ImageSetup::~ImageSetup()
{
    delete ui;
}

QString ImageSetup::tagFromName(const Snapshot& shot, bool withExtension)
{
    return FileTag::fromSnapshot(shot, withExtension);
}

QString ImageSetup::localPath(const Snapshot& shot)
{
    return FileTag::imagePath(shot);
}

void ImageSetup::initializeUi()
{
    for (const char* format : formats)
        ui->containerList->addItem(QString::fromLatin1(format), QString::fromLatin1(format));
    for (int i = 0; i < int(std::size(sources)); ++i)
        ui->sourceList->addItem(tr(sources[i]), i);
    for (const char* bin : stillBins)
        ui->mediaToBin->addItem(tr(bin), QString::fromLatin1(bin));
    ui->maxGrab->setText(tr("Max Grab: %1").arg(CodecTables::licenseModel().maxGrab()));

    connect(ui->containerList, qOverload<int>(&QComboBox::currentIndexChanged), this, &ImageSetup::updatePreset);
    connect(ui->browse, &QPushButton::clicked, this, &ImageSetup::existingDirectory);
    connect(ui->namingEdit, &QToolButton::clicked, this, &ImageSetup::showNamingEdit);
    connect(ui->addPreset, &QToolButton::clicked, this, &ImageSetup::updatePreset);
    connect(ui->removePreset, &QToolButton::clicked, this, &ImageSetup::updatePreset);
    connect(ui->presetList, &QListWidget::currentRowChanged, this, &ImageSetup::updatePreset);
    connect(ui->presetList, &QListWidget::itemDoubleClicked, this, &ImageSetup::updatePreset);
    connect(ui->buttonBox, &QDialogButtonBox::clicked, this, &QDialog::close);
    ui->removePreset->setEnabled(false);
}

QList<Snapshot> ImageSetup::presets() const
{
    QList<Snapshot> list;
    for (int row = 0; row < ui->presetList->count(); ++row)
        list.append(snapshotOf(ui->presetList->item(row)));
    return list;
}

void ImageSetup::reloadPresets()
{
    loadSetting();
}

void ImageSetup::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QListWidgetItem* item = ui->presetList->currentItem())
        applySnapshot(snapshotOf(item));
}

void ImageSetup::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
}

void ImageSetup::updatePreset()
{
    const QObject* from = sender();
    if (from == ui->presetList) {
        QListWidgetItem* item = ui->presetList->currentItem();
        ui->removePreset->setEnabled(item != nullptr);
        if (item)
            applySnapshot(snapshotOf(item));
    } else if (from == ui->removePreset) {
        removePresetClicked();
    } else if (from == ui->addPreset) {
        addPresetClicked();
    }
    // A format change needs nothing more: the next added preset takes it.
}

void ImageSetup::applySnapshot(const Snapshot& shot)
{
    if (!shot.directory.isEmpty())
        ui->folder->setText(shot.directory);
    if (!shot.fileTag.isEmpty())
        ui->fileTag->setText(shot.fileTag);
    ui->containerList->setCurrentIndex(qMax(0, ui->containerList->findData(shot.extension)));
    ui->sourceList->setCurrentIndex(qMax(0, ui->sourceList->findData(shot.source)));
    ui->mediaToBin->setCurrentIndex(qMax(0, ui->mediaToBin->findData(shot.mediaToBin)));
}

Snapshot ImageSetup::snapshotFromControls(const QString& name) const
{
    Snapshot shot;
    shot.source = ui->sourceList->currentData().toInt();
    shot.name = name;
    shot.extension = ui->containerList->currentData().toString();
    shot.directory = ui->folder->text();
    shot.fileTag = ui->fileTag->text();
    shot.mediaToBin = ui->mediaToBin->currentData().toString();
    return shot;
}

QString ImageSetup::nameOrUntitled() const
{
    const QString name = ui->presetName->text();
    return name.isEmpty() ? tr("Untitled") : name;
}

void ImageSetup::addRow(const Snapshot& shot)
{
    auto* item = new QListWidgetItem(tr("%1 (%2, %3)").arg(shot.name, tr(sources[shot.source]), shot.extension.toUpper()),
                                     ui->presetList);
    item->setData(Qt::UserRole, QVariant::fromValue(shot));
}

void ImageSetup::addPresetClicked()
{
    if (ui->presetList->count() >= CodecTables::licenseModel().maxGrab()) {
        MessageBox::warning(this, tr("Preset"), tr("Check the maximum number of grab."));
        return;
    }
    QStringList names;
    for (const Snapshot& shot : presets())
        names.append(shot.name);
    addRow(snapshotFromControls(PresetNames::unique(nameOrUntitled(), names)));
    ui->presetList->setCurrentRow(ui->presetList->count() - 1);
    saveSetting();
}

void ImageSetup::removePresetClicked()
{
    QListWidgetItem* item = ui->presetList->currentItem();
    if (!item)
        return;
    if (QMessageBoxEx::question(this, tr("Preset"), tr("Are you sure you want to remove this item?"),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        != QMessageBox::Yes)
        return;
    delete item;
    saveSetting();
}

void ImageSetup::existingDirectory()
{
    FolderChooser::choose(this, ui->folder, ui->folder->text());
}

void ImageSetup::showNamingEdit()
{
    // A copy: the naming dialog writes into it as the operator types, also when cancelled.
    Snapshot shot = snapshotFromControls(nameOrUntitled());
    FileNamingDialog dialog(this, nullptr, &shot);
    if (dialog.exec() == QDialog::Accepted)
        ui->fileTag->setText(dialog.fileTag());
}

void ImageSetup::loadSetting()
{
    {
        const QSignalBlocker blocker(ui->presetList);
        ui->presetList->clear();
    }
    ui->removePreset->setEnabled(false);
    if (!host)
        return;
    const QJsonValue value = host->settings().value(QLatin1String(settingsKey));
    if (!value.isUndefined() && !value.isArray())
        qCWarning(lcGrab) << "ignoring" << settingsKey << "that is not an array";
    // No count limit here: a longer stored list is shown whole.
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isObject()) {
            qCWarning(lcGrab) << settingsKey << "entry" << i << "is not an object; skipped";
            continue;
        }
        addRow(fromJson(array.at(i).toObject(), i));
    }
    if (ui->presetList->count() > 0)
        ui->presetList->setCurrentRow(0);
}

void ImageSetup::saveSetting()
{
    if (!host)
        return;
    QJsonArray array;
    for (const Snapshot& shot : presets())
        array.append(toJson(shot));
    host->setSettings(QLatin1String(settingsKey), array);
}

void ImageSetup::removeSetting()
{
    if (host)
        host->setSettings(QLatin1String(settingsKey), QJsonArray());
}
