// Toolbar files: whatever is read keeps the limits of a strip, is read again as it was when it is
// saved, and comes to rest when it is laid out. The first byte of an input is the strip's width in
// steps of 8 pixels, the rest is the file.
#include "fuzz.h"
#include "ui/toolbar_strip.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <cstdlib>

using namespace qx;
using qx::fuzz::Require;

static std::vector<ToolbarRecord> Read(const char* text, std::size_t size)
{
    XMLDocument document;
    document.UseData(text, static_cast<int>(size));
    return ReadToolbars(document);
}

static void CheckLimits(const std::vector<ToolbarRecord>& bars)
{
    Require(bars.size() <= kMostBars, "at most 128 bars");
    for (const ToolbarRecord& bar : bars) {
        Require(bar.buttons.size() <= kMostButtons, "at most 128 buttons");
        Require(bar.name.size() <= kMostNameBytes, "names of at most 63 bytes");
        Require(std::abs(bar.x) <= kFarthest && std::abs(bar.y) <= kFarthest, "positions");
    }
}

// What a file does not hold: bars without content, states, and other numbers than 1 for "floats".
static std::vector<ToolbarRecord> AsSaved(std::vector<ToolbarRecord> bars)
{
    std::erase_if(bars, [](const auto& bar) { return bar.buttons.empty() && !bar.hasChild; });
    for (ToolbarRecord& bar : bars) {
        bar.undocked = bar.undocked != 0;
        bar.hasChild = bar.hasChild != 0;
        for (ToolbarButton& button : bar.buttons)
            button.state = 0;
    }
    return bars;
}

static std::vector<ToolbarRecord> SavedAndRead(const std::vector<ToolbarRecord>& bars)
{
    XMLWriter writer;
    WriteToolbars(writer, bars);
    std::string text(writer.StrLen() + 1, '\0');
    writer.StrCpy(text.data(), static_cast<unsigned>(text.size()));
    return Read(text.data(), text.size() - 1);
}

static void LayOutToTheEnd(const std::vector<ToolbarRecord>& records, int width)
{
    std::vector<StripBar> bars;
    for (const ToolbarRecord& r : records)
        bars.push_back({true,
                        r.shown != 0,
                        r.undocked != 0,
                        r.id,
                        r.x,
                        r.y,
                        {ButtonsWidth(r.buttons), kBarHeight}});
    int further = 0;
    while (LayOut(bars, {width, 30}, further).again)
        ++further;
    Require(further <= kMostFurtherLayouts, "layouts end");
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const auto bars = Read(reinterpret_cast<const char*>(data) + 1, size - 1);
    CheckLimits(bars);
    Require(SavedAndRead(bars) == AsSaved(bars), "a saved file is read as it was");
    LayOutToTheEnd(bars, data[0] * 8);
    return 0;
}
