#pragma once

#include "records/codecpreset.h"

class EncoderListWidget;
class QCheckBox;
class QComboBox;
class QLineEdit;

// The controls the recording and streaming dialogs share for a new preset:
// codec, sources, container and the file block.
struct PresetControls {
    EncoderListWidget* codecs = nullptr;
    QComboBox* videoSource = nullptr;
    QComboBox* audioSource = nullptr;
    QComboBox* container = nullptr;
    QLineEdit* folder = nullptr;
    QLineEdit* fileTag = nullptr;
    QCheckBox* splitFile = nullptr;
    QComboBox* splitTime = nullptr;

    // The codec list's preset under `name`, with the chosen sources, container and file
    // block; the split time stays the codec's own unless "Split File" is checked.
    CodecPreset preset(const QString& name) const;
};
