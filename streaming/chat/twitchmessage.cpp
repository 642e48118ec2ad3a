#include "chat/twitchmessage.h"

#include <QVarLengthArray>
#include <QtAlgorithms>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t npos = std::string_view::npos;
constexpr std::size_t maxIdLength = TwitchEmote::maxIdLength;

constexpr std::string_view badgeOrder[] = {"admin", "broadcaster", "global_mod", "mod", "staff", "subscriber", "turbo"};

QString utf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
}

bool continuation(unsigned char c)
{
    return (c & 0xC0) == 0x80;
}

// Bytes with anything that is not UTF-8, as QString::fromUtf8 reads them; true when the
// result holds a surrogate pair.
bool fallback(QString* out, std::string_view bytes)
{
    *out = utf8(bytes);
    const QChar* units = out->constData();
    for (int i = 0; i < out->size(); ++i)
        if (units[i].isHighSurrogate())
            return true;
    return false;
}

// Decodes UTF-8 into `out`, reusing its buffer: a record read line after line allocates
// only when a text outgrows the last. Valid UTF-8 as QString::fromUtf8 reads it; a text
// with anything invalid is left to QString::fromUtf8, so both agree on every byte. True
// when a character beyond the BMP (a surrogate pair) was among them.
bool assignUtf8(QString* out, std::string_view bytes)
{
    out->resize(static_cast<int>(bytes.size())); // never more UTF-16 units than bytes
    ushort* const begin = reinterpret_cast<ushort*>(out->data());
    ushort* to = begin;
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const unsigned char* const end = at + bytes.size();
    bool pairs = false;
    while (at < end) {
#ifdef __SSE2__
        // Plain ASCII sixteen bytes at a time, widened to UTF-16.
        const __m128i zero = _mm_setzero_si128();
        while (end - at >= 16) {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
            // Never more units than bytes: the sixteen always fit, and only the ASCII ones count.
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_unpacklo_epi8(bytes, zero));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + 8), _mm_unpackhi_epi8(bytes, zero));
            const unsigned high = static_cast<unsigned>(_mm_movemask_epi8(bytes));
            const int ascii = high ? static_cast<int>(qCountTrailingZeroBits(high)) : 16;
            at += ascii;
            to += ascii;
            if (high)
                break;
        }
#endif
        if (at == end)
            break;
        const unsigned char c = *at;
        const std::size_t left = static_cast<std::size_t>(end - at);
        uint code = 0;
        if (c < 0x80) {
            *to++ = c;
            ++at;
            continue;
        } else if (c >= 0xC2 && c <= 0xDF && left >= 2 && continuation(at[1])) {
            code = (uint(c & 0x1F) << 6) | (at[1] & 0x3F);
            at += 2;
        } else if ((c & 0xF0) == 0xE0 && left >= 3 && continuation(at[1]) && continuation(at[2])) {
            code = (uint(c & 0x0F) << 12) | (uint(at[1] & 0x3F) << 6) | (at[2] & 0x3F);
            at += 3;
            if (code < 0x800 || (code >= 0xD800 && code <= 0xDFFF)) {
                return fallback(out, bytes);
            }
        } else if (c >= 0xF0 && c <= 0xF4 && left >= 4 && continuation(at[1]) && continuation(at[2])
                   && continuation(at[3])) {
            code = (uint(c & 0x07) << 18) | (uint(at[1] & 0x3F) << 12) | (uint(at[2] & 0x3F) << 6) | (at[3] & 0x3F);
            at += 4;
            if (code < 0x10000 || code > 0x10FFFF) {
                return fallback(out, bytes);
            }
            pairs = true;
            *to++ = QChar::highSurrogate(code);
            *to++ = QChar::lowSurrogate(code);
            continue;
        } else {
            return fallback(out, bytes);
        }
        *to++ = static_cast<ushort>(code);
    }
    out->resize(static_cast<int>(to - begin));
    return pairs;
}

// The first `c` in [at, end), or end. Eight bytes at a time: the spans between separators
// are short, where a call of memchr costs more than the search. The loops here compare
// what is left, never a pointer beyond the end (or off an empty view's null).
Q_ALWAYS_INLINE const char* find(const char* at, const char* end, char c)
{
    const std::uint64_t pattern = 0x0101010101010101ull * static_cast<unsigned char>(c);
    for (; end - at >= 8; at += 8) {
        std::uint64_t word;
        std::memcpy(&word, at, sizeof word);
        const std::uint64_t x = word ^ pattern;
        const std::uint64_t zero = (x - 0x0101010101010101ull) & ~x & 0x8080808080808080ull;
        if (zero)
            return at + qCountTrailingZeroBits(zero) / 8;
    }
    for (; at < end; ++at)
        if (*at == c)
            return at;
    return end;
}

