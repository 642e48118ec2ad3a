#pragma once

#include <string_view>

// The parts of one IRC line as views into its bytes (no copies): "@tags :prefix COMMAND
// target ... :trailing". A part the line lacks is empty. Any bytes are accepted.
struct IrcLine {
    std::string_view tags;     // without the '@'
    std::string_view prefix;   // without the ':'
    std::string_view command;
    std::string_view target;   // the first middle parameter
    std::string_view trailing; // without the ':'; the last parameter when there is no ':'

    static IrcLine split(std::string_view line);

    // The nick of a "nick!user@host" prefix (the whole prefix when it has no '!').
    std::string_view nick() const;
};

namespace IrcLineDetail {

// The next space-separated word of `rest`, which loses it and the spaces after it.
inline std::string_view word(std::string_view& rest)
{
    const std::size_t space = rest.find(' ');
    const std::string_view result = rest.substr(0, space);
    rest.remove_prefix(space == std::string_view::npos ? rest.size() : space);
    while (!rest.empty() && rest.front() == ' ')
        rest.remove_prefix(1);
    return result;
}

} // namespace IrcLineDetail

inline IrcLine IrcLine::split(std::string_view line)
{
    IrcLine parts;
    std::string_view rest = line;
    if (!rest.empty() && rest.front() == '@')
        parts.tags = IrcLineDetail::word(rest).substr(1);
    if (!rest.empty() && rest.front() == ':')
        parts.prefix = IrcLineDetail::word(rest).substr(1);
    parts.command = IrcLineDetail::word(rest);
    bool first = true;
    while (!rest.empty()) {
        if (rest.front() == ':') {
            parts.trailing = rest.substr(1);
            break;
        }
        const std::string_view parameter = IrcLineDetail::word(rest);
        if (first)
            parts.target = parameter;
        else if (rest.empty())
            parts.trailing = parameter;
        first = false;
    }
    return parts;
}

inline std::string_view IrcLine::nick() const
{
    return prefix.substr(0, prefix.find('!'));
}
