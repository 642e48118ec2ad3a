#include "codec/codecpresetdialog.h"
#include "ui_codecpresetdialog.h"

#include "codec/codecdialogstate.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/nametables.h"

#include <QIntValidator>
#include <QPushButton>
#include <QSignalBlocker>

#include <cmath>

using namespace CodecTables;

namespace {

const int interlacedRole = Qt::UserRole + 1;

const int sizeDefinitionTypeId = qRegisterMetaType<SizeDefinition>("SizeDefinition");

int indexOfData(const QComboBox* box, const QVariant& value)
{
    return box->findData(value);
}

bool sameRate(double a, double b)
{
    return std::abs(a - b) < 0.001;
}

} // namespace

CodecPresetDialog::CodecPresetDialog(QWidget* parent, int usageType, CodecPreset* preset, int usageMask,
                                     int usageAudioMask, int outputMask, int outputAudioMask)
    : QDialog(parent), ui(new Ui::CodecPresetDialog), m_usage(usageType)
{
    Q_UNUSED(sizeDefinitionTypeId)
    ui->setupUi(this);
    setWindowTitle(preset ? tr("Codec Settings") : tr("Add Codec"));
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));

    const CodecDialogState state = CodecDialogState::load();
    m_bitrateValidator = new QIntValidator(1, 10000000, this);
    ui->videoBitrateList->setInsertPolicy(QComboBox::NoInsert);
    if (preset) {
        m_preset = *preset;
    } else {
        // A new preset starts from the last accepted choices, or from the defaults.
        CodecModel::VideoCodec& v = m_preset.videoCodec();
        v.quality = v.profile = v.bframes = -1;
        v.keyFrame = defaultKeyFrame();
        v.width = defaultSize().width;
        v.height = defaultSize().height;
        if (state.valid) {
            m_preset.videoCodec() = state.preset.videoCodec();
            m_preset.audioCodec() = state.preset.audioCodec();
            m_wantedCustom = state.customSize;
        }
    }
    // A quality index means something only to the codecs that pick one.
    if (videoRule(m_preset.videoCodec().codec).rateControl != RateControl::Quality)
        m_preset.videoCodec().quality = -1;
    if (state.valid) {
        ui->customWidth->setValue(state.custom.width);
        ui->customHeight->setValue(state.custom.height);
    }

    fillVideoCodecs(usageMask, outputMask);
    fillAudioCodecs(usageAudioMask & outputAudioMask);
    fillEncoderPages();
    applyVideoCodec();
    applyAudioCodec();

    connect(ui->videoSizeList, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { videoSizeChange(ui->videoSizeList->itemText(index)); });
    connect(ui->customWidth, qOverload<int>(&QSpinBox::valueChanged), this, &CodecPresetDialog::customSizeChange);
    connect(ui->customHeight, qOverload<int>(&QSpinBox::valueChanged), this, &CodecPresetDialog::customSizeChange);
    connect(ui->videoBitrateList, &QComboBox::currentTextChanged, this, &CodecPresetDialog::videoBitrateChange);
    connect(ui->frameRateList, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CodecPresetDialog::frameRateChange);
    connect(ui->videoCodecList, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CodecPresetDialog::currentIndexChange);
    connect(ui->audioCodecList, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CodecPresetDialog::currentIndexChange);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &CodecPresetDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &CodecPresetDialog::reject);
    updateAcceptable();
}

CodecPresetDialog::~CodecPresetDialog() = default;

void CodecPresetDialog::fillVideoCodecs(int usageMask, int outputMask)
{
    const LicenseModel& license = CodecTables::licenseModel();
    const QMap<QString, int>& availability = license.codecAvailability();
    for (const QString& codec : codecsByBit(license.videoCodecs())) {
        const int flags = availability.value(codec);
        if ((flags & usageMask) && (flags & outputMask))
            ui->videoCodecList->addItem(codec);
    }
    int index = ui->videoCodecList->findText(m_preset.videoCodec().codec);
    if (index < 0)
        index = ui->videoCodecList->findText(QStringLiteral("H.264"));
    ui->videoCodecList->setCurrentIndex(qMax(0, index));
}

