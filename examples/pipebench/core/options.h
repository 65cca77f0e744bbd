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
    bool print = false;         // the report on the sample line, without any window
    bool landscape = false;
    int copies = 1;
    std::string pdf;    // the file that the report goes to; empty: on paper
    std::string error;  // what cannot be understood; empty when all is well
};

// The arguments of kUsage.
Options ReadOptions(const std::vector<std::string>& arguments);

inline constexpr char kUsage[] =
    "usage: pipebench [--console] [--language en|de|fr|LOCALE-IDENTIFIER]\n"
    "       pipebench --print [--landscape] [--copies NUMBER] [--pdf FILE] [--language ...]\n";

}  // namespace pipebench
