#pragma once

#include "setup/servicetables.h"

#include <QList>
#include <QString>

class Provider;
class QComboBox;
class ViewInterface;

// The services of the streaming dialog as providers and as the panel's service list.
// Two entries may share a name (the simple "Facebook" and the one that signs in), so
// entries are found by name and by whether the service signs in.
class ServiceList
{
public:
    // One provider per service, in list order, all holding `view`; the service table is read
    // afresh (deployment overrides). A service that signs in gets the account the store kept
    // for it back, without a request.
    QList<Provider*> create(ViewInterface* view);
    // Fills the list (signals blocked) with the providers create() gave: label and icon per
    // provider, the provider as item data, a separator after "Custom".
    void fill(QComboBox* list, const QList<Provider*>& providers) const;
    // Selects the entry the dialog starts with: "Custom", the last of the built-in entries.
    static void selectDefault(QComboBox* list);
    // The entry of a service by name; of two that share it, the one that signs in when
    // `signedIn`, the other otherwise. -1 when there is none.
    static int indexOf(const QComboBox* list, const QString& name, bool signedIn);
    // Whether the service has an account to sign in to (the authorise button shows).
    static bool signsIn(const Provider* provider);

private:
    QList<ServiceTables::Service> m_services;
};