void CodecPresetDialog::fillAudioCodecs(int audioMask)
{
    const QMap<QString, int>& table = CodecTables::licenseModel().audioCodecs();
    for (const QString& codec : codecsByBit(table))
        if (table.value(codec) & audioMask)
            ui->audioCodecList->addItem(codec);
    const int index = ui->audioCodecList->findText(m_preset.audioCodec().codec);
    ui->audioCodecList->setCurrentIndex(qMax(0, index));
    const bool any = ui->audioCodecList->count() > 0;
    ui->audioGroup->setEnabled(any);
    ui->audioGroup->setChecked(any && m_preset.audioCodec().enabled);

    for (int channels : channelCounts())
        ui->channelList->addItem(tr(channelName(channels)), channels);
    const int channelIndex = indexOfData(ui->channelList, m_preset.audioCodec().channels);
    ui->channelList->setCurrentIndex(qMax(0, channelIndex));
}

void CodecPresetDialog::fillEncoderPages()
{
    const CodecModel::VideoCodec& v = m_preset.videoCodec();
    const PresetPage ownPage = videoRule(v.codec).page;

    ui->x264Preset->addItems(x264Presets());
    ui->x264Profile->addItems(x264Profiles());
    ui->x264Tune->addItems(x264Tunes());
    const bool x264 = ownPage == PresetPage::X264;
    const int presetIndex = x264 ? ui->x264Preset->findText(v.preset) : -1;
    ui->x264Preset->setCurrentIndex(presetIndex >= 0 ? presetIndex : ui->x264Preset->findText(defaultX264Preset()));
    const bool ownProfile = x264 && v.profile >= 0 && v.profile < x264Profiles().size();
    ui->x264Profile->setCurrentIndex(ownProfile ? v.profile : defaultX264Profile());
    const int tuneIndex = x264 ? ui->x264Tune->findText(v.tune) : -1;
    ui->x264Tune->setCurrentIndex(tuneIndex >= 0 ? tuneIndex : ui->x264Tune->findText(defaultX264Tune()));

    for (const NamedValue& preset : nvencPresets())
        ui->nvencPreset->addItem(tr(preset.text), QString::fromLatin1(preset.data));
    const bool nvenc = ownPage == PresetPage::Nvenc;
    const int nvencIndex = nvenc ? indexOfData(ui->nvencPreset, v.preset) : -1;
    ui->nvencPreset->setCurrentIndex(nvencIndex >= 0 ? nvencIndex
                                                     : indexOfData(ui->nvencPreset, defaultNvencPreset(m_usage)));
    ui->nvencBframes->setValue(nvenc && v.bframes >= 0 ? v.bframes : defaultNvencBframes());

    for (const QString& preset : amfPresets())
        ui->amfPreset->addItem(preset, preset);
    const int amfIndex = ownPage == PresetPage::Amf ? ui->amfPreset->findText(v.preset) : -1;
    ui->amfPreset->setCurrentIndex(amfIndex >= 0 ? amfIndex : ui->amfPreset->findText(defaultAmfPreset()));
}

const VideoRule& CodecPresetDialog::currentRule() const
{
    return videoRule(ui->videoCodecList->currentText());
}

void CodecPresetDialog::applyVideoCodec()
{
    const VideoRule& rule = currentRule();
    m_filling = true;
    fillSizes(rule);
    fillFrameRates();
    const bool anyCodec = ui->videoCodecList->count() > 0;
    ui->keyFrameList->setEnabled(anyCodec && rule.keyFrame);
    if (ui->keyFrameList->count() == 0) {
        for (int seconds : keyFrames())
            ui->keyFrameList->addItem(tr("%1 sec").arg(seconds), seconds);
        const int index = indexOfData(ui->keyFrameList, m_preset.videoCodec().keyFrame);
        ui->keyFrameList->setCurrentIndex(index >= 0 ? index : indexOfData(ui->keyFrameList, defaultKeyFrame()));
    }
    fillBitrates(rule);
    fillProfiles(rule);
    switch (rule.page) {
    case PresetPage::X264:
        ui->presetStacked->setCurrentWidget(ui->x264Page);
        break;
    case PresetPage::Nvenc:
        ui->presetStacked->setCurrentWidget(ui->nvencPage);
        break;
    case PresetPage::Amf:
        ui->presetStacked->setCurrentWidget(ui->amfPage);
        break;
    case PresetPage::None:
        break;
    }
    ui->presetStacked->setVisible(anyCodec && rule.page != PresetPage::None);
    ui->x264Profile->setEnabled(rule.profileChoice);
    m_filling = false;
}

