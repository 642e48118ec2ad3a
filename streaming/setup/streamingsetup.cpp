#include "setup/streamingsetup.h"

#include "ui_basewidget.h"
#include "ui_streamingsetup.h"

#include "browser/cefmanager.h"
#include "codec/codectables.h"
#include "engine/quillonengine.h"
#include "interface/outputinterface.h"
#include "provider/hitbox.h"
#include "provider/savedaccount.h"
#include "provider/simpleprovider.h"
#include "provider/ustream.h"
#include "recording/encoderrows.h"
#include "recording/presetcontrols.h"
#include "recording/sourcelists.h"
#include "setup/authorizedialog.h"
#include "setup/bandwidthwidget.h"
#include "setup/channelevents.h"
#include "setup/customservers.h"
#include "setup/duplicatestreamcheck.h"
#include "setup/panelupdater.h"
#include "setup/servicelist.h"
#include "setup/servicetables.h"
#include "setup/streamingpresetjson.h"
#include "setup/webdialog.h"
#include "stores/filenamingdialog.h"
#include "stores/filetag.h"
#include "stores/folderchooser.h"
#include "stores/privatesettings.h"
#include "stores/streamingmanager.h"
#include "widgets/messagebox.h"
#include "widgets/splashwidget.h"

#include <QDesktopServices>
#include <QJsonArray>
#include <QLabel>
#include <QNetworkAccessManager>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSignalMapper>
#include <QStandardPaths>
#include <QTimer>
#include <QUuid>

namespace {

using SourceMap = QMap<int, int>;

const char settingsKey[] = "STREAMING";

// Signal-mapper ids: one bit per panel control, so one call can name several.
enum PanelId : int {
    ServiceId = 0x40,
    AuthorizeId = 0x80,
    RefreshId = 0x100, // no control: queued after an action to re-sync the authorize text
    SignUpId = 0x200,
    ServerId = 0x400,
    BestServerId = 0x800,
    CustomSelectId = 0x1000,
    CustomAddId = 0x2000,
    CustomRemoveId = 0x4000,
    CustomEditId = 0x8000,
    ChannelSelectId = 0x10000,
    ChannelAddId = 0x20000,
    ChannelRemoveId = 0x40000,
    ChannelEditId = 0x80000,
    SharingOpenId = 0x200000,
    PageSelectId = 0x400000,
    PageReloadId = 0x800000,
    StreamKeyId = 0x1000000,
};

const QColor busyColor(237, 110, 0);
constexpr int bandwidthLinger = 1500;

// Services that log in with a user name and password rather than a web page.
bool usesPasswordLogin(const Provider* provider)
{
    return qobject_cast<const Hitbox*>(provider) || qobject_cast<const UStream*>(provider);
}

// "ql.stream.key" maps each service to the last key pasted for it.
void rememberStreamKey(const QString& service, const QString& key)
{
    PrivateSettings store;
    QVariantMap keys = store.value(SimpleProvider::streamKeySetting).toMap();
    keys.insert(service, key);
    store.setValue(SimpleProvider::streamKeySetting, keys);
    store.sync();
}

// The caption column of the panel and the rows below it share one width: the widest text.
void alignCaptions(const QList<QLabel*>& labels)
{
    int width = 0;
    for (const QLabel* label : labels)
        width = qMax(width, label->sizeHint().width());
    for (QLabel* label : labels)
        label->setFixedWidth(width);
}

} // namespace

