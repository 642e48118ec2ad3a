#include "setup/channelevents.h"

#include "provider/provider.h"
#include "setup/eventdialog.h"
#include "widgets/qmessageboxex.h"

namespace {

// The channel an action works on; a default one when the list is empty.
LiveChannel channelAt(const Provider* provider, int index)
{
    const QList<LiveChannel>& channels = provider->channels();
    return index >= 0 && index < channels.size() ? channels.at(index) : LiveChannel();
}

// The event behind a channel as the service listed it, or what the channel itself says.
EventInfo eventOf(const Provider* provider, const LiveChannel& channel)
{
    for (const EventInfo& event : provider->events())
        if (event.id == channel.id)
            return event;
    EventInfo event;
    event.id = channel.id;
    event.title = channel.name;
    event.description = channel.description;
    event.category = channel.category;
    return event;
}

bool validIndex(const Provider* provider, int index)
{
    return provider && index >= 0 && index < provider->channels().size();
}

} // namespace

ChannelEvents::Result ChannelEvents::add(QWidget* parent, Provider* provider, int channelIndex)
{
    if (!provider)
        return Result::Cancelled;
    EventDialog dialog(parent);
    dialog.enableUi(provider, false);
    if (dialog.exec() != QDialog::Accepted)
        return Result::Cancelled;
    return provider->createEvent(dialog.eventInfo(), channelAt(provider, channelIndex)) ? Result::Done
                                                                                         : Result::Failed;
}

ChannelEvents::Result ChannelEvents::edit(QWidget* parent, Provider* provider, int channelIndex)
{
    if (!validIndex(provider, channelIndex))
        return Result::Cancelled;
    const LiveChannel channel = channelAt(provider, channelIndex);
    EventDialog dialog(parent);
    dialog.enableUi(provider, true);
    dialog.setEvent(eventOf(provider, channel));
    if (dialog.exec() != QDialog::Accepted)
        return Result::Cancelled;
    return provider->updateEvent(dialog.eventInfo(), channel) ? Result::Done : Result::Failed;
}

ChannelEvents::Result ChannelEvents::remove(QWidget* parent, Provider* provider, int channelIndex)
{
    if (!validIndex(provider, channelIndex))
        return Result::Cancelled;
    if (QMessageBoxEx::question(parent, tr("Channel"), tr("Are you sure you want to remove this item?"),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        != QMessageBox::Yes)
        return Result::Cancelled;
    return provider->deleteEvent(channelAt(provider, channelIndex)) ? Result::Done : Result::Failed;
}
