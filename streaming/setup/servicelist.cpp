#include "setup/servicelist.h"

#include "provider/custom.h"
#include "provider/facebook.h"
#include "provider/hitbox.h"
#include "provider/savedaccount.h"
#include "provider/simpleprovider.h"
#include "provider/twitch.h"
#include "provider/youtube.h"
#include "setup/panelupdater.h"

#include <QComboBox>
#include <QIcon>
#include <QSignalBlocker>

QList<Provider*> ServiceList::create(ViewInterface* view)
{
    m_services = ServiceTables::services();
    QList<Provider*> providers;
    for (const ServiceTables::Service& service : qAsConst(m_services)) {
        Provider* provider = nullptr;
        switch (service.kind) {
        case ServiceTables::Kind::Hitbox:
            provider = new Hitbox(view);
            break;
        case ServiceTables::Kind::YouTube:
            provider = new YouTube(view);
            break;
        case ServiceTables::Kind::Facebook:
            provider = new Facebook(view);
            break;
        case ServiceTables::Kind::Twitch:
            provider = new Twitch(view);
            break;
        case ServiceTables::Kind::Custom:
            provider = new Custom(view);
            break;
        case ServiceTables::Kind::Simple:
            provider = new SimpleProvider(view, service.features, service.name, service.homeUrl, service.streamUrl,
                                          service.servers);
            break;
        }
        // The simple entry named like a service that signs in never takes its account.
        if (signsIn(provider))
            SavedAccount::restore(provider);
        providers.append(provider);
    }
    return providers;
}

void ServiceList::fill(QComboBox* list, const QList<Provider*>& providers) const
{
    const QSignalBlocker blocker(list);
    list->clear();
    for (int i = 0; i < providers.size(); ++i) {
        Provider* provider = providers.at(i);
        const ServiceTables::Service service = m_services.value(i);
        const QIcon icon = provider->icon().isNull() ? QIcon(service.icon) : QIcon(provider->icon());
        list->addItem(icon, service.label.isEmpty() ? provider->name() : service.label, QVariant::fromValue(provider));
        if (provider->name() == ServiceTables::customName())
            list->insertSeparator(list->count());
    }
}

void ServiceList::selectDefault(QComboBox* list)
{
    const QSignalBlocker blocker(list);
    list->setCurrentIndex(indexOf(list, ServiceTables::customName(), false));
}

int ServiceList::indexOf(const QComboBox* list, const QString& name, bool signedIn)
{
    int found = -1;
    for (int i = 0; i < list->count(); ++i) {
        const Provider* provider = list->itemData(i).value<Provider*>();
        if (!provider || provider->name() != name)
            continue;
        if (signsIn(provider) == signedIn)
            return i;
        if (found < 0)
            found = i;
    }
    return found;
}

bool ServiceList::signsIn(const Provider* provider)
{
    return provider && provider->name() != ServiceTables::customName()
           && (provider->features() & PanelUpdater::AuthorizeButton);
}
