#pragma once

#include "chat/ircline.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <string_view>

// An emote in a message: `length` UTF-16 units of the text from `begin` show its image.
// The id is kept in place (no allocation): ids are short words.
struct TwitchEmote {
    static constexpr int maxIdLength = 64;

    int begin = 0;
    int length = 0;
    int idLength = 0;
    char idBytes[maxIdLength];

    QString id() const { return QString::fromLatin1(idBytes, idLength); }
};
Q_DECLARE_TYPEINFO(TwitchEmote, Q_PRIMITIVE_TYPE);

// One Twitch chat message (a PRIVMSG line) as the chat shows it. Reading it is a pure
// function of the line's bytes, the part of the chat that runs for every line.
struct TwitchMessage {
    // In the chat's badge order.
    enum Badge { Admin = 0x1, Broadcaster = 0x2, GlobalMod = 0x4, Mod = 0x8, Staff = 0x10, Subscriber = 0x20, Turbo = 0x40 };
    // More emotes than this in one message are left as text.
    static constexpr int maxEmotes = 100;

    QString displayName; // "display-name", else the sender's nick
    int color = -1;      // "color" as 0xRRGGBB when it is "#RRGGBB"; -1 otherwise
    QString channel;     // without the '#'
    QString text;        // without the "/me" wrapper
    QByteArray id;       // "id": the message's id
    int badges = 0;
    bool action = false; // sent with "/me"
    QVector<TwitchEmote> emotes; // in text order, inside the text, not overlapping

    // Reads a PRIVMSG line; false for any other command. The content never makes it fail:
    // a tag without "=", a colour that is none, emote ranges outside the text, reversed or
    // overlapping, and emote ids that are not plain words are left out.
    static bool parse(const IrcLine& line, TwitchMessage* message);
    static bool parse(std::string_view line, TwitchMessage* message) { return parse(IrcLine::split(line), message); }

    // "#RRGGBB", or empty for no colour.
    static QString colorName(int color);
    // "admin", "broadcaster", "global_mod", "mod", "staff", "subscriber", "turbo".
    static const QStringList& allBadgeNames();
    static QStringList badgeNames(int badges);
};
