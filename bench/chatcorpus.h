#pragma once
// Twitch-shaped chat lines from a seeded generator: the tags Twitch sends with a PRIVMSG
// (badges, colour, emote ranges, ids, times), a prefix and a text of words, emotes and now
// and then a character beyond ASCII. About 600 bytes a line.
#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <random>

namespace ChatCorpus {

// The emote ids the lines use, so a benchmark can serve their pictures.
inline QList<QByteArray> emoteIds()
{
    return {"25", "1902", "354", "86", "41", "58765", "245", "88", "305954156", "emotesv2_4c3b4ed5"};
}

class Generator
{
public:
    explicit Generator(unsigned seed = 20261122) : m_random(seed) {}

    QByteArray line(const QByteArray& channel = "bigshow")
    {
        static const char* const words[] = {"hello", "chat", "that", "was", "a", "great", "play", "lol", "what",
                                            "did", "I", "just", "see", "GG", "nice", "one", "wow", "no", "way",
                                            "clip", "it", "again", "best", "stream", "today", "caf\xc3\xa9",
                                            "stream\xe2\x80\x99s", "okay"};
        static const char* const emoteWords[] = {"Kappa", "Keepo", "PogChamp", "LUL", "Kreygasm"};
        const QList<QByteArray> ids = emoteIds();

        // The text first: the emote ranges point into it (counted in characters).
        QByteArray text;
        QMap<QByteArray, QByteArray> ranges; // by emote id, as Twitch groups them
        int characters = 0;
        const int targetBytes = 110 + pick(200);
        while (text.size() < targetBytes) {
            if (!text.isEmpty()) {
                text += ' ';
                ++characters;
            }
            if (pick(10) == 0) {
                const int which = pick(5);
                const QByteArray word = emoteWords[which];
                QByteArray& list = ranges[ids.at(which * 2)];
                if (!list.isEmpty())
                    list += ',';
                list += QByteArray::number(characters) + '-' + QByteArray::number(characters + word.size() - 1);
                text += word;
                characters += word.size();
            } else {
                // An emoji (beyond the BMP) one word in a hundred.
                const QByteArray word = pick(100) == 0 ? QByteArray("\xf0\x9f\x98\x80") : QByteArray(words[pick(sizeof(words) / sizeof(words[0]))]);
                text += word;
                characters += QString::fromUtf8(word).toUcs4().size();
            }
        }

        QByteArray emotes;
        for (auto it = ranges.cbegin(); it != ranges.cend(); ++it)
            emotes += (emotes.isEmpty() ? "" : "/") + it.key() + ':' + it.value();
        const QByteArray user = "viewer" + QByteArray::number(pick(5000));
        QByteArray badges;
        if (pick(4) == 0)
            badges += "moderator/1,";
        if (pick(2) == 0)
            badges += "subscriber/" + QByteArray::number(1 + pick(36)) + ',';
        if (pick(8) == 0)
            badges += "premium/1,";
        badges.chop(badges.endsWith(',') ? 1 : 0);
        const QByteArray color = pick(10) == 0 ? QByteArray() : "#" + hex(6).toUpper();

        QByteArray line = "@badge-info=subscriber/" + QByteArray::number(pick(40)) + ";badges=" + badges
                          + ";client-nonce=" + hex(32) + ";color=" + color + ";display-name=" + user.toUpper()
                          + ";emotes=" + emotes + ";first-msg=0;flags=;id=" + hex(8) + '-' + hex(4) + '-' + hex(4) + '-'
                          + hex(4) + '-' + hex(12) + ";mod=" + (badges.contains("moderator") ? "1" : "0")
                          + ";returning-chatter=0;room-id=" + QByteArray::number(10000000 + pick(1000))
                          + ";subscriber=" + (badges.contains("subscriber") ? "1" : "0")
                          + ";tmi-sent-ts=" + QByteArray::number(1763800000000LL + pick(100000000))
                          + ";turbo=0;user-id=" + QByteArray::number(100000000 + pick(900000000))
                          + ";user-type= :" + user + '!' + user + '@' + user + ".tmi.twitch.tv PRIVMSG #" + channel
                          + " :" + text;
        return line;
    }

private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    QByteArray hex(int digits)
    {
        static const char alphabet[] = "0123456789abcdef";
        QByteArray out(digits, '0');
        for (char& c : out)
            c = alphabet[pick(16)];
        return out;
    }

    std::mt19937 m_random;
};

} // namespace ChatCorpus
