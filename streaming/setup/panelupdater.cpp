#include "setup/panelupdater.h"

#include "provider/provider.h"
#include "setup/basewidget.h"
#include "setup/ingestaddress.h"
#include "setup/servicetables.h"
#include "ui_basewidget.h"

#include <QSignalBlocker>


namespace {

bool isCustom(const Provider* provider)
{
    return provider->name() == ServiceTables::customName();
}

void selectText(QComboBox* list, const QString& text)
{
    const int index = text.isEmpty() ? -1 : list->findText(text);
    list->setCurrentIndex(index >= 0 ? index : (list->count() > 0 ? 0 : -1));
}

} // namespace

PanelUpdater::PanelUpdater(BaseWidget* panel)
    : m_panel(panel)
{
}

QString PanelUpdater::accountText(const Provider* provider)
{
    return provider ? provider->accessToken() : QString();
}

bool PanelUpdater::rowWanted(Feature feature, const Provider* provider)
{
    if (!provider || !(provider->features() & feature))
        return false;
    switch (feature) {
    case ServerRow:
        return !provider->servers().isEmpty();
    case ChannelRow:
    case SharingRow:
        return !accountText(provider).isEmpty();
    case PageRow:
        return !provider->pages().isEmpty();
    default:
        return true;
    }
}

void PanelUpdater::update(Provider* provider, bool keepSelection)
{
    Ui::BaseWidget* f = m_panel->form();
    if (!provider)
        return;
    const quint32 features = provider->features();
    const bool custom = isCustom(provider);
    const bool facebook = provider->name() == ServiceTables::facebookName();

    f->serverContainer->setVisible(!custom && rowWanted(ServerRow, provider));
    f->channelContainer->setVisible(!custom && rowWanted(ChannelRow, provider));
    f->sharingContainer->setVisible(!custom && rowWanted(SharingRow, provider));
    f->pageContainer->setVisible(!custom && rowWanted(PageRow, provider));
    f->customContainer->setVisible(custom);
    // The secure ingest of the simple Facebook entry is worth seeing: it has no server row.
    f->streamUrlContainer->setVisible(custom || (features & StreamUrlRow)
                                      || (facebook && !provider->streamUrl().isEmpty()));
    f->streamKeyContainer->setVisible(!custom && (features & StreamKeyRow));
    f->authorize->setVisible(!custom && (features & AuthorizeButton));
    f->signUp->setVisible(!custom && (features & SignUpButton) && provider->homeUrl().isValid());
    f->serverBandwidth->setVisible(features & BestServerButton);
    f->serverSelect->setEnabled(features & ServerChoice);
    for (QWidget* button : {static_cast<QWidget*>(f->channelAdd), static_cast<QWidget*>(f->channelRemove),
                            static_cast<QWidget*>(f->channelEdit)})
        button->setVisible(features & ChannelEditing);

    if (!custom) {
        {
            const QSignalBlocker blocker(f->serverSelect);
            const QString previous = keepSelection ? f->serverSelect->currentText() : QString();
            f->serverSelect->clear();
            for (const LabelPair& server : provider->servers())
                f->serverSelect->addItem(server.first, server.second);
            selectText(f->serverSelect, previous);
        }
        {
            const QSignalBlocker blocker(f->streamKey);
            f->streamKey->setText(provider->streamKey());
        }
        updateChannels(provider, keepSelection);
        applyServer(provider);
    }
    if (custom)
        applyCustomServer(provider);
    showTarget(provider);
}

void PanelUpdater::updateChannels(Provider* provider, bool keepSelection)
{
    Ui::BaseWidget* f = m_panel->form();
    if (!provider)
        return;
    {
        const QSignalBlocker blocker(f->pageSelect);
        const QString previous = keepSelection ? f->pageSelect->currentText() : QString();
        f->pageSelect->clear();
        for (const PageInfo& page : provider->pages())
            f->pageSelect->addItem(page.name, page.id);
        selectText(f->pageSelect, previous);
        // New events go to the page shown.
        const int page = f->pageSelect->currentIndex();
        if (page >= 0 && page < provider->pages().size()) {
            provider->setPageId(provider->pages().at(page).id);
            provider->setPageToken(provider->pages().at(page).accessToken);
        }
    }
    {
        const QSignalBlocker blocker(f->channelSelect);
        const QString previous = keepSelection ? f->channelSelect->currentText() : QString();
        f->channelSelect->clear();
        for (const LiveChannel& channel : provider->channels())
            f->channelSelect->addItem(channel.name, channel.id);
        selectText(f->channelSelect, previous);
    }
    f->channelContainer->setVisible(!isCustom(provider) && rowWanted(ChannelRow, provider));
    f->pageContainer->setVisible(!isCustom(provider) && rowWanted(PageRow, provider));
    applyChannel(provider);
}

