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
