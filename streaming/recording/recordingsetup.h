#pragma once

#include "records/codecpreset.h"
#include "streaming_export.h"

#include <QDialog>
#include <QList>

#include <memory>

class EncoderRows;
class OutputInterface;

namespace Ui {
class RecordingSetup;
}

// The recording presets of the programme output and their record buttons. The host
// keeps the dialog, shows and hides it, and calls reloadPresets() whenever its setup
// object changed; the presets live under "RECORDING" in that object.
class STREAMING_EXPORT RecordingSetup : public QDialog
{
    Q_OBJECT
public:
    RecordingSetup(QWidget* parent, OutputInterface* host);
    ~RecordingSetup() override;

    void reloadPresets();
    QList<CodecPreset> codecPresets() const;
    // Checks or unchecks every row's record button; false when asked to start nothing.
    bool encoding(bool on);
    bool isEncoding() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void updatePreset();
    void existingDirectory();
    void showNamingEdit();
    void videoSourceChange();

private:
    void initializeUi();
    void buildCodecs();
    void loadSetting();
    void saveSetting();
    void removeSetting();

    void addPresetClicked();
    void removePresetClicked();
    void applyPreset(const CodecPreset& preset, bool withMediaBin);
    CodecPreset presetFromControls(const QString& name) const;
    QString nameOrUntitled() const;

    Ui::RecordingSetup* ui;
    OutputInterface* host;
    std::unique_ptr<EncoderRows> m_rows;
};
