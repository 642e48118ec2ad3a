#pragma once

#include "stores/channel.h"
#include "stores/oauth.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QComboBox;
class QWidget;

// The user's own servers as the panel lists them: each item of the list carries
// its Channel under Qt::UserRole + 1 and its OAuth under Qt::UserRole + 2, and
// every add, edit and removal goes to the server store at once. The list changes
// with its signals blocked: the caller applies the new selection.
class CustomServers
{
    Q_DECLARE_TR_FUNCTIONS(CustomServers)

public:
    explicit CustomServers(QComboBox* list);

    // Lists the stored servers, in the store's order.
    void fill();
    // Opens the server dialog empty; true when a server was added (and selected).
    bool add(QWidget* parent);
    // Asks first; true when the selected server was removed.
    bool remove(QWidget* parent);
    // Opens the server dialog on the selected server; true when it was stored.
    bool edit(QWidget* parent);

    // The title made unique in one pass over `existing`, in order: whenever an
    // entry equals the candidate, the candidate becomes "title 2", then "title 3"...
    static QString uniqueTitle(const QString& title, const QStringList& existing);

private:
    QStringList titles(int except = -1) const;
    // Writes the server, in place of the file of oldTitle when that is given.
    bool store(const Channel& channel, const OAuth& oauth, const QString& oldTitle = QString());
    void setItem(int index, const Channel& channel, const OAuth& oauth);

    QComboBox* m_list;
};
