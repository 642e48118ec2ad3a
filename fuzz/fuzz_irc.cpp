// The bytes of a Twitch chat connection, however the reads cut them: lines, their parts,
// the chat messages among them, and each message as the chat view shows it. The emotes a
// message reports must lie inside its text, in order and apart, as the view relies on.

#include "chat/chathtml.h"
#include "chat/irclinereader.h"
#include "chat/twitchmessage.h"
#include "stores/chatdesc.h"

#include "fuzzsupport.h"

#include <cstdlib>

namespace {

void check(const TwitchMessage& message)
{
    int end = 0;
    for (const TwitchEmote& emote : message.emotes)
        if (emote.begin < end || emote.length <= 0 || emote.begin + emote.length > message.text.size()
            || emote.idLength <= 0 || emote.idLength > TwitchEmote::maxIdLength)
            std::abort();
        else
            end = emote.begin + emote.length;
}

ChatDesc shown(const TwitchMessage& message)
{
    ChatDesc desc;
    desc.author = message.displayName;
    desc.message = message.text;
    desc.color = TwitchMessage::colorName(message.color);
    desc.badges = TwitchMessage::badgeNames(message.badges);
    QVariantList emotes;
    for (const TwitchEmote& emote : message.emotes)
        emotes.append(QVariantMap{{QStringLiteral("begin"), emote.begin},
                                  {QStringLiteral("length"), emote.length},
                                  {QStringLiteral("url"), QStringLiteral("https://emotes.invalid/%1").arg(emote.id())}});
    desc.attributes.insert(QStringLiteral("emotes"), emotes);
    desc.attributes.insert(QStringLiteral("action"), message.action);
    return desc;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false); // a chat record holds a picture
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The first byte picks the size of the reads the socket delivers.
    if (size == 0)
        return 0;
    const std::size_t chunk = 1 + data[0] * 37u;
    const char* bytes = reinterpret_cast<const char*>(data + 1);
    const std::size_t length = size - 1;

    IrcLineReader reader;
    TwitchMessage message; // reused line after line, as the chat does
    for (std::size_t at = 0; at < length; at += chunk) {
        reader.feed(bytes + at, std::min(chunk, length - at), [&message](std::string_view line) {
            if (line.size() > IrcLineReader::maxLineLength)
                std::abort();
            const IrcLine parts = IrcLine::split(line);
            parts.nick();
            if (TwitchMessage::parse(parts, &message)) {
                check(message);
                ChatHtml::render(shown(message));
            }
        });
        if (reader.pendingSize() > IrcLineReader::maxLineLength + 1)
            std::abort();
    }
    return 0;
}
