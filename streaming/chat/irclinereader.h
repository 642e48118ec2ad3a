#pragma once

#include <QtGlobal>

#include <cstring>
#include <string>
#include <string_view>

// Cuts the bytes of an IRC connection into lines, however the reads split them: a line
// ends at LF, a CR before it is dropped, and the bytes after the last LF are kept until
// the rest of their line arrives. No socket and no clock: a benchmark or a fuzzer feeds it
// bytes directly.
//
// A line longer than maxLineLength (a server that never sends LF, or garbage) is dropped
// whole and counted, so the kept bytes never exceed that limit.
class IrcLineReader
{
public:
    // IRCv3 allows 8191 bytes of tags before the 512 bytes of a classic line.
    static constexpr std::size_t maxLineLength = 8191 + 512;

    // Calls sink(std::string_view) for every complete, non-empty line in order. The view
    // is valid only during the call.
    template <typename Sink>
    void feed(const char* data, std::size_t size, Sink&& sink)
    {
        std::size_t pos = 0;
        while (pos < size) {
            const char* end = static_cast<const char*>(std::memchr(data + pos, '\n', size - pos));
            if (!end) {
                keep(data + pos, size - pos);
                return;
            }
            const std::size_t length = static_cast<std::size_t>(end - data) - pos;
            if (m_skipping) {
                m_skipping = false; // the end of a line already dropped
            } else if (m_partial.empty()) {
                deliver(std::string_view(data + pos, length), sink);
            } else if (m_partial.size() + length > maxLineLength + 1) {
                ++m_dropped;
                m_partial.clear();
            } else {
                m_partial.append(data + pos, length);
                deliver(std::string_view(m_partial), sink);
                m_partial.clear();
            }
            pos += length + 1;
        }
    }

    // Bytes of an unfinished line.
    std::size_t pendingSize() const { return m_partial.size(); }
    // Lines dropped for their length since the last reset.
    qint64 droppedLines() const { return m_dropped; }
    void reset()
    {
        m_partial.clear();
        m_partial.shrink_to_fit();
        m_skipping = false;
        m_dropped = 0;
    }

private:
    template <typename Sink>
    void deliver(std::string_view line, Sink& sink)
    {
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (line.size() > maxLineLength)
            ++m_dropped;
        else if (!line.empty())
            sink(line);
    }

    void keep(const char* data, std::size_t size)
    {
        if (m_skipping)
            return;
        // One more byte than the limit: a CR that may still precede the LF.
        if (m_partial.size() + size > maxLineLength + 1) {
            ++m_dropped;
            m_partial.clear();
            m_skipping = true;
            return;
        }
        m_partial.append(data, size);
    }

    std::string m_partial;
    bool m_skipping = false;
    qint64 m_dropped = 0;
};