StreamingSetup::StreamingSetup(QWidget* parent, OutputInterface* host)
    : QDialog(parent), ui(new Ui::StreamingSetup), host(host)
{
    ui->setupUi(this);
    // The row's button asks the engine to start or stop the stream, as recording rows do, and
    // then tells the host (kind 0): the host expects the library to drive the encoder.
    m_rows = std::make_unique<EncoderRows>(ui->encoderList, host, 0);
    ui->tabWidget->removeTab(ui->tabWidget->indexOf(ui->tabPreset));
    if (QPushButton* close = ui->buttonBox->button(QDialogButtonBox::Close)) {
        close->setText(tr("Close"));
        close->setMinimumWidth(close->fontMetrics().horizontalAdvance(close->text()) + 20);
    }
    connect(ui->buttonBox, &QDialogButtonBox::clicked, this, &QDialog::close);
    Ui::BaseWidget* panel = ui->baseWidget->form();
    alignCaptions({panel->providerLabel, panel->pageLabel, panel->channelLabel, panel->serverLabel,
                   panel->customLabel, panel->streamUrlLabel, panel->streamKeyLabel, panel->sharingLabel,
                   ui->codecLabel, ui->videoSourceLabel, ui->audioSourceLabel, ui->presetNameLabel});

    settings = CodecTables::licenseModel();
    const QMap<int, QString>& containers = settings.containers();
    for (auto it = containers.cbegin(); it != containers.cend(); ++it)
        ui->containerList->addItem(it.value().toUpper(), it.key());

    const QString resolution = QStringLiteral("%1 x %2").arg(settings.maxWidth(), 4).arg(settings.maxHeight(), 4);
    const QString streams = QStringLiteral("%1").arg(settings.maxStreaming());
    ui->maxResolution->setText(resolution);
    ui->maxStreaming->setText(streams);
    ui->maxResolutionSave->setText(resolution);
    ui->maxStreamingSave->setText(streams);

    ui->saveGroup->setChecked(false);
    ui->folder->setText(FileTag::defaultFolder());
    ui->splitTimeList->setEnabled(false);
    SourceLists::fillSplitTimes(ui->splitTimeList);
    connect(ui->splitFile, &QCheckBox::toggled, ui->splitTimeList, &QWidget::setEnabled);

    connect(ui->browse, &QToolButton::clicked, this, &StreamingSetup::existingDirectory);
    connect(ui->namingEdit, &QToolButton::clicked, this, &StreamingSetup::showNamingEdit);
    ui->namingEdit->setToolTip(tr("Edit Naming"));

    networkManager = new QNetworkAccessManager(this);
    bandwidth = new BandwidthWidget(this);
    bandwidth->setFixedSize(BandwidthWidget::fixedWidth, BandwidthWidget::fixedHeight);
    bandwidth->setColor(busyColor);
    m_bandwidthWatch = new QTimer(this);
    m_bandwidthWatch->setInterval(200);
    connect(m_bandwidthWatch, &QTimer::timeout, this, [this] {
        if (bandwidth->isRunning())
            return;
        m_bandwidthWatch->stop();
        QTimer::singleShot(bandwidthLinger, bandwidth, &QWidget::hide);
    });
    splash = new SplashWidget(this);
    splash->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    splash->setFixedSize(100, 100);
    splash->setColor(busyColor);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        splash->move(screen->availableGeometry().center() - splash->rect().center());

    m_panel = std::make_unique<PanelUpdater>(ui->baseWidget);
    m_services = std::make_unique<ServiceList>();
    m_customServers = std::make_unique<CustomServers>(ui->baseWidget->form()->customSelect);

    ui->addPreset->setEnabled(false);
    ui->removePreset->setEnabled(false);
    initializeProvider();
    initializeUi();
}

StreamingSetup::~StreamingSetup()
{
    bandwidth->stop();
    delete webDialog;
    qDeleteAll(providers);
    providers.clear();
    delete ui;
}

void StreamingSetup::initializeProvider()
{
    // Nothing may point at the providers about to go: the service list, a running test.
    bandwidth->stop();
    {
        const QSignalBlocker blocker(ui->baseWidget->form()->providerSelect);
        ui->baseWidget->form()->providerSelect->clear();
    }
    qDeleteAll(providers);
    providers = m_services->create(this);
    if (m_mapper) // the panel is built already: it lists the new providers
        fillServiceList();
}

