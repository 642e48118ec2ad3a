#pragma once

#include "codec/codectables.h"
#include "codec/sizedefinition.h"
#include "records/codecpreset.h"

#include <QDialog>

#include <memory>

class QIntValidator;

namespace Ui {
class CodecPresetDialog;
}

// Edits one codec preset. The usage type (CodecTables::Usage) decides what the output
// can carry (no interlaced rates for streaming, encoder defaults); a video codec is offered
// when its availability flags share a bit with both video masks, an audio codec when its
// bit is in both audio masks.
class CodecPresetDialog : public QDialog
{
    Q_OBJECT
public:
    CodecPresetDialog(QWidget* parent, int usageType, CodecPreset* preset, int usageMask, int usageAudioMask,
                      int outputMask, int outputAudioMask);
    ~CodecPresetDialog() override;

    // The preset as the controls show it; after accept() the operator's result.
    CodecPreset codecPreset() const;

public slots:
    void accept() override;

private slots:
    void videoSizeChange(const QString& text);
    void customSizeChange();
    void videoBitrateChange(const QString& text);
    void frameRateChange();
    void currentIndexChange(int index);

private:
    void fillVideoCodecs(int usageMask, int outputMask);
    void fillAudioCodecs(int audioMask);
    void fillEncoderPages();
    void applyVideoCodec();
    void applyAudioCodec();
    void fillSizes(const CodecTables::VideoRule& rule);
    void fillFrameRates();
    void fillBitrates(const CodecTables::VideoRule& rule);
    void fillProfiles(const CodecTables::VideoRule& rule);
    void updateAcceptable();
    SizeDefinition currentSize() const;
    const CodecTables::VideoRule& currentRule() const;

    std::unique_ptr<Ui::CodecPresetDialog> ui;
    int m_usage;
    CodecPreset m_preset; // what the operator asked for; lists fall back when a codec can't do it
    bool m_wantedCustom = false;
    bool m_filling = false;
    QIntValidator* m_bitrateValidator = nullptr;
};
