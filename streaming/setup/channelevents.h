#pragma once

#include <QCoreApplication>

class Provider;
class QWidget;

// Adding, editing and removing the live events that some services list as their
// channels. Each action runs the provider's request; on Failed the provider's
// lastError says why.
class ChannelEvents
{
    Q_DECLARE_TR_FUNCTIONS(ChannelEvents)

public:
    enum class Result { Cancelled, Done, Failed };

    static Result add(QWidget* parent, Provider* provider, int channelIndex);
    static Result edit(QWidget* parent, Provider* provider, int channelIndex);
    // Asks first.
    static Result remove(QWidget* parent, Provider* provider, int channelIndex);
};
