#include "recording/presetcontrols.h"

#include "codec/encoderlistwidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

using SourceMap = QMap<int, int>;

CodecPreset PresetControls::preset(const QString& name) const
{
    CodecPreset preset = codecs->currentPreset();
    preset.setName(name);
    preset.videoSource() = videoSource->currentData().value<SourceMap>();
    preset.audioSource() = audioSource->currentData().value<SourceMap>();
    preset.container().name = container->currentText().toLower();
    preset.container().id = container->currentData().toInt();
    CodecModel::Local& local = preset.local();
    local.path = folder->text();
    local.fileTag = fileTag->text();
    if (splitFile->isChecked())
        local.splitTime = splitTime->currentData().toInt();
    return preset;
}