// Calls `piece(std::string_view)` for each piece of `text` between separators, in order,
// until it returns false. Sixteen bytes at a time where the processor can.
template <typename Piece>
void forEachPiece(std::string_view text, char separator, Piece&& piece)
{
    const char* start = text.data();
    const char* at = start;
    const char* const end = start + text.size();
#ifdef __SSE2__
    const __m128i pattern = _mm_set1_epi8(separator);
    for (; end - at >= 16; at += 16) {
        unsigned mask = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)), pattern)));
        while (mask) {
            const char* hit = at + qCountTrailingZeroBits(mask);
            if (!piece(std::string_view(start, static_cast<std::size_t>(hit - start))))
                return;
            start = hit + 1;
            mask &= mask - 1;
        }
    }
#endif
    for (; at < end; ++at) {
        if (*at != separator)
            continue;
        if (!piece(std::string_view(start, static_cast<std::size_t>(at - start))))
            return;
        start = at + 1;
    }
    if (start < end)
        piece(std::string_view(start, static_cast<std::size_t>(end - start)));
}

// The next piece of `rest` up to `separator`; `rest` loses it and the separator.
Q_ALWAYS_INLINE std::string_view piece(std::string_view& rest, char separator)
{
    const char* end = rest.data() + rest.size();
    const char* at = find(rest.data(), end, separator);
    const std::string_view result(rest.data(), static_cast<std::size_t>(at - rest.data()));
    rest.remove_prefix(at == end ? rest.size() : result.size() + 1);
    return result;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// "#RRGGBB" as 0xRRGGBB; -1 for anything else.
int readColor(std::string_view value)
{
    if (value.size() != 7 || value.front() != '#')
        return -1;
    int color = 0;
    for (char c : value.substr(1)) {
        const int digit = hexDigit(c);
        if (digit < 0)
            return -1;
        color = color * 16 + digit;
    }
    return color;
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

struct Range {
    int first;
    int last;
    std::string_view id;
};

void fill(TwitchEmote* e, int begin, int length, std::string_view id)
{
    e->begin = begin;
    e->length = length;
    e->idLength = static_cast<int>(id.size());
    std::memcpy(e->idBytes, id.data(), id.size());
}

// Where a character position falls in the UTF-16 text, walking forward only.
class CharacterWalk
{
public:
    explicit CharacterWalk(const QString& text) : m_units(text.constData()), m_size(text.size()) {}

    // Moves to character `target` (not behind the current one); false when the text ends first.
    bool moveTo(int target)
    {
        // Four units at a time while none of them is a surrogate.
        while (m_character + 4 <= target && m_unit + 4 <= m_size) {
            std::uint64_t word;
            std::memcpy(&word, m_units + m_unit, sizeof word);
            const std::uint64_t x = (word & 0xF800F800F800F800ull) ^ 0xD800D800D800D800ull;
            if ((x - 0x0001000100010001ull) & ~x & 0x8000800080008000ull)
                break;
            m_unit += 4;
            m_character += 4;
        }
        while (m_character < target && m_unit < m_size) {
            const bool pair = m_units[m_unit].isHighSurrogate() && m_unit + 1 < m_size && m_units[m_unit + 1].isLowSurrogate();
            m_unit += pair ? 2 : 1;
            ++m_character;
        }
        return m_character == target;
    }
    int unit() const { return m_unit; }
    int character() const { return m_character; }
    void restore(int character, int unit)
    {
        m_character = character;
        m_unit = unit;
    }

private:
    const QChar* m_units;
    int m_size;
    int m_character = 0;
    int m_unit = 0;
};

// "id:first-last,first-last/id:first-last", positions counted in characters (code points).
void readEmotes(std::string_view value, bool pairs, const QString& text, QVector<TwitchEmote>* emotes)
{
    emotes->clear();
    if (value.empty())
        return;
    // One pass: an id up to ':', then "first-last" ranges up to '/'. A range that is not two
    // numbers of at most six digits is skipped up to the next ',' or '/'.
    QVarLengthArray<Range, 16> ranges;
    const char* at = value.data();
    const char* const valueEnd = at + value.size();
    auto number = [&at, valueEnd](int* out) {
        const char* const start = at;
        int result = 0;
        for (; at < valueEnd && *at >= '0' && *at <= '9'; ++at)
            if (at - start < 6)
                result = result * 10 + (*at - '0');
        *out = result;
        return at > start && at - start <= 6;
    };
    while (at < valueEnd && ranges.size() < TwitchMessage::maxEmotes) {
        const char* const idStart = at;
        while (at < valueEnd && *at != ':' && *at != '/')
            ++at;
        const std::string_view id(idStart, static_cast<std::size_t>(at - idStart));
        if (at == valueEnd || *at++ == '/')
            continue; // no ranges
        const bool validId = isEmoteId(id);
        while (at < valueEnd && *at != '/') {
            int first = 0;
            int last = 0;
            bool valid = number(&first) && at < valueEnd && *at == '-';
            if (valid)
                valid = number(&(++at, last)) && (at == valueEnd || *at == ',' || *at == '/');
            while (at < valueEnd && *at != ',' && *at != '/')
                ++at;
            if (at < valueEnd && *at == ',')
                ++at;
            if (valid && validId && first <= last && ranges.size() < TwitchMessage::maxEmotes) {
                // In text order; the lists are short and mostly ordered already.
                int i = ranges.size();
                ranges.append(Range{first, last, id});
                for (; i > 0 && ranges[i - 1].first > first; --i)
                    std::swap(ranges[i - 1], ranges[i]);
            }
        }
        if (at < valueEnd)
            ++at; // the '/'
    }
    if (ranges.isEmpty())
        return;

    emotes->resize(ranges.size());
    TwitchEmote* out = emotes->data();
    int characters = pairs ? INT_MAX : text.size(); // known once a walk reaches the end
    CharacterWalk walk(text);
    int end = -1;
    for (const Range& range : ranges) {
        if (range.first <= end || range.last >= characters)
            continue; // overlaps the one before, or ends beyond the text
        if (!pairs) {
            fill(out++, range.first, range.last - range.first + 1, range.id);
            end = range.last;
            continue;
        }
        if (!walk.moveTo(range.first)) {
            characters = walk.character();
            continue;
        }
        const int beginCharacter = walk.character();
        const int begin = walk.unit();
        if (!walk.moveTo(range.last + 1)) {
            characters = walk.character();
            walk.restore(beginCharacter, begin);
            continue;
        }
        fill(out++, begin, walk.unit() - begin, range.id);
        end = range.last;
    }
    emotes->resize(static_cast<int>(out - emotes->constData()));
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
    // Tag by tag; only five keys matter, told apart by their first letter. A tag without
    // "=" has no value; of a repeated tag the first counts.
    int found = 0;
    forEachPiece(line.tags, ';', [&](std::string_view tag) {
        auto value = [&tag, &found](std::string_view key, std::string_view* out, int bit) {
            if (!(found & bit) && tag.size() > key.size() && tag[key.size()] == '=' && tag.compare(0, key.size(), key) == 0) {
                *out = tag.substr(key.size() + 1);
                found |= bit;
            }
        };
        switch (tag.empty() ? 0 : tag.front()) {
        case 'b': value("badges", &badges, 0x1); break;
        case 'c': value("color", &color, 0x2); break;
        case 'd': value("display-name", &displayName, 0x4); break;
        case 'e': value("emotes", &emotes, 0x8); break;
        case 'i': value("id", &id, 0x10); break;
        default: break;
        }
        return found != 0x1F; // the rest of the tags are not read
    });

    std::string_view text = line.trailing;
    message->action = text.size() >= 8 && text.substr(0, 8) == "\001ACTION ";
    if (message->action) {
        text.remove_prefix(8);
        if (!text.empty() && text.back() == '\001')
            text.remove_suffix(1);
    }
    const bool pairs = assignUtf8(&message->text, text);
    const std::string_view name = displayName.empty() ? line.nick() : displayName;
    if (name.find('\\') == npos)
        assignUtf8(&message->displayName, name);
    else
        message->displayName = unescaped(name);
    std::string_view channel = line.target;
    if (!channel.empty() && channel.front() == '#')
        channel.remove_prefix(1);
    // The same channel on every line: keep the text already there.
    if (message->channel != QLatin1String(channel.data(), static_cast<int>(channel.size())))
        message->channel = utf8(channel);
    message->color = readColor(color);
    message->id.resize(id.size() <= maxIdLength ? static_cast<int>(id.size()) : 0);
    if (!message->id.isEmpty())
        std::memcpy(message->id.data(), id.data(), static_cast<std::size_t>(message->id.size()));
    message->badges = readBadges(badges);
    readEmotes(emotes, pairs, message->text, &message->emotes);
    return true;
}

QString TwitchMessage::colorName(int color)
{
    if (color < 0)
        return QString();
    return QLatin1Char('#') + QString::number(color & 0xFFFFFF, 16).rightJustified(6, QLatin1Char('0')).toUpper();
}

const QStringList& TwitchMessage::allBadgeNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (std::string_view name : badgeOrder)
            list.append(QString::fromLatin1(name.data(), static_cast<int>(name.size())));
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
