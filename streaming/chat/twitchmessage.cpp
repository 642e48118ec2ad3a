#include "chat/twitchmessage.h"

#include <QVarLengthArray>

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t npos = std::string_view::npos;
constexpr std::size_t maxIdLength = 64;

const char* const badgeOrder[] = {"admin", "broadcaster", "global_mod", "mod", "staff", "subscriber", "turbo"};

QString utf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
}

// The next piece of `rest` up to `separator`; `rest` loses it and the separator.
std::string_view piece(std::string_view& rest, char separator)
{
    const std::size_t at = rest.find(separator);
    const std::string_view result = rest.substr(0, at);
    rest.remove_prefix(at == npos ? rest.size() : at + 1);
    return result;
}

bool isColor(std::string_view value)
{
    if (value.size() != 7 || value.front() != '#')
        return false;
    return std::all_of(value.begin() + 1, value.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    });
}

bool isEmoteId(std::string_view id)
{
    if (id.empty() || id.size() > maxIdLength)
        return false;
    return std::all_of(id.begin(), id.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    });
}

// A tag value with the IRCv3 escapes undone; line breaks become spaces.
QString unescaped(std::string_view value)
{
    if (value.find('\\') == npos)
        return utf8(value);
    std::string out;
    out.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\') {
            out += value[i];
            continue;
        }
        if (++i == value.size())
            break;
        switch (value[i]) {
        case ':': out += ';'; break;
        case 's': case 'r': case 'n': out += ' '; break;
        default: out += value[i]; break;
        }
    }
    return utf8(out);
}

// A badge counts when its entry is the name followed by "/1" (so "subscriber/12" counts,
// "global_mod/1" is no "mod"). Twitch's tags spell the moderator "moderator".
int readBadges(std::string_view value)
{
    int badges = 0;
    while (!value.empty()) {
        std::string_view entry = piece(value, ',');
        std::string_view name = piece(entry, '/');
        if (entry.empty() || entry.front() != '1')
            continue;
        if (name == "moderator")
            name = "mod";
        for (int i = 0; i < 7; ++i)
            if (name == badgeOrder[i])
                badges |= 1 << i;
    }
    return badges;
}

// A range bound: up to six digits.
bool readNumber(std::string_view text, int* number)
{
    if (text.empty() || text.size() > 6)
        return false;
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + (c - '0');
    }
    *number = value;
    return true;
}

struct Range {
    int first;
    int last;
    QString id;
};

// "id:first-last,first-last/id:first-last", positions counted in characters (code points).
void readEmotes(std::string_view value, const QString& text, QVector<TwitchEmote>* emotes)
{
    emotes->clear();
    if (value.empty())
        return;
    int characters = text.size();
    const QChar* units = text.constData();
    for (int i = 0; i + 1 < text.size(); ++i)
        if (units[i].isHighSurrogate() && units[i + 1].isLowSurrogate())
            --characters;

    QVarLengthArray<Range, 16> ranges;
    while (!value.empty() && ranges.size() < TwitchMessage::maxEmotes) {
        std::string_view group = piece(value, '/');
        const std::size_t colon = group.find(':');
        if (colon == npos || !isEmoteId(group.substr(0, colon)))
            continue;
        const QString id = QString::fromLatin1(group.data(), static_cast<int>(colon));
        group.remove_prefix(colon + 1);
        while (!group.empty() && ranges.size() < TwitchMessage::maxEmotes) {
            std::string_view range = piece(group, ',');
            const std::string_view from = piece(range, '-');
            int first = 0;
            int last = 0;
            if (readNumber(from, &first) && readNumber(range, &last) && first <= last && last < characters)
                ranges.append(Range{first, last, id});
        }
    }
    std::stable_sort(ranges.begin(), ranges.end(), [](const Range& a, const Range& b) { return a.first < b.first; });

    // Characters to UTF-16 units, walking the text once.
    int character = 0;
    int unit = 0;
    auto unitOf = [&](int target) {
        while (character < target && unit < text.size()) {
            unit += (units[unit].isHighSurrogate() && unit + 1 < text.size() && units[unit + 1].isLowSurrogate()) ? 2 : 1;
            ++character;
        }
        return unit;
    };
    int end = -1;
    for (const Range& range : ranges) {
        if (range.first <= end)
            continue; // overlaps the one before
        end = range.last;
        const int begin = unitOf(range.first);
        emotes->append(TwitchEmote{begin, unitOf(range.last + 1) - begin, range.id});
    }
}

} // namespace

bool TwitchMessage::parse(const IrcLine& line, TwitchMessage* message)
{
    if (line.command != "PRIVMSG")
        return false;
    std::string_view badges;
    std::string_view color;
    std::string_view displayName;
    std::string_view emotes;
    std::string_view id;
    std::string_view tags = line.tags;
    while (!tags.empty()) {
        std::string_view value = piece(tags, ';');
        const std::string_view key = piece(value, '=');
        switch (key.size()) {
        case 2: if (key == "id") id = value; break;
        case 5: if (key == "color") color = value; break;
        case 6:
            if (key == "badges")
                badges = value;
            else if (key == "emotes")
                emotes = value;
            break;
        case 12: if (key == "display-name") displayName = value; break;
        default: break;
        }
    }

    std::string_view text = line.trailing;
    message->action = text.size() >= 8 && text.substr(0, 8) == "\001ACTION ";
    if (message->action) {
        text.remove_prefix(8);
        if (!text.empty() && text.back() == '\001')
            text.remove_suffix(1);
    }
    message->text = utf8(text);
    message->login = utf8(line.nick());
    message->displayName = displayName.empty() ? message->login : unescaped(displayName);
    std::string_view channel = line.target;
    if (!channel.empty() && channel.front() == '#')
        channel.remove_prefix(1);
    // The same channel on every line: keep the text already there.
    if (message->channel != QLatin1String(channel.data(), static_cast<int>(channel.size())))
        message->channel = utf8(channel);
    message->color = isColor(color) ? QString::fromLatin1(color.data(), 7) : QString();
    message->id = id.size() <= maxIdLength ? QByteArray(id.data(), static_cast<int>(id.size())) : QByteArray();
    message->badges = readBadges(badges);
    readEmotes(emotes, message->text, &message->emotes);
    return true;
}

const QStringList& TwitchMessage::allBadgeNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const char* name : badgeOrder)
            list.append(QLatin1String(name));
        return list;
    }();
    return names;
}

QStringList TwitchMessage::badgeNames(int badges)
{
    QStringList names;
    for (int i = 0; i < allBadgeNames().size(); ++i)
        if (badges & (1 << i))
            names.append(allBadgeNames().at(i));
    return names;
}
