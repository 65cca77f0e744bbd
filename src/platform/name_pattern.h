// Patterns of file names where the system has none of its own.
#pragma once

#include <string_view>

namespace qx::platform {

// Whether a name is what a pattern describes: * stands for any characters, ? for one, every other
// character for itself. *.* describes every name, also one without a dot.
inline bool MatchesPattern(std::string_view name, std::string_view pattern)
{
    if (pattern == "*.*")
        pattern = "*";
    // After a mismatch, the last * takes one character more; an earlier one never needs to.
    std::size_t n = 0, p = 0, starName = 0, starPattern = pattern.npos;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            starName = n;
            starPattern = p++;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++n;
            ++p;
        } else if (starPattern != pattern.npos) {
            n = ++starName;
            p = starPattern + 1;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == pattern.npos;
}

}  // namespace qx::platform
