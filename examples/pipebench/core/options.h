// The command line.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>
#include <vector>

namespace pipebench {

struct Options {
    bool console = false;
    std::optional<DWORD> lcid;  // the language to start with
    std::string error;          // what cannot be understood; empty when all is well
};

// pipebench [--console] [--language en|de|fr|<locale identifier>]
Options ReadOptions(const std::vector<std::string>& arguments);

inline constexpr char kUsage[] =
    "usage: pipebench [--console] [--language en|de|fr|LOCALE-IDENTIFIER]\n";

}  // namespace pipebench
