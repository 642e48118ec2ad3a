#pragma once

#include "streaming_export.h"

#include <QString>
#include <QStringList>

struct ChatDesc;

// A chat message as rich text for a QTextDocument: the author in the user's colour after
// the badges, then the text with the emotes shown as images. Everything that came from
// the service is escaped, so a message shows as the text it is, never as markup. Images
// are named by their http(s) address; the view supplies them as document resources.
class STREAMING_EXPORT ChatHtml
{
public:
    static constexpr int badgeSize = 18;
    static constexpr int emoteSize = 28;
    static constexpr int pictureSize = 24;
    // The colour of an author whose colour is none.
    static const QString fallbackColor;

    static QString render(const ChatDesc& message);
    // The image addresses render() refers to.
    static QStringList imageUrls(const ChatDesc& message);
    // "#RRGGBB" (or "#RGB").
    static bool isColor(const QString& text);
};
