// What the program remembers from one start to the next, beside its language (see Localisation) and
// the user's work directories (see GetDirectory).
#pragma once

#include "core/fault.h"
#include "core/flow/flow_entry.h"

#include <qxutility/config/ini_file.h>

#include <string>
#include <variant>
#include <vector>

namespace pipebench {

// The pump curve that comes with the program.
inline constexpr char kSampleCurve[] = "PUMP_CURVE.DAT";

inline constexpr int kMostDecimals = 3;

// The parts of the main window: which are shown, and the places of the splitters between them.
struct View {
    bool tree = true, sketch = true, statusBar = true;
    int treeWidth = 180, resultsHeight = 210;  // pixels at 96 dots per inch
    bool operator==(const View&) const = default;
};
inline constexpr int kLeastPane = 60, kMostPane = 4000;

struct Settings {
    DT_UNITS units = DT_METRIC;
    int decimals = 2;  // 0 to kMostDecimals
    View view;
    FlowCase flow = kFirstFlow;
    std::string curveFile = kSampleCurve;  // empty: no pump
};

// What the INI file does not have, or has with a value that is not possible, is as in a new
// `Settings`.
Settings ReadSettings(const INIFile& file);

struct IniEntry {
    std::string section, key, value;
};
std::vector<IniEntry> ToIniEntries(const Settings& settings);

// The number of decimals that was typed.
std::variant<int, Fault> CheckDecimals(const std::string& text);

}  // namespace pipebench
