#pragma once

#include "records/codecpreset.h"
#include "streaming_export.h"

#include <QDialog>
#include <QList>
#include <QPair>
#include <QString>

class Media;
class QJsonValue;
class OutputInterface;

namespace Ui {
class IsoCorderSetup;
}

// Chooses the sources recorded each to a file of its own ("ISO"), with one codec, container,
// folder, name template and split interval for all of them, and a media bin per source. The
// host hands it the sources, runs exec() and afterwards reads codecPreset() and sources() to
// start its own recordings; the dialog starts nothing. Kept under "ISOCORDER".
class STREAMING_EXPORT IsoCorderSetup : public QDialog
{
    Q_OBJECT
public:
    using Source = QPair<QString, Media*>;

    IsoCorderSetup(QWidget* parent, OutputInterface* host);
    ~IsoCorderSetup() override;

    // Every opening starts from the stored settings; OK stores them, Cancel restores them.
    int exec() override;
    void accept() override;
    void reject() override;
    void reloadPresets();

    // One row per source, in order; the media objects stay the host's.
    void setSources(const QList<Source>& sources);
    // The selected rows' sources, in the list's selected-items order.
    QList<Source> sources() const;
    // At least one source selected: the host may start.
    bool validCheck() const;
    // The shared codec, container and file block as the controls show them.
    CodecPreset codecPreset() const;

protected:
    void hideEvent(QHideEvent* event) override;

private slots:
    void containerChange();
    void codecChange();
    void itemSelectionChange();
    void existingDirectory();
    void showNamingEdit();

private:
    void initializeUi();
    void rebuildVideoBitrate();
    void presetToUi(CodecPreset* preset);
    void loadSetting();
    void saveSetting();

    void selectStoredSources(const QJsonValue& stored);
    int videoPage() const;

    Ui::IsoCorderSetup* ui;
    OutputInterface* host;
    int m_videoMask = 0;
    int m_audioMask = 0;
    QString m_bitrateCodec; // the video codec the rate list was built for
    int m_bitrateMinimum = 0; // typed video bit rates are held to these; both 0 for a quality list
    int m_bitrateMaximum = 0;
    CodecPreset m_defaults; // what the controls showed before anything was stored
};
