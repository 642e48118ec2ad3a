#pragma once

#include "stores/snapshot.h"
#include "streaming_export.h"

#include <QDialog>
#include <QList>
#include <QString>

class OutputInterface;
class QListWidgetItem;

namespace Ui {
class ImageSetup;
}

// The still-image grab presets: which picture, which image format, which folder, which
// file-name template and which still bin. The host reads presets() when it grabs; the
// presets live under "GRAB" in its setup object.
class STREAMING_EXPORT ImageSetup : public QDialog
{
    Q_OBJECT
public:
    ImageSetup(QWidget* parent, OutputInterface* host);
    ~ImageSetup() override;

    QList<Snapshot> presets() const;
    void reloadPresets();

    // The grab's file tag expanded (date, time, name, source).
    static QString tagFromName(const Snapshot& shot, bool withExtension);
    // The next free image path in the grab's directory ("name.png", "name 2.png", ...);
    // its directory is created when missing.
    static QString localPath(const Snapshot& shot);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void updatePreset();
    void existingDirectory();
    void showNamingEdit();

private:
    void initializeUi();
    void loadSetting();
    void saveSetting();
    void removeSetting();

    void addPresetClicked();
    void removePresetClicked();
    void addRow(const Snapshot& shot);
    void applySnapshot(const Snapshot& shot);
    Snapshot snapshotFromControls(const QString& name) const;
    QString nameOrUntitled() const;

    Ui::ImageSetup* ui;
    OutputInterface* host;
};
