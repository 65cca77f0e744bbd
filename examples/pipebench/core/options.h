// The command line.
#pragma once

#include <qxutility/types.h>

#include <string>
#include <vector>

namespace pipebench {

struct Options {
    bool console = false;
    DWORD lcid = 0x0409;  // the language to start with: English
    std::string error;    // what cannot be understood; empty when all is well
};

// pipebench [--console] [--language en|de|fr|<locale identifier>]
Options ReadOptions(const std::vector<std::string>& arguments);

inline constexpr char kUsage[] =
    "usage: pipebench [--console] [--language en|de|fr|LOCALE-IDENTIFIER]\n";

}  // namespace pipebench
