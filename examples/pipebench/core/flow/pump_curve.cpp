#include "core/flow/pump_curve.h"

#include "core/units.h"
#include "ids.h"

#include <qxutility/config/table_reader.h>
#include <qxutility/core/text.h>
#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <memory>

namespace pipebench {

static constexpr std::uint64_t kLargestFile = 1'000'000;   // bytes
static constexpr double kMostFlow = 1e6, kMostHead = 1e5;  // m3/h, m

struct Column {
    int index;
    DT_UNITS units;
};

static std::vector<std::string> ColumnNames(const CTableReader& table)
{
    char* header = nullptr;
    table.GetHeader(header);
    const std::unique_ptr<char[]> owner(header);
    return tokenize(header ? header : "", "\t");
}

static std::optional<Column> FindColumn(const std::vector<std::string>& names,
                                        const char* metricName, const char* englishName)
{
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == metricName)
            return Column{static_cast<int>(i), DT_METRIC};
        if (names[i] == englishName)
            return Column{static_cast<int>(i), DT_ENGLISH};
    }
    return {};
}

static std::string Cell(const CTableReader& table, int row, int column)
{
    std::array<char, 4096> cell{};  // lines are no longer
    table.Query(cell.data(), cell.size(), row, column);
    return cell.data();
}

// A number in the form of files, whatever the user's language is.
static std::optional<double> FileNumber(const std::string& text)
{
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || !std::isfinite(value))
        return {};
    return value;
}

// What a message quotes of a file: the beginning, without characters that cannot be shown.
static std::string Quoted(std::string text)
{
    static constexpr std::size_t kLongest = 60;
    if (text.size() > kLongest)
        text = text.substr(0, kLongest) + "...";
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c == 127; }, '?');
    return text;
}

static std::optional<Fault> CheckPoint(const CurvePoint& point, const std::string& row)
{
    const bool possible =
        point.flow >= 0 && point.flow <= kMostFlow && point.head >= 0 && point.head <= kMostHead;
    if (!possible)
        return Fault{IDS_CURVE_RANGE, row};
    return {};
}

static std::variant<std::vector<CurvePoint>, Fault> ReadPoints(const CTableReader& table,
                                                               const Column& flows,
                                                               const Column& heads)
{
    std::vector<CurvePoint> points;
    std::array<char, 4096> first{};
    for (int row = 0; table.Query(first.data(), first.size(), row, 0); ++row) {
        const std::string flowText = Cell(table, row, flows.index);
        const std::string headText = Cell(table, row, heads.index);
        if (flowText.empty() && headText.empty() && !first[0])
            continue;
        const std::string quoted = Quoted(flowText + " | " + headText);
        const auto flow = FileNumber(flowText), head = FileNumber(headText);
        if (!flow || !head)
            return Fault{IDS_CURVE_NUMBER, quoted};
        points.push_back({FromUser(Quantity::Flow, *flow, flows.units),
                          FromUser(Quantity::Length, *head, heads.units)});
        if (const auto fault = CheckPoint(points.back(), quoted))
            return *fault;
    }
    return points;
}

// Sorted, as a point at a flow of 0 has to come first: CPointArray drops it elsewhere.
static std::variant<PumpCurve, Fault> MakeCurve(std::vector<CurvePoint> points,
                                                const std::string& file)
{
    std::ranges::sort(points, {}, &CurvePoint::flow);
    if (std::ranges::adjacent_find(points, {}, &CurvePoint::flow) != points.end())
        return Fault{IDS_CURVE_TWICE, file};
    if (points.size() < 2)
        return Fault{IDS_CURVE_SHORT, file};
    std::vector<double> flows, heads;
    for (const CurvePoint& point : points) {
        flows.push_back(point.flow);
        heads.push_back(point.head);
    }
    const int count = static_cast<int>(points.size());
    return PumpCurve{std::move(points), CPointArray(count, flows.data(), heads.data())};
}

std::variant<PumpCurve, Fault> ReadPumpCurve(const std::string& path)
{
    const std::string file = Quoted(path.substr(path.find_last_of("/\\:") + 1));
    const TextFile text(path.c_str());
    if (!text.ValidFile())
        return Fault{IDS_CURVE_UNREADABLE, file};
    if (text.Size() > kLargestFile)
        return Fault{IDS_CURVE_LARGE, file};
    const CTableReader table(path.c_str(), '\t', nullptr, nullptr);
    const auto names = ColumnNames(table);
    const auto flows = FindColumn(names, "m3/h", "gpm");
    const auto heads = FindColumn(names, "m", "ft");
    if (!flows || !heads)
        return Fault{IDS_CURVE_COLUMNS, file};
    auto points = ReadPoints(table, *flows, *heads);
    if (const auto* fault = std::get_if<Fault>(&points))
        return *fault;
    return MakeCurve(std::get<std::vector<CurvePoint>>(std::move(points)), file);
}

std::optional<CurvePoint> OperatingPoint(const PumpCurve& curve, const FlowCase& flowCase)
{
    const auto surplus = [&](double flow) {
        return curve.heads.GetY(flow) - SystemHead(flowCase, flow);
    };
    double low = curve.points.front().flow, high = curve.points.back().flow;
    if (!(surplus(low) >= 0) || !(surplus(high) <= 0))
        return {};
    for (int halving = 0; halving < 60; ++halving) {
        const double middle = (low + high) / 2;
        (surplus(middle) >= 0 ? low : high) = middle;
    }
    return CurvePoint{low, curve.heads.GetY(low)};
}

}  // namespace pipebench