void StreamingSetup::initializeUi()
{
    // Public, so it may run again: everything it makes exists once, every list is refilled.
    if (!webDialog) {
        webDialog = new WebDialog(nullptr);
        webDialog->setModal(true);
    }
    const ProjectPreset project = QuillonEngine::projectPreset();
    for (QComboBox* list : {ui->videoSourceList, ui->audioSourceList}) {
        const QSignalBlocker blocker(list);
        list->clear();
        SourceLists::addProgramme(list, project.deviceInfo().programOutputs);
        if (settings.audioBusEnabled())
            SourceLists::addBuses(list, project.processing().busAEnabled, project.processing().busBEnabled);
    }
    ui->codecList->initialize(CodecTables::UsageStreaming, LicenseModel::usageStreaming,
                              settings.availableAudioMask());
    ui->codecList->setCodecMask(settings.availableVideoMask(), settings.availableAudioMask());
    ui->addPreset->setEnabled(ui->codecList->count() > 0);

    m_customServers->fill();
    if (!m_mapper) {
        connect(ui->addPreset, &QToolButton::clicked, this, &StreamingSetup::updatePreset);
        connect(ui->removePreset, &QToolButton::clicked, this, &StreamingSetup::updatePreset);
        connect(ui->encoderList, &QListWidget::currentRowChanged, this, &StreamingSetup::updatePreset);
        connect(ui->encoderList, &QListWidget::itemDoubleClicked, this, &StreamingSetup::updatePreset);
        connect(ui->codecList, &EncoderListWidget::presetChanged, this, &StreamingSetup::updatePreset);
        connect(bandwidth, &BandwidthWidget::bestServerChanged, ui->baseWidget->form()->serverSelect,
                &QComboBox::setCurrentText, Qt::QueuedConnection);
        connect(ui->videoSourceList, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &StreamingSetup::videoSourceChange);
        mapPanelControls();
    }
    fillServiceList();

    ui->addPreset->setText(tr("Add Presets"));
    ui->addPreset->setToolTip(tr("Add Presets"));
    ui->removePreset->setText(tr("Remove Presets"));
    ui->removePreset->setToolTip(tr("Remove Presets"));
}

void StreamingSetup::fillServiceList()
{
    QComboBox* list = ui->baseWidget->form()->providerSelect;
    m_services->fill(list, providers);
    ServiceList::selectDefault(list);
    signalMapper(ServiceId);
}

void StreamingSetup::mapPanelControls()
{
    Ui::BaseWidget* f = ui->baseWidget->form();
    m_mapper = new QSignalMapper(this);
    const auto mapCombo = [this](QComboBox* combo, int id) {
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), m_mapper, qOverload<>(&QSignalMapper::map));
        m_mapper->setMapping(combo, id);
    };
    const auto mapButton = [this](QAbstractButton* button, int id) {
        connect(button, &QAbstractButton::clicked, m_mapper, qOverload<>(&QSignalMapper::map));
        m_mapper->setMapping(button, id);
    };
    mapCombo(f->providerSelect, ServiceId);
    mapButton(f->authorize, AuthorizeId);
    mapButton(f->signUp, SignUpId);
    mapCombo(f->serverSelect, ServerId);
    mapButton(f->serverBandwidth, BestServerId);
    mapCombo(f->customSelect, CustomSelectId);
    mapButton(f->customAdd, CustomAddId);
    mapButton(f->customRemove, CustomRemoveId);
    mapButton(f->customEdit, CustomEditId);
    mapCombo(f->channelSelect, ChannelSelectId);
    mapButton(f->channelAdd, ChannelAddId);
    mapButton(f->channelRemove, ChannelRemoveId);
    mapButton(f->channelEdit, ChannelEditId);
    mapButton(f->sharingUrlOpen, SharingOpenId);
    mapCombo(f->pageSelect, PageSelectId);
    mapButton(f->pageReload, PageReloadId);
    connect(f->streamKey, &QLineEdit::textEdited, m_mapper, qOverload<>(&QSignalMapper::map));
    m_mapper->setMapping(f->streamKey, StreamKeyId);
    connect(m_mapper, &QSignalMapper::mappedInt, this, &StreamingSetup::signalMapper);
}

Provider* StreamingSetup::provider() const
{
    return ui->baseWidget->form()->providerSelect->currentData().value<Provider*>();
}

