#pragma once

#include "stores/outputinfo.h"
#include "streaming_export.h"

#include <QDialog>
#include <QList>

#include <memory>

class OutputInterface;
class OutputWidget;

namespace Ui {
class OutputSetup;
}

// The external outputs the host drives: one row per output the licence allows, each with a
// device, format, sources and keyer. The dialog only collects the choices (under "PLAYOUT",
// keyed "EXTERNAL 1" ...); after it was accepted the host reads outputInfos() when
// validCheck() says there is something to drive.
class STREAMING_EXPORT OutputSetup : public QDialog
{
    Q_OBJECT
public:
    OutputSetup(QWidget* parent, OutputInterface* host);
    ~OutputSetup() override;

    int exec() override;
    void reloadPresets();
    // Rebuilds outputInfos() from the configured rows in row order; true when there is one.
    bool validCheck();
    const QList<OutputInfo>& outputInfos() const;
    void buildOutputs();

public slots:
    void accept() override;

private:
    std::unique_ptr<Ui::OutputSetup> ui;
    OutputInterface* host;
    QList<OutputWidget*> m_rows;
    QList<OutputInfo> m_outputInfos;
};
