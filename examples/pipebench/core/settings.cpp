#include "core/settings.h"

#include "core/number_field.h"
#include "core/texts.h"
#include "ids.h"

#include <cmath>

namespace pipebench {

static constexpr char kView[] = "View", kFlow[] = "Pipe flow";
static constexpr char kUnits[] = "Units", kDecimals[] = "Decimals", kCurve[] = "Pump curve";
static constexpr char kMetric[] = "metric", kUs[] = "US";
// An empty value would count as none.
static constexpr char kNoCurve[] = "-";

static std::string Text(const INIFile& file, const char* section, const char* key)
{
    return file.GetPrivateProfileStringA(section, key, "", nullptr, 0);
}

struct Switch {
    const char* key;
    bool View::*value;
};
static constexpr Switch kSwitches[] = {
    {"Tree", &View::tree}, {"Sketch", &View::sketch}, {"Status bar", &View::statusBar}};
struct Extent {
    const char* key;
    int View::*value;
};
static constexpr Extent kExtents[] = {{"Tree width", &View::treeWidth},
                                      {"Results height", &View::resultsHeight}};

static void ReadView(const INIFile& file, View& view)
{
    for (const Switch& part : kSwitches)
        view.*part.value = file.GetPrivateProfileIntA(kView, part.key, 1, nullptr, 0) != 0;
    for (const Extent& extent : kExtents) {
        const int size = file.GetPrivateProfileIntA(kView, extent.key, 0, nullptr, 0);
        if (size >= kLeastPane && size <= kMostPane)
            view.*extent.value = size;
    }
}

static void ReadFlow(const INIFile& file, FlowCase& flow)
{
    for (const FlowField& field : kFlowFields) {
        if (!field.key)
            continue;
        const double value =
            file.GetPrivateProfileDouble(kFlow, field.key, flow.*field.value, nullptr, 0);
        if (value >= field.least && value <= field.most)
            flow.*field.value = value;
    }
}

Settings ReadSettings(const INIFile& file)
{
    Settings settings;
    if (Text(file, kView, kUnits) == kUs)
        settings.units = DT_ENGLISH;
    const int decimals =
        file.GetPrivateProfileIntA(kView, kDecimals, settings.decimals, nullptr, 0);
    if (decimals >= 0 && decimals <= kMostDecimals)
        settings.decimals = decimals;
    ReadView(file, settings.view);
    ReadFlow(file, settings.flow);
    if (const std::string curve = Text(file, kFlow, kCurve); !curve.empty())
        settings.curveFile = curve == kNoCurve ? "" : curve;
    return settings;
}

std::vector<IniEntry> ToIniEntries(const Settings& settings)
{
    std::vector<IniEntry> entries = {
        {kView, kUnits, settings.units == DT_METRIC ? kMetric : kUs},
        {kView, kDecimals, std::to_string(settings.decimals)},
        {kFlow, kCurve, settings.curveFile.empty() ? kNoCurve : settings.curveFile},
    };
    for (const Switch& part : kSwitches)
        entries.push_back({kView, part.key, settings.view.*part.value ? "1" : "0"});
    for (const Extent& extent : kExtents)
        entries.push_back({kView, extent.key, std::to_string(settings.view.*extent.value)});
    for (const FlowField& field : kFlowFields) {
        if (field.key)
            entries.push_back({kFlow, field.key, PlainNumberText(settings.flow.*field.value)});
    }
    return entries;
}

std::variant<int, Fault> CheckDecimals(const std::string& text)
{
    const auto number = ReadNumber(text);
    if (!number)
        return Fault{IDS_NOT_A_NUMBER, text};
    if (*number < 0 || *number > kMostDecimals || *number != std::floor(*number))
        return Fault{IDS_BAD_DECIMALS, text};
    return static_cast<int>(*number);
}

}  // namespace pipebench