void StreamingSetup::signalMapper(int id)
{
    Ui::BaseWidget* f = ui->baseWidget->form();
    Provider* current = provider();
    f->authorize->setText(current && current->isAuthorized() ? tr("Deauthorize") : tr("Authorize"));
    if (!current)
        return;

    switch (id) {
    case ServiceId:
        updateUi(false);
        break;
    case AuthorizeId:
        authorizeProvider(current);
        break;
    case SignUpId:
        QDesktopServices::openUrl(current->homeUrl());
        break;
    case ServerId:
        m_panel->applyServer(current);
        break;
    case BestServerId:
        bandwidthTest();
        break;
    case CustomSelectId:
        m_panel->applyCustomServer(current);
        break;
    case CustomAddId:
    case CustomRemoveId:
    case CustomEditId: {
        const bool changed = id == CustomAddId      ? m_customServers->add(this)
                           : id == CustomRemoveId ? m_customServers->remove(this)
                                                  : m_customServers->edit(this);
        if (changed)
            m_panel->applyCustomServer(current);
        break;
    }
    case ChannelSelectId:
        m_panel->applyChannel(current);
        break;
    case ChannelAddId:
    case ChannelRemoveId:
    case ChannelEditId: {
        const int index = f->channelSelect->currentIndex();
        const ChannelEvents::Result result = id == ChannelAddId ? ChannelEvents::add(this, current, index)
                                           : id == ChannelEditId ? ChannelEvents::edit(this, current, index)
                                                                 : ChannelEvents::remove(this, current, index);
        if (result == ChannelEvents::Result::Failed)
            errorMessage();
        else if (result == ChannelEvents::Result::Done)
            SavedAccount::sync(*current);
        // A new event may bring a stream, and with it servers, of its own.
        if (result != ChannelEvents::Result::Cancelled)
            updateUi(true);
        break;
    }
    case SharingOpenId:
        QDesktopServices::openUrl(QUrl(f->sharingUrlInput->text()));
        break;
    case PageSelectId: {
        const int index = f->pageSelect->currentIndex();
        if (index >= 0 && index < current->pages().size()) {
            current->setPageId(current->pages().at(index).id);
            current->setPageToken(current->pages().at(index).accessToken);
            reloadChannels(current);
        }
        break;
    }
    case PageReloadId:
        reloadChannels(current);
        break;
    case StreamKeyId:
        current->setStreamKey(f->streamKey->text());
        rememberStreamKey(current->name(), f->streamKey->text());
        break;
    default:
        break;
    }
}