void PanelUpdater::applyServer(Provider* provider)
{
    const QString server = m_panel->form()->serverSelect->currentData().toString();
    if (provider)
        provider->setStreamUrl(IngestAddress::chosen(server, provider->streamUrl()));
    showTarget(provider);
}

void PanelUpdater::applyChannel(Provider* provider)
{
    Ui::BaseWidget* f = m_panel->form();
    if (!provider)
        return;
    const int index = f->channelSelect->currentIndex();
    const QList<LiveChannel>& channels = provider->channels();
    if (index < 0 || index >= channels.size()) {
        f->sharingUrlInput->clear();
        return;
    }
    const LiveChannel& channel = channels.at(index);
    provider->setStreamUrl(channel.streamUrl);
    provider->setStreamKey(channel.streamKey);
    f->sharingUrlInput->setText(channel.watchUrl);
    applyServer(provider);
}

void PanelUpdater::applyCustomServer(Provider* provider)
{
    Channel channel;
    OAuth oauth;
    if (!provider)
        return;
    if (customServer(&channel, &oauth)) {
        provider->setStreamUrl(channel.url);
        provider->setStreamKey(channel.key);
    } else {
        provider->setStreamUrl(QString());
        provider->setStreamKey(QString());
    }
    showTarget(provider);
}

void PanelUpdater::selectStored(Provider* provider, const CodecModel::Streaming& stored)
{
    Ui::BaseWidget* f = m_panel->form();
    {
        const QSignalBlocker servers(f->serverSelect);
        const QSignalBlocker customs(f->customSelect);
        const QSignalBlocker pages(f->pageSelect);
        const QSignalBlocker channels(f->channelSelect);
        f->serverSelect->setCurrentText(stored.serverName);
        if (provider && isCustom(provider))
            f->customSelect->setCurrentText(stored.serverName);
        f->pageSelect->setCurrentText(stored.pageName);
        f->channelSelect->setCurrentText(stored.channelName);
    }
    if (!provider)
        return;
    if (isCustom(provider)) {
        applyCustomServer(provider);
        return;
    }
    const int page = f->pageSelect->currentIndex();
    if (page >= 0 && page < provider->pages().size()) {
        provider->setPageId(provider->pages().at(page).id);
        provider->setPageToken(provider->pages().at(page).accessToken);
    }
    applyChannel(provider);
    applyServer(provider);
}

bool PanelUpdater::customServer(Channel* channel, OAuth* oauth) const
{
    const QComboBox* list = m_panel->form()->customSelect;
    const int index = list->currentIndex();
    if (index < 0)
        return false;
    *channel = list->itemData(index, Qt::UserRole + 1).value<Channel>();
    *oauth = list->itemData(index, Qt::UserRole + 2).value<OAuth>();
    return true;
}

void PanelUpdater::showTarget(const Provider* provider)
{
    m_panel->form()->streamUrl->setText(provider ? provider->streamUrl() : QString());
}

CodecModel::Streaming PanelUpdater::target(const Provider* provider) const
{
    const Ui::BaseWidget* f = m_panel->form();
    CodecModel::Streaming s;
    s.enabled = true;
    if (!provider)
        return s;
    s.provider = provider->name();
    s.url = provider->streamUrl();
    s.key = provider->streamKey();
    Channel channel;
    OAuth oauth;
    if (isCustom(provider) && customServer(&channel, &oauth)) {
        s.serverName = f->customSelect->currentText();
        s.authorized = oauth.authorized;
        s.username = oauth.username;
        s.password = oauth.password;
        s.mode = channel.mode;
        s.filter = channel.filter;
        s.port = channel.port;
        s.latency = channel.latency;
        s.keyLength = channel.keyLength;
        s.passphrase = channel.passphrase;
        s.streamId = channel.streamId;
        return s;
    }
    if (!provider->servers().isEmpty())
        s.serverName = f->serverSelect->currentText();
    if (!provider->pages().isEmpty())
        s.pageName = f->pageSelect->currentText();
    if (!provider->channels().isEmpty())
        s.channelName = f->channelSelect->currentText();
    s.authorized = provider->isAuthorized();
    s.username = provider->username();
    s.password = provider->password();
    return s;
}
