#pragma once

#include "streaming_export.h"

#include <QString>
#include <QVariant>

// Receives every event of a chat provider as a tag and its data. The tags are those of
// ChatProvider (messageTag, failedTag, ...); an unknown tag is for another listener.
class STREAMING_EXPORT ChatListener
{
public:
    virtual ~ChatListener();
    virtual void chatEvent(const QString& tag, const QVariant& data) = 0;
};
