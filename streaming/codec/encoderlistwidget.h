#pragma once

#include "records/codecpreset.h"

#include <QWidget>

#include <memory>

namespace Ui {
class EncoderListWidget;
}

// The stored codec presets an output may use, grouped by codec, with buttons to add,
// remove and edit them. A codec is listed when its availability flags share a bit with
// the usage mask (set once) and with the output mask (the container's, set later).
class EncoderListWidget : public QWidget
{
    Q_OBJECT
public:
    explicit EncoderListWidget(QWidget* parent = nullptr);
    ~EncoderListWidget() override;

    // usageType is a CodecTables::Usage; usageMask holds LicenseModel usage bits.
    void initialize(int usageType, int usageMask, int usageAudioMask);
    void setCodecMask(int videoMask, int audioMask);
    // Rereads the store and rebuilds the list.
    void refresh();

    CodecPreset currentPreset() const;
    int count() const;
    void selectPreset(const CodecPreset& preset);

    // The audio codecs the current output can carry (the codec dialog offers no others).
    int outputAudioMask() const { return m_outputAudioMask; }

signals:
    void presetChanged();

private slots:
    void customAdd();
    void customDel();
    void customEdit();
    void presetChange();

private:
    void addPreset(const CodecPreset& preset);
    void selectText(const QString& text);
    void updateButtons();

    std::unique_ptr<Ui::EncoderListWidget> ui;
    int m_usageType = 1;
    int m_usageMask = ~0;
    int m_usageAudioMask = ~0;
    int m_outputMask = ~0;
    int m_outputAudioMask = ~0;
};
