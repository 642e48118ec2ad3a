#include "chat/ircline.h"

namespace {

// The next space-separated word of `rest`, which loses it and the spaces after it.
std::string_view word(std::string_view& rest)
{
    const std::size_t space = rest.find(' ');
    const std::string_view result = rest.substr(0, space);
    rest.remove_prefix(space == std::string_view::npos ? rest.size() : space);
    while (!rest.empty() && rest.front() == ' ')
        rest.remove_prefix(1);
    return result;
}

} // namespace

IrcLine IrcLine::split(std::string_view line)
{
    IrcLine parts;
    std::string_view rest = line;
    if (!rest.empty() && rest.front() == '@')
        parts.tags = word(rest).substr(1);
    if (!rest.empty() && rest.front() == ':')
        parts.prefix = word(rest).substr(1);
    parts.command = word(rest);
    bool first = true;
    while (!rest.empty()) {
        if (rest.front() == ':') {
            parts.trailing = rest.substr(1);
            break;
        }
        const std::string_view parameter = word(rest);
        if (first)
            parts.target = parameter;
        else if (rest.empty())
            parts.trailing = parameter;
        first = false;
    }
    return parts;
}

std::string_view IrcLine::nick() const
{
    return prefix.substr(0, prefix.find('!'));
}
