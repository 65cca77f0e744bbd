// A strip with as many toolbars as it can hold, of 100 buttons each: loading what an XML document
// holds, laying the bars out, saving them; and what a layout costs with the number of bars.
#include "support/bench.h"
#include "support/toolbar_text.h"
#include "ui/toolbar_drag.h"
#include "ui/toolbar_file.h"
#include "ui/toolbar_strip.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <pugixml.hpp>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace qx;
using qx::test::Written;

constexpr double kLimit = 1e-3;  // seconds
constexpr int kButtons = 100;
constexpr int kStripWidth = 2'560;

std::vector<ToolbarRecord> Bars(int count)
{
    std::mt19937 random(1);
    const auto upTo = [&](unsigned n) { return static_cast<int>(random() % (n + 1)); };
    std::vector<ToolbarRecord> bars;
    for (int id = 1; id <= count; ++id) {
        ToolbarRecord bar{id, 1, "Toolbar " + std::to_string(id), 1, 0, upTo(2'000), 0, 0, {}};
        bar.y = kFirstRow + id / 4 * kRowHeight;
        for (int i = 0; i < kButtons; ++i) {
            ToolbarButton button{upTo(100), 40'000 + upTo(1'000), 0, 0};
            if (i % 8 == 7)
                button = {0, 0, 0, kStyleSeparator};
            else if (i % 5 == 0)
                button.style = kStyleDropDown;
            bar.buttons.push_back(button);
        }
        bars.push_back(bar);
    }
    return bars;
}

std::vector<StripBar> StripOf(const std::vector<ToolbarRecord>& bars)
{
    std::vector<StripBar> strip;
    for (const ToolbarRecord& bar : bars) {
        const SIZE size{ButtonsWidth(bar.buttons), kBarHeight};
        strip.push_back({true, bar.shown != 0, bar.undocked != 0, bar.id, bar.x, bar.y, size});
    }
    return strip;
}

void Load(XMLDocument& document)
{
    const std::vector<ToolbarRecord> bars = ReadToolbars(document);
    bench::DoNotOptimize(PlanLoading(bars).size());
    bench::DoNotOptimize(StripOf(bars).size());
}

// Bars of 1 to 12 buttons, four in a row, many on one another.
std::vector<StripBar> Scattered(int count)
{
    std::mt19937 random(2);
    std::vector<StripBar> strip = StripOf(Bars(count));
    for (StripBar& bar : strip)
        bar.size.cx = static_cast<int>(25 + 25 * (random() % 12));
    return strip;
}

// With all the further layouts that are asked for.
void Settle(std::vector<StripBar>& strip)
{
    SIZE client{kStripWidth, 26};
    for (int further = 0;; ++further) {
        const StripLayout layout = LayOut(strip, client, further);
        client.cy = layout.height;
        if (!layout.again)
            return;
    }
}

std::vector<StripBar> Settled(int count)
{
    std::vector<StripBar> strip = Scattered(count);
    Settle(strip);
    return strip;
}

auto Layout(std::vector<StripBar> strip)
{
    return [strip = std::move(strip), scratch = std::vector<StripBar>()]() mutable {
        scratch = strip;
        bench::DoNotOptimize(LayOut(scratch, {kStripWidth, 26}).height);
    };
}

auto Settling(std::vector<StripBar> strip)
{
    return [strip = std::move(strip), scratch = std::vector<StripBar>()]() mutable {
        scratch = strip;
        Settle(scratch);
        bench::DoNotOptimize(scratch.data());
    };
}

void CompareParsing(bench::Table& table, const std::string& text)
{
    const auto parse = [&] {
        XMLDocument document;
        document.UseData(text.data(), static_cast<int>(text.size()));
        bench::DoNotOptimize(document.FirstElement());
    };
    const auto peer = [&] {
        pugi::xml_document document;
        bench::DoNotOptimize(document.load_buffer(text.data(), text.size()).offset);
    };
    table.Compare("parsing, 128 bars of 100 buttons", parse, {{"pugixml", peer}});
}

// A quadratic cost is four times that of half the bars, a cubic one eight times. What is above four
// leaves room for the machine's own ups and downs.
void CompareNumbersOfBars(bench::Table& table)
{
    for (int count = 16; count <= kMostBars; count *= 2) {
        const std::string bars = std::to_string(count) + " bars", half = std::to_string(count / 2);
        table.Compare("laying out, " + bars, Layout(Settled(count)),
                      {{half + " bars", Layout(Settled(count / 2)), bench::CostAtMost(5)}});
    }
}

}  // namespace

int main(int argc, char** argv)
{
    bench::Table table("Toolbars", argc, argv);
    const std::vector<ToolbarRecord> bars = Bars(kMostBars);
    const std::string text = Written(bars);
    XMLDocument document;
    document.UseData(text.data(), static_cast<int>(text.size()));

    CompareParsing(table, text);
    table.Limit(
        "loading, 128 bars of 100 buttons", [&] { Load(document); }, kLimit);
    table.Limit(
        "saving, 128 bars of 100 buttons",
        [&] {
            XMLWriter writer;
            WriteToolbars(writer, bars);
            bench::DoNotOptimize(writer.StrLen());
        },
        kLimit);
    table.Limit("laying out, 128 bars", Layout(Settled(kMostBars)), kLimit);
    table.Limit("laying out, 128 bars too wide", Layout(StripOf(bars)), kLimit);
    table.Limit("from anywhere to rest, 128 bars", Settling(Scattered(kMostBars)), kLimit);
    CompareNumbersOfBars(table);
    return table.Print();
}