void CodecPresetDialog::fillSizes(const VideoRule& rule)
{
    const QSignalBlocker blocker(ui->videoSizeList);
    const LicenseModel& license = CodecTables::licenseModel();
    ui->videoSizeList->clear();
    for (const FrameSize& size : frameSizes()) {
        const SizeDefinition definition{size.width, size.height};
        if (size.width > license.maxWidth() || size.height > license.maxHeight())
            continue;
        if (!rule.sizes.isEmpty() && !rule.sizes.contains(definition))
            continue;
        ui->videoSizeList->addItem(
            tr("%1 (%2x%3)").arg(tr(size.name)).arg(size.width).arg(size.height), QVariant::fromValue(definition));
    }
    if (rule.customSize)
        ui->videoSizeList->addItem(tr("CUSTOM"), QVariant::fromValue(SizeDefinition()));
    ui->customWidth->setMaximum(rule.maxWidth > 0 ? qMin(rule.maxWidth, license.maxWidth()) : license.maxWidth());
    ui->customHeight->setMaximum(rule.maxHeight > 0 ? qMin(rule.maxHeight, license.maxHeight())
                                                    : license.maxHeight());

    const CodecModel::VideoCodec& v = m_preset.videoCodec();
    const int customIndex = indexOfData(ui->videoSizeList, QVariant::fromValue(SizeDefinition()));
    int index = m_wantedCustom ? customIndex : indexOfData(ui->videoSizeList, QVariant::fromValue(SizeDefinition{v.width, v.height}));
    if (index < 0 && !m_wantedCustom && customIndex >= 0 && v.width > 0 && v.height > 0) {
        // A size off the table is kept as a custom one.
        ui->customWidth->setValue(v.width);
        ui->customHeight->setValue(v.height);
        index = customIndex;
    }
    if (index < 0)
        index = indexOfData(ui->videoSizeList, QVariant::fromValue(defaultSize()));
    ui->videoSizeList->setCurrentIndex(qMax(0, index));
    ui->customSize->setVisible(currentSize().isCustom() && ui->videoSizeList->count() > 0);
    ui->videoSizeList->setEnabled(ui->videoSizeList->count() > 1);
}

SizeDefinition CodecPresetDialog::currentSize() const
{
    return ui->videoSizeList->currentData().value<SizeDefinition>();
}

void CodecPresetDialog::fillFrameRates()
{
    const VideoRule& rule = currentRule();
    const QSignalBlocker blocker(ui->frameRateList);
    ui->frameRateList->clear();
    if (ui->videoCodecList->count() == 0)
        return;
    auto add = [this](double rate, bool interlaced) {
        const QString text = rate > 0 ? tr("%1%2").arg(QString::number(rate, 'g', QLocale::FloatingPointShortest),
                                                       interlaced ? QStringLiteral("i") : QStringLiteral("p"))
                                      : tr("AUTO");
        ui->frameRateList->addItem(text, rate);
        ui->frameRateList->setItemData(ui->frameRateList->count() - 1, interlaced, interlacedRole);
    };
    if (rule.autoRate)
        add(0, false);
    for (double rate : rule.progressiveRates)
        add(rate, false);
    if (m_usage != UsageStreaming && interlaceAllowed(currentSize()))
        for (double rate : rule.interlacedRates)
            add(rate, true);

    const CodecModel::VideoCodec& v = m_preset.videoCodec();
    int index = 0;
    for (int i = 0; i < ui->frameRateList->count(); ++i) {
        const double rate = ui->frameRateList->itemData(i).toDouble();
        const bool interlaced = ui->frameRateList->itemData(i, interlacedRole).toBool();
        const bool wanted = v.frameRate > 0 ? sameRate(rate, v.frameRate) && interlaced == (v.field != 0) : rate <= 0;
        if (wanted) {
            index = i;
            break;
        }
    }
    ui->frameRateList->setCurrentIndex(index);
}

