#include "setup/customservers.h"

#include "provider/provider.h"
#include "setup/serverdialog.h"
#include "setup/servicetables.h"
#include "stores/streamingmanager.h"
#include "widgets/qmessageboxex.h"

#include <QComboBox>
#include <QSignalBlocker>


CustomServers::CustomServers(QComboBox* list)
    : m_list(list)
{
}

void CustomServers::fill()
{
    m_list->clear();
    StreamingManager* manager = StreamingManager::getInstancePtr();
    if (!manager) {
        qCWarning(lcStreamingSetup) << "no server store: the custom server list stays empty";
        return;
    }
    manager->reloadPresets();
    // The store's order: the one-pass unique title rule depends on it.
    const QSignalBlocker blocker(m_list);
    for (const ServerInfo& server : manager->serverInfos()) {
        m_list->addItem(server.channel.title);
        setItem(m_list->count() - 1, server.channel, server.oauth);
    }
}

QString CustomServers::uniqueTitle(const QString& title, const QStringList& existing)
{
    QString candidate = title;
    int counter = 2;
    for (const QString& text : existing)
        if (text == candidate)
            candidate = QStringLiteral("%1 %2").arg(title).arg(counter++);
    return candidate;
}

bool CustomServers::add(QWidget* parent)
{
    ServerDialog dialog(parent);
    if (dialog.exec(nullptr, nullptr) != QDialog::Accepted)
        return false;
    Channel channel = dialog.channel();
    channel.title = uniqueTitle(channel.title, titles());
    channel.provider = ServiceTables::customName();
    if (!store(channel, dialog.oauth()))
        return false;
    const QSignalBlocker blocker(m_list);
    m_list->addItem(channel.title);
    setItem(m_list->count() - 1, channel, dialog.oauth());
    m_list->setCurrentIndex(m_list->count() - 1);
    return true;
}

bool CustomServers::remove(QWidget* parent)
{
    const int index = m_list->currentIndex();
    if (index < 0)
        return false;
    if (QMessageBoxEx::question(parent, tr("Server"), tr("Are you sure you want to remove this item?"),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        != QMessageBox::Yes)
        return false;
    const QString title = m_list->itemData(index, Qt::UserRole + 1).value<Channel>().title;
    if (StreamingManager* manager = StreamingManager::getInstancePtr()) {
        manager->remove(title);
        manager->reloadPresets();
    }
    const QSignalBlocker blocker(m_list);
    m_list->removeItem(index);
    return true;
}

bool CustomServers::edit(QWidget* parent)
{
    const int index = m_list->currentIndex();
    if (index < 0)
        return false;
    const Channel before = m_list->itemData(index, Qt::UserRole + 1).value<Channel>();
    const OAuth oauth = m_list->itemData(index, Qt::UserRole + 2).value<OAuth>();
    ServerDialog dialog(parent);
    if (dialog.exec(&before, &oauth) != QDialog::Accepted)
        return false;
    Channel channel = dialog.channel();
    channel.id = before.id;
    channel.provider = ServiceTables::customName();
    channel.title = uniqueTitle(channel.title, titles(index));
    // A renamed server replaces its old file: no second server, and none lost in a crash.
    if (!store(channel, dialog.oauth(), before.title))
        return false;
    m_list->setItemText(index, channel.title);
    setItem(index, channel, dialog.oauth());
    return true;
}

QStringList CustomServers::titles(int except) const
{
    QStringList list;
    for (int i = 0; i < m_list->count(); ++i)
        if (i != except)
            list.append(m_list->itemText(i));
    return list;
}

bool CustomServers::store(const Channel& channel, const OAuth& oauth, const QString& oldTitle)
{
    StreamingManager* manager = StreamingManager::getInstancePtr();
    if (!manager) {
        qCWarning(lcStreamingSetup) << "no server store: server" << channel.title << "not saved";
        return false;
    }
    if (!manager->replace(oldTitle.isNull() ? channel.title : oldTitle, channel, oauth)) {
        qCWarning(lcStreamingSetup) << "server" << channel.title << "could not be saved";
        return false;
    }
    manager->reloadPresets();
    return true;
}

void CustomServers::setItem(int index, const Channel& channel, const OAuth& oauth)
{
    m_list->setItemData(index, QVariant::fromValue(channel), Qt::UserRole + 1);
    m_list->setItemData(index, QVariant::fromValue(oauth), Qt::UserRole + 2);
}
