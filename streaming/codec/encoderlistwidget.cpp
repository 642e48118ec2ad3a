#include "codec/encoderlistwidget.h"
#include "ui_encoderlistwidget.h"

#include "codec/codecpresetdialog.h"
#include "codec/codectables.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "widgets/qmessageboxex.h"

#include <QSignalBlocker>

#include <algorithm>

EncoderListWidget::EncoderListWidget(QWidget* parent) : QWidget(parent), ui(new Ui::EncoderListWidget)
{
    ui->setupUi(this);
    updateButtons();
}

EncoderListWidget::~EncoderListWidget() = default;

void EncoderListWidget::initialize(int usageType, int usageMask, int usageAudioMask)
{
    m_usageType = usageType;
    m_usageMask = usageMask;
    m_usageAudioMask = usageAudioMask;
    connect(ui->customAdd, &QToolButton::clicked, this, &EncoderListWidget::customAdd, Qt::UniqueConnection);
    connect(ui->customDel, &QToolButton::clicked, this, &EncoderListWidget::customDel, Qt::UniqueConnection);
    connect(ui->customEdit, &QToolButton::clicked, this, &EncoderListWidget::customEdit, Qt::UniqueConnection);
    connect(ui->presetList, qOverload<int>(&QComboBox::currentIndexChanged), this, &EncoderListWidget::presetChange,
            Qt::UniqueConnection);
    ui->customAdd->setToolTip(tr("Add Codec"));
    ui->customDel->setToolTip(tr("Remove Codec"));
    ui->customEdit->setToolTip(tr("Codec Settings"));
}

void EncoderListWidget::setCodecMask(int videoMask, int audioMask)
{
    m_outputMask = videoMask;
    m_outputAudioMask = audioMask;
    refresh();
}

void EncoderListWidget::refresh()
{
    {
        const QSignalBlocker blocker(ui->presetList);
        ui->presetList->clear();
        CodecManager* store = CodecManager::getInstancePtr();
        if (!store) {
            qCWarning(lcCodec) << "no codec preset store: the encoder list stays empty";
        } else {
            store->reloadPresets();
            const QMap<QString, int>& availability = CodecTables::licenseModel().codecAvailability();
            for (auto it = availability.cbegin(); it != availability.cend(); ++it) {
                if (!(it.value() & m_usageMask) || !(it.value() & m_outputMask))
                    continue;
                QList<CodecPreset> presets = store->codecPresetFromName(it.key());
                std::stable_sort(presets.begin(), presets.end(), [](const CodecPreset& a, const CodecPreset& b) {
                    if (a.videoCodec().height != b.videoCodec().height)
                        return a.videoCodec().height < b.videoCodec().height;
                    if (a.videoCodec().bitRate != b.videoCodec().bitRate)
                        return a.videoCodec().bitRate < b.videoCodec().bitRate;
                    return a.audioCodec().bitRate < b.audioCodec().bitRate;
                });
                for (const CodecPreset& preset : qAsConst(presets))
                    addPreset(preset);
            }
            // A separator between codecs makes each codec one group.
            QString previous;
            for (int i = 0; i < ui->presetList->count(); ++i) {
                const QString codec = ui->presetList->itemData(i).value<CodecPreset>().videoCodec().codec;
                if (i > 0 && codec != previous) {
                    ui->presetList->insertSeparator(i);
                    ++i;
                }
                previous = codec;
            }
        }
    }
    updateButtons();
    emit presetChanged();
}

void EncoderListWidget::addPreset(const CodecPreset& preset)
{
    CodecPreset copy = preset;
    copy.streaming().enabled = false;
    copy.local().enabled = false;
    ui->presetList->addItem(QIcon(), CodecManager::namingFromPreset(&copy), QVariant::fromValue(copy));
    ui->presetList->setCurrentIndex(ui->presetList->count() - 1);
}

CodecPreset EncoderListWidget::currentPreset() const
{
    return ui->presetList->currentData().value<CodecPreset>();
}

int EncoderListWidget::count() const
{
    return ui->presetList->count();
}

void EncoderListWidget::selectPreset(const CodecPreset& preset)
{
    selectText(CodecManager::namingFromPreset(&preset));
}

void EncoderListWidget::selectText(const QString& text)
{
    const int index = ui->presetList->findText(text);
    if (index >= 0)
        ui->presetList->setCurrentIndex(index);
}

void EncoderListWidget::customAdd()
{
    CodecPresetDialog dialog(this, m_usageType, nullptr, m_usageMask, m_usageAudioMask, m_outputMask,
                             m_outputAudioMask);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const CodecPreset preset = dialog.codecPreset();
    addPreset(preset);
    if (CodecManager* store = CodecManager::getInstancePtr())
        store->write(preset);
    const QString text = ui->presetList->currentText();
    refresh();
    selectText(text);
}

void EncoderListWidget::customDel()
{
    if (QMessageBoxEx::question(this, tr("Preset"), tr("Are you sure you want to remove this item?"),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        != QMessageBox::Yes)
        return;
    const int index = ui->presetList->currentIndex();
    if (index < 0)
        return;
    if (CodecManager* store = CodecManager::getInstancePtr())
        store->remove(currentPreset());
    ui->presetList->removeItem(index);
    refresh();
}

void EncoderListWidget::customEdit()
{
    CodecPreset preset = currentPreset();
    CodecPresetDialog dialog(this, m_usageType, &preset, m_usageMask, m_usageAudioMask, m_outputMask,
                             m_outputAudioMask);
    if (dialog.exec() != QDialog::Accepted || ui->presetList->currentIndex() < 0)
        return;
    const CodecPreset edited = dialog.codecPreset();
    const QString label = CodecManager::namingFromPreset(&edited);
    const int index = ui->presetList->currentIndex();
    ui->presetList->setItemText(index, label);
    ui->presetList->setItemData(index, QVariant::fromValue(edited));
    // One step: a crash between removing the old file and writing the new one would lose it.
    if (CodecManager* store = CodecManager::getInstancePtr())
        store->replace(preset, edited);
    refresh();
    selectText(label);
}

void EncoderListWidget::presetChange()
{
    updateButtons();
    emit presetChanged();
}

void EncoderListWidget::updateButtons()
{
    const bool any = ui->presetList->count() > 0;
    ui->customDel->setEnabled(any);
    ui->customEdit->setEnabled(any);
}