void CodecPresetDialog::fillBitrates(const VideoRule& rule)
{
    QComboBox* list = ui->videoBitrateList;
    const QSignalBlocker blocker(list);
    list->clear();
    const CodecModel::VideoCodec& v = m_preset.videoCodec();
    const bool quality = rule.rateControl == RateControl::Quality;
    ui->videoBitrateLabel->setText(quality ? tr("Quality:") : tr("Bitrate(kbps):"));
    const bool editable = rule.rateControl == RateControl::Bitrate && rule.bitRateEditable;
    list->setEditable(editable);
    if (editable)
        list->setValidator(m_bitrateValidator);
    for (int value : rule.bitRates)
        list->addItem(quality ? NameTables::proResProfile(value) : QString::number(value), value);

    const int wanted = quality ? v.quality : v.bitRate;
    int index = wanted >= 0 && (quality || wanted > 0) ? indexOfData(list, wanted) : -1;
    if (index >= 0) {
        list->setCurrentIndex(index);
    } else if (editable && wanted > 0) {
        list->setCurrentIndex(-1);
        list->setEditText(QString::number(wanted));
    } else {
        list->setCurrentIndex(qMax(0, indexOfData(list, rule.defaultBitRate)));
    }
    list->setEnabled(rule.rateControl != RateControl::Fixed && list->count() > 0);
}

void CodecPresetDialog::fillProfiles(const VideoRule& rule)
{
    QComboBox* list = rule.page == PresetPage::Amf ? ui->amfProfile : ui->nvencProfile;
    if (rule.page != PresetPage::Nvenc && rule.page != PresetPage::Amf)
        return;
    const CodecModel::VideoCodec& v = m_preset.videoCodec();
    // The operator's pick survives a change between codecs of one family.
    int wanted = list->count() > 0 ? list->currentIndex()
                                   : (videoRule(v.codec).page == rule.page ? v.profile : -1);
    list->clear();
    list->addItems(rule.profiles);
    if (wanted < 0 || wanted >= rule.profiles.size())
        wanted = rule.defaultProfile;
    list->setCurrentIndex(wanted);
}

void CodecPresetDialog::applyAudioCodec()
{
    const AudioRule& rule = audioRule(ui->audioCodecList->currentText());
    const CodecModel::AudioCodec& a = m_preset.audioCodec();
    // Keep what is shown when the new codec can do it, else the codec's default.
    const int sampleRate = ui->sampleRateList->count() > 0 ? ui->sampleRateList->currentData().toInt() : a.sampleRate;
    const int bitRate = ui->audioBitrateList->count() > 0 ? ui->audioBitrateList->currentData().toInt() : a.bitRate;

    ui->sampleRateList->clear();
    for (int rate : rule.sampleRates)
        ui->sampleRateList->addItem(tr("%1 kHz").arg(CodecManager::sampleRateTokHz(rate)), rate);
    int index = indexOfData(ui->sampleRateList, sampleRate);
    ui->sampleRateList->setCurrentIndex(index >= 0 ? index : qMax(0, indexOfData(ui->sampleRateList, rule.defaultSampleRate)));
    ui->sampleRateList->setEnabled(ui->sampleRateList->count() > 1);

    ui->audioBitrateList->clear();
    for (int rate : rule.bitRates)
        ui->audioBitrateList->addItem(tr("%1 kbps").arg(rate), rate);
    index = indexOfData(ui->audioBitrateList, bitRate);
    ui->audioBitrateList->setCurrentIndex(index >= 0 ? index : qMax(0, indexOfData(ui->audioBitrateList, rule.defaultBitRate)));
    ui->audioBitrateList->setEnabled(!rule.bitRates.isEmpty());
}

void CodecPresetDialog::currentIndexChange(int index)
{
    Q_UNUSED(index)
    if (sender() == ui->audioCodecList) {
        applyAudioCodec();
        return;
    }
    applyVideoCodec();
    updateAcceptable();
}

void CodecPresetDialog::videoSizeChange(const QString& text)
{
    Q_UNUSED(text)
    const SizeDefinition size = currentSize();
    ui->customSize->setVisible(size.isCustom());
    if (!m_filling) {
        m_wantedCustom = size.isCustom();
        if (!size.isCustom()) {
            m_preset.videoCodec().width = size.width;
            m_preset.videoCodec().height = size.height;
        }
    }
    // Interlaced rates depend on the frame height.
    fillFrameRates();
}

