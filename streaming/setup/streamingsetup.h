#pragma once

#include "provider/viewinterface.h"
#include "records/codecpreset.h"
#include "records/licensemodel.h"
#include "streaming_export.h"

#include <QDialog>
#include <QList>
#include <QMetaObject>
#include <QString>

#include <memory>

class BandwidthWidget;
class CustomServers;
class EncoderRows;
class OutputInterface;
class PanelUpdater;
class ServiceList;
class Provider;
class QNetworkAccessManager;
class QSignalMapper;
class QTimer;
class SplashWidget;
class WebDialog;

namespace Ui {
class StreamingSetup;
}

// The live-streaming outputs of the programme: a list of presets, each streaming to a
// service or a server of the user's own, with an on/off button per row. The host keeps
// the dialog, calls reloadPresets() after constructing it and starts or stops all
// streams through encoding(). The rows live under "STREAMING" in the host's setup
// object. Providers reach the user interface through the ViewInterface it implements.
class STREAMING_EXPORT StreamingSetup : public QDialog, public ViewInterface
{
    Q_OBJECT
public:
    StreamingSetup(QWidget* parent, OutputInterface* host);
    ~StreamingSetup() override;

    void initializeProvider();
    void initializeUi();
    QList<CodecPreset> codecPresets() const;
    // Checks or unchecks every row's button; false when asked to start an empty list.
    bool encoding(bool on);
    bool isEncoding() const;
    void reloadPresets();

    QNetworkAccessManager* networkAccessManager() override;
    void openWebAuthorize(const QUrl& url) override;
    void closeWebAuthorize() override;
    void bandwidthTest() override;
    void debugMessage(const QString& tag, const QJsonArray& data) override;
    void debugMessage(const QString& tag, const QJsonObject& data) override;
    void debugMessage(const QString& tag, const QStringList& data) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void updatePreset();
    void signalMapper(int id);
    void videoSourceChange();
    void webAuthorizeUrlChange(const QUrl& url);
    void existingDirectory();
    void showNamingEdit();
    void errorMessage();
    void enableUi();
    void disableUi();

private:
    void loadSetting();
    void saveSetting();
    void removeSetting();
    void updateUi(bool keepSelection);
    void updateChannelUi();
    Provider* provider() const;

    void fillServiceList();
    void mapPanelControls();
    void authorizeProvider(Provider* provider);
    void reloadChannels(Provider* provider);
    void addPresetClicked();
    void removePresetClicked();
    void addRow(const CodecPreset& preset);
    void applyRow(const CodecPreset& preset);
    CodecPreset presetFromControls(const QString& name) const;
    QString nameOrUntitled() const;
    void setBusy(bool busy);

    Ui::StreamingSetup* ui = nullptr;
    SplashWidget* splash = nullptr;
    BandwidthWidget* bandwidth = nullptr;
    WebDialog* webDialog = nullptr;
    QNetworkAccessManager* networkManager = nullptr;
    QList<Provider*> providers;
    LicenseModel settings;
    QString lastFolder;
    QString lastFileTag;
    QString lastPresetName;
    OutputInterface* host = nullptr;

    QSignalMapper* m_mapper = nullptr;
    QTimer* m_bandwidthWatch = nullptr;
    QMetaObject::Connection m_webConnection;
    std::unique_ptr<ServiceList> m_services;
    std::unique_ptr<PanelUpdater> m_panel;
    std::unique_ptr<CustomServers> m_customServers;
    std::unique_ptr<EncoderRows> m_rows;
};