void StreamingSetup::authorizeProvider(Provider* current)
{
    if (current->isAuthorized()) {
        setBusy(true);
        const bool revoked = current->revoke();
        setBusy(false);
        if (!revoked) {
            errorMessage();
            // A token that expired can no longer be given back, but the operator still wants it gone.
            if (MessageBox::question(this, tr("Streaming"),
                                     tr("The service did not take the sign-in back. Forget it on this computer anyway?"),
                                     QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                == QMessageBox::Yes) {
                current->setAccessToken(QString());
                current->setLoggedIn(false);
            }
        }
        // Once it is forgotten, the service's web session goes too: the next sign-in asks for the account again.
        if (!current->isAuthorized() && !usesPasswordLogin(current))
            CefManager::instance()->deleteCookies();
        SavedAccount::sync(*current); // forgotten once it is no longer signed in
        updateUi(true);
    } else if (usesPasswordLogin(current)) {
        AuthorizeDialog dialog(this);
        if (dialog.exec() != QDialog::Accepted)
            return;
        setBusy(true);
        const bool loggedIn = current->login(dialog.username(), dialog.password());
        setBusy(false);
        if (!loggedIn)
            errorMessage();
        else
            SavedAccount::sync(*current);
        updateUi(true);
    } else if (!current->authorize(QUrl())) {
        errorMessage();
    }
    // The text shows the state before this action; the queued call shows the new one.
    QMetaObject::invokeMethod(this, [this] { signalMapper(RefreshId); }, Qt::QueuedConnection);
}

void StreamingSetup::reloadChannels(Provider* current)
{
    setBusy(true);
    const bool loaded = current->loadChannels();
    setBusy(false);
    if (!loaded)
        errorMessage();
    else if (SavedAccount::isSignedIn(*current))
        SavedAccount::sync(*current);
    // What a failed load left is shown as it is: no list from before passes for the service's.
    updateUi(true);
}

void StreamingSetup::setBusy(bool busy)
{
    if (busy) {
        disableUi();
        splash->show();
        splash->start();
    } else {
        splash->stop();
        splash->hide();
        enableUi();
    }
}

void StreamingSetup::updateUi(bool keepSelection)
{
    m_panel->update(provider(), keepSelection);
}

void StreamingSetup::updateChannelUi()
{
    m_panel->updateChannels(provider());
}

void StreamingSetup::enableUi()
{
    ui->tabStreaming->setEnabled(true);
}

void StreamingSetup::disableUi()
{
    ui->tabStreaming->setEnabled(false);
}

void StreamingSetup::errorMessage()
{
    splash->stop();
    splash->hide();
    const Provider* current = provider();
    if (!current)
        return;
    const QStringList parts = current->lastError().split(QLatin1Char(','));
    if (parts.size() == 2)
        MessageBox::warning(this, parts.at(0), parts.at(1), QMessageBox::Ok);
}

QNetworkAccessManager* StreamingSetup::networkAccessManager()
{
    return networkManager;
}

void StreamingSetup::openWebAuthorize(const QUrl& url)
{
    disconnect(m_webConnection);
    m_webConnection = connect(webDialog, &WebDialog::urlChanged, this, &StreamingSetup::webAuthorizeUrlChange);
    webDialog->load(url);
    webDialog->show();
}

void StreamingSetup::closeWebAuthorize()
{
    disconnect(m_webConnection);
    webDialog->clear();
    webDialog->hide();
}

void StreamingSetup::bandwidthTest()
{
    bandwidth->start(provider());
    bandwidth->move(mapToGlobal(rect().center()) - bandwidth->rect().center());
    bandwidth->show();
    m_bandwidthWatch->start();
}

void StreamingSetup::debugMessage(const QString&, const QJsonArray&)
{
}

void StreamingSetup::debugMessage(const QString&, const QJsonObject&)
{
}

void StreamingSetup::debugMessage(const QString&, const QStringList&)
{
}

void StreamingSetup::webAuthorizeUrlChange(const QUrl& url)
{
    if (!url.isValid())
        return;
    Provider* current = provider();
    if (!current)
        return;
    splash->show();
    splash->start();
    if (!current->authorize(url)) {
        errorMessage();
        updateUi(false);
        QMetaObject::invokeMethod(this, [this] { signalMapper(RefreshId); }, Qt::QueuedConnection);
    } else if (current->isAuthorized()) {
        SavedAccount::sync(*current);
        enableUi();
        updateUi(false);
        const bool pageService = current->name() == ServiceTables::facebookName()
                              || current->name() == ServiceTables::dailyMotionName();
        if (pageService && (!current->pages().isEmpty() || !current->channels().isEmpty()))
            updateChannelUi();
        QMetaObject::invokeMethod(this, [this] { signalMapper(RefreshId); }, Qt::QueuedConnection);
    }
    splash->stop();
    splash->hide();
}

QList<CodecPreset> StreamingSetup::codecPresets() const
{
    return m_rows->presets();
}

bool StreamingSetup::encoding(bool on)
{
    return m_rows->setEncoding(on);
}

bool StreamingSetup::isEncoding() const
{
    return m_rows->isEncoding();
}

void StreamingSetup::reloadPresets()
{
    QComboBox* list = ui->baseWidget->form()->providerSelect;
    const int before = list->currentIndex();
    ServiceList::selectDefault(list);
    if (list->currentIndex() != before)
        signalMapper(ServiceId);
    ui->presetName->clear();
    loadSetting();
}

void StreamingSetup::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QListWidgetItem* item = ui->encoderList->currentItem()) {
        applyRow(EncoderRows::presetOf(item));
    } else {
        if (!lastFolder.isEmpty())
            ui->folder->setText(lastFolder);
        if (!lastFileTag.isEmpty())
            ui->fileTag->setText(lastFileTag);
    }
}

void StreamingSetup::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
}

void StreamingSetup::applyRow(const CodecPreset& preset)
{
    Ui::BaseWidget* f = ui->baseWidget->form();
    const CodecModel::Streaming& s = preset.streaming();
    // The simple entry and the one that signs in may share a name; a signed-in row names the latter.
    const int service = ServiceList::indexOf(f->providerSelect, s.provider, s.authorized);
    if (service >= 0)
        f->providerSelect->setCurrentIndex(service);
    m_panel->selectStored(provider(), s);
    SourceLists::selectSource(ui->videoSourceList, preset.videoSource());
    SourceLists::selectSource(ui->audioSourceList, preset.audioSource());
    ui->codecList->selectPreset(preset);
}

