#pragma once

#include "records/codecpreset.h"

#include <QWidget>

#include <memory>

class OutputInterface;
class QListWidgetItem;

namespace Ui {
class EncoderItem;
}

// One row of a setup's preset list: the preset's name, a summary of its codecs and
// the button that starts and stops its encoder. Kind 0 streams, kind 1 records.
class EncoderItem : public QWidget
{
    Q_OBJECT
public:
    EncoderItem(QWidget* parent, OutputInterface* host, int kind);
    ~EncoderItem() override;

    // A null preset leaves the row as it is.
    void setPreset(QListWidgetItem* item, const CodecPreset* preset);
    const CodecPreset& preset() const { return m_preset; }
    QListWidgetItem* item() const { return m_item; }
    int kind() const { return m_kind; }

    bool isChecked() const;
    // Toggling the button starts or stops the encoder through encoding().
    void setChecked(bool on);

    static QString videoSummary(const CodecPreset& preset);
    static QString audioSummary(const CodecPreset& preset);

public slots:
    void encoding(bool on);

private:
    std::unique_ptr<Ui::EncoderItem> ui;
    CodecPreset m_preset;
    OutputInterface* m_host;
    int m_kind;
    QListWidgetItem* m_item = nullptr;
};
