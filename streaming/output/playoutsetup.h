#pragma once

#include "stores/outputinfo.h"
#include "streaming_export.h"

#include <QDialog>
#include <QJsonObject>
#include <QList>

#include <memory>

class OutputInterface;
class PlayoutItem;

namespace Ui {
class PlayoutSetup;
}

// The outputs on SDI cards, NDI, displays, audio devices and the virtual camera, one row
// each, started and stopped by the host on the operator's word. The rows' choices live
// under "PLAYOUT" in the host's setup object, keyed by row name ("SDI 1", "DISPLAY 2").
// Outputs keep running while the dialog is hidden.
class STREAMING_EXPORT PlayoutSetup : public QDialog
{
    Q_OBJECT
public:
    PlayoutSetup(QWidget* parent, OutputInterface* host);
    ~PlayoutSetup() override;

    int exec() override;
    // Reloads and shows the dialog modeless; a host that opens it itself says so, and hears
    // through playoutClosed(false) when the operator cancels.
    void open(bool fromHost);
    void open() override;

    void reloadPresets();
    // Reloads the one row that denotes the same output (kind and number).
    void reloadPreset(OutputInfo* info);
    const QList<OutputInfo>& outputInfos() const;
    // Shows a state the host set itself on the matching row, or on all rows; the host is not asked.
    void encoding(OutputInfo* info, bool on);
    void encoding(bool on);
    bool isEncoding() const;
    // Rebuilds outputInfos() from the rows that have device, kind and format; true when any has.
    bool validCheck();
    void buildOutputs();

public slots:
    void accept() override;
    void reject() override;

private:
    void saveSetting(const QList<PlayoutItem*>& rows);

    std::unique_ptr<Ui::PlayoutSetup> ui;
    OutputInterface* host;
    QList<PlayoutItem*> m_rows;
    QList<OutputInfo> m_outputInfos;
    bool m_fromHost = false;
};