void StreamingSetup::updatePreset()
{
    const QObject* from = sender();
    if (from == ui->addPreset) {
        addPresetClicked();
    } else if (from == ui->removePreset) {
        removePresetClicked();
    } else if (from == ui->encoderList) {
        QListWidgetItem* item = ui->encoderList->currentItem();
        ui->removePreset->setEnabled(item != nullptr);
        if (item)
            applyRow(EncoderRows::presetOf(item));
    } else if (from == ui->codecList) {
        ui->addPreset->setEnabled(ui->codecList->count() > 0);
    }
}

void StreamingSetup::addPresetClicked()
{
    if (ui->encoderList->count() >= settings.maxStreaming()) {
        MessageBox::warning(this, tr("Preset"), tr("Check the maximum number of streams."));
        return;
    }
    const CodecModel::Streaming target = m_panel->target(provider());
    QList<CodecModel::Streaming> rows;
    for (const CodecPreset& preset : codecPresets())
        rows.append(preset.streaming());
    if (DuplicateStreamCheck::findDuplicate(target, rows) >= 0) {
        MessageBox::warning(this, tr("Streaming"), tr("Check the same streaming url!"));
        return;
    }
    CodecPreset preset = presetFromControls(nameOrUntitled());
    preset.setId(QUuid::createUuid().toString());
    preset.streaming() = target;
    lastFolder = ui->folder->text();
    lastFileTag = ui->fileTag->text();
    lastPresetName = ui->presetName->text();
    addRow(preset);
    ui->encoderList->setCurrentRow(ui->encoderList->count() - 1);
    saveSetting();
}

void StreamingSetup::removePresetClicked()
{
    if (m_rows->removeCurrent(this, tr("Preset"), tr("Please try again after streaming is finished."),
                              tr("Are you sure you want to remove this item?")))
        saveSetting();
}

QString StreamingSetup::nameOrUntitled() const
{
    const QString name = ui->presetName->text();
    return name.isEmpty() ? tr("Untitled") : name;
}

CodecPreset StreamingSetup::presetFromControls(const QString& name) const
{
    const PresetControls controls{ui->codecList, ui->videoSourceList, ui->audioSourceList, ui->containerList,
                                  ui->folder,    ui->fileTag,         ui->splitFile,       ui->splitTimeList};
    CodecPreset preset = controls.preset(name);
    preset.local().enabled = ui->saveGroup->isChecked();
    preset.streaming().enabled = true;
    return preset;
}

void StreamingSetup::addRow(const CodecPreset& preset)
{
    QListWidgetItem* item = m_rows->add(preset);
    item->setData(Qt::UserRole + 1, preset.streaming().provider);
}

void StreamingSetup::videoSourceChange()
{
    SourceLists::selectSource(ui->audioSourceList, ui->videoSourceList->currentData().value<SourceMap>());
}

void StreamingSetup::existingDirectory()
{
    FolderChooser::choose(this, ui->folder, FileTag::defaultFolder());
}

void StreamingSetup::showNamingEdit()
{
    CodecPreset preset = presetFromControls(nameOrUntitled());
    preset.local().enabled = true;
    preset.streaming().enabled = false;
    FileNamingDialog dialog(this, &preset, nullptr);
    if (dialog.exec() == QDialog::Accepted)
        ui->fileTag->setText(dialog.fileTag());
}

void StreamingSetup::loadSetting()
{
    ui->encoderList->clear();
    if (!host)
        return;
    const QJsonArray array = host->settings().value(QLatin1String(settingsKey)).toArray();
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isObject()) {
            qCWarning(lcStreamingSetup) << "entry" << i << "of" << settingsKey << "is not an object; skipped";
            continue;
        }
        addRow(StreamingPresetJson::fromJson(array.at(i).toObject()));
    }
    if (ui->encoderList->count() > 0)
        ui->encoderList->setCurrentRow(0);
}

void StreamingSetup::saveSetting()
{
    if (!host)
        return;
    QJsonArray array;
    for (const CodecPreset& preset : codecPresets())
        array.append(StreamingPresetJson::toJson(preset));
    host->setSettings(QLatin1String(settingsKey), array);
}

void StreamingSetup::removeSetting()
{
    if (host)
        host->setSettings(QLatin1String(settingsKey), QJsonArray());
}