void CodecPresetDialog::customSizeChange()
{
    if (m_filling || !currentSize().isCustom())
        return;
    m_preset.videoCodec().width = ui->customWidth->value();
    m_preset.videoCodec().height = ui->customHeight->value();
}

void CodecPresetDialog::videoBitrateChange(const QString& text)
{
    if (!m_filling && currentRule().rateControl != RateControl::Fixed) {
        const int value = ui->videoBitrateList->isEditable() ? text.toInt() : ui->videoBitrateList->currentData().toInt();
        if (currentRule().rateControl == RateControl::Quality)
            m_preset.videoCodec().quality = value;
        else
            m_preset.videoCodec().bitRate = value;
    }
    updateAcceptable();
}

void CodecPresetDialog::frameRateChange()
{
    if (m_filling || ui->frameRateList->currentIndex() < 0)
        return;
    m_preset.videoCodec().frameRate = ui->frameRateList->currentData().toDouble();
    m_preset.videoCodec().field = ui->frameRateList->currentData(interlacedRole).toBool() ? 1 : 0;
}

void CodecPresetDialog::updateAcceptable()
{
    bool acceptable = ui->videoCodecList->count() > 0 && ui->frameRateList->count() > 0;
    if (currentRule().rateControl == RateControl::Bitrate && ui->videoBitrateList->isEditable())
        acceptable = acceptable && ui->videoBitrateList->currentText().toInt() > 0;
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(acceptable);
}

CodecPreset CodecPresetDialog::codecPreset() const
{
    CodecPreset result = m_preset;
    const VideoRule& rule = currentRule();
    CodecModel::VideoCodec& v = result.videoCodec();
    v.codec = ui->videoCodecList->currentText();
    SizeDefinition size = currentSize();
    if (size.isCustom()) // 4:2:0 encoders need even dimensions
        size = {ui->customWidth->value() & ~1, ui->customHeight->value() & ~1};
    v.width = size.width;
    v.height = size.height;
    v.frameRate = ui->frameRateList->currentData().toDouble();
    v.field = ui->frameRateList->currentData(interlacedRole).toBool() ? 1 : 0;
    v.keyFrame = rule.keyFrame ? ui->keyFrameList->currentData().toInt() : 0;
    const int rateValue = ui->videoBitrateList->isEditable() ? ui->videoBitrateList->currentText().toInt()
                                                             : ui->videoBitrateList->currentData().toInt();
    v.quality = rule.rateControl == RateControl::Quality ? rateValue : 0;
    v.bitRate = rule.rateControl == RateControl::Quality ? 0 : rateValue;
    v.preset.clear();
    v.tune.clear();
    v.profile = 0;
    v.bframes = 0;
    switch (rule.page) {
    case PresetPage::X264:
        v.preset = ui->x264Preset->currentText();
        v.profile = rule.profileChoice ? ui->x264Profile->currentIndex() : 0;
        v.tune = ui->x264Tune->currentText();
        break;
    case PresetPage::Nvenc:
        v.preset = ui->nvencPreset->currentData().toString();
        v.profile = ui->nvencProfile->currentIndex();
        v.bframes = ui->nvencBframes->value();
        break;
    case PresetPage::Amf:
        v.preset = ui->amfPreset->currentData().toString();
        v.profile = ui->amfProfile->currentIndex();
        break;
    case PresetPage::None:
        break;
    }

    CodecModel::AudioCodec& a = result.audioCodec();
    const AudioRule& audio = audioRule(ui->audioCodecList->currentText());
    a.enabled = ui->audioGroup->isEnabled() && ui->audioGroup->isChecked();
    a.codec = ui->audioCodecList->currentText();
    a.channels = ui->channelList->currentData().toInt();
    a.sampleRate = ui->sampleRateList->currentData().toInt();
    a.bitRate = audio.bitRates.isEmpty() ? 0 : ui->audioBitrateList->currentData().toInt();
    a.bitPerSamples = audio.bitPerSamples;
    return result;
}

void CodecPresetDialog::accept()
{
    CodecDialogState state;
    state.preset = codecPreset();
    state.customSize = currentSize().isCustom();
    state.custom = {ui->customWidth->value(), ui->customHeight->value()};
    state.save();
    QDialog::accept();
}
