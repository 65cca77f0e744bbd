#include "ui/toolbar_file.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <string_view>

namespace qx {

static constexpr int kTextSize = 32;  // of a button's texts, with the terminator

// ---- Reading

static int Number(const XMLElement& element, const char* name, int otherwise = 0)
{
    int value = otherwise;
    element.ReadAttribute(name, value, otherwise);
    return value;
}

static int Position(const XMLElement& element, const char* name)
{
    return std::clamp(Number(element, name), -kFarthest, kFarthest);
}

// One byte more than is asked for: a value of that length has no terminator.
static std::string BarName(const XMLElement& element)
{
    char name[kMostNameBytes + 2] = "";
    element.ReadAttribute("Name", name, kMostNameBytes + 1, "");
    return std::string(name).substr(0, kMostNameBytes);
}

// Decimal, hexadecimal after "0x", octal after "0".
static int AnyBaseNumber(const char* text)
{
    int decimal = 0;
    if (*text >= '1' && *text <= '9' &&
        std::from_chars(text, text + kTextSize, decimal).ec == std::errc())
        return decimal;
    const long long value = std::strtoll(text, nullptr, 0);
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

static std::uint8_t StyleOf(std::string_view text)
{
    if (text == "dropdown")
        return kStyleDropDown;
    if (text == "drop&toggle")
        return kStyleDropDown | kStyleToggle;
    if (text == "toggle")
        return kStyleToggle;
    // Both spellings stand in files in the field.
    return text == "separator" || text == "seperator" ? kStyleSeparator : 0;
}

// Deliberately the wrong way round, as files in the field rely on it: "hidden" leaves the button
// visible, any other word hides it.
static std::uint8_t ReadState(const XMLElement& element)
{
    char text[kTextSize + 1] = "";
    const bool stands = element.ReadAttribute("state", text, kTextSize, "");
    return stands && std::string_view(text) != "hidden" ? kButtonHidden : 0;
}

// The last child of a name counts.
ToolbarButton ReadToolbarButton(XMLElement& element)
{
    ToolbarButton button;
    for (XMLElement* child = element.FirstElement(); child; child = element.NextElement()) {
        char name[16], text[kTextSize] = {};
        child->GetElementName(name, sizeof name);
        child->ReadData(text, kTextSize);
        const std::string_view kind = name;
        if (kind == "iBitmap")
            button.image = AnyBaseNumber(text);
        else if (kind == "idCommand")
            button.command = AnyBaseNumber(text);
        else if (kind == "Style")
            button.style = StyleOf(text);
    }
    if (button.IsSeparator())
        return {0, 0, 0, button.style};
    button.state = ReadState(element);
    return button;
}

static std::vector<ToolbarButton> ReadButtons(XMLElement& parent)
{
    std::vector<ToolbarButton> buttons;
    XMLElement* element = parent.FirstElement();
    for (; element && buttons.size() < kMostButtons; element = parent.NextElement())
        buttons.push_back(ReadToolbarButton(*element));
    return buttons;
}

static ToolbarRecord ReadToolbar(XMLElement& element)
{
    ToolbarRecord bar;
    bar.id = Number(element, "ID");
    bar.editable = Number(element, "Editable");
    bar.name = BarName(element);
    // Deliberately: "Hidden" is 1 for a bar that is shown, as files in the field have it.
    bar.shown = Number(element, "Hidden", 1);
    bar.undocked = Number(element, "UnDocked");
    bar.x = Position(element, "X");
    bar.y = Position(element, "Y");
    bar.hasChild = Number(element, "HasChild");
    if (!bar.hasChild)
        bar.buttons = ReadButtons(element);
    return bar;
}

std::vector<ToolbarRecord> ReadToolbars(XMLElement& document)
{
    std::vector<ToolbarRecord> bars;
    XMLElement* element = document.FirstElement();
    for (; element && bars.size() < kMostBars; element = document.NextElement())
        bars.push_back(ReadToolbar(*element));
    return bars;
}

ButtonCatalogue ReadCatalogue(XMLElement& document)
{
    ButtonCatalogue catalogue;
    std::ranges::copy(ReadButtons(document), catalogue.begin());
    return catalogue;
}

// ---- Writing

static const char* StyleText(std::uint8_t style)
{
    if (style & kStyleDropDown)
        return style & kStyleToggle ? "drop&toggle" : "dropdown";
    if (style & kStyleToggle)
        return "toggle";
    return style & kStyleSeparator ? "separator" : "";
}

template <class Value>
static void WriteSubElement(XMLWriter& writer, const char* name, Value value)
{
    writer.BeginElement(name);
    writer.SetData(value);
    writer.EndElement();
}

static void WriteButton(XMLWriter& writer, const ToolbarButton& button)
{
    writer.BeginElement("Button");
    if (!button.IsSeparator()) {
        WriteSubElement(writer, "iBitmap", button.image);
        WriteSubElement(writer, "idCommand", button.command);
    }
    if (button.style)
        WriteSubElement(writer, "Style", StyleText(button.style));
    writer.EndElement();
}

static void WriteToolbar(XMLWriter& writer, const ToolbarRecord& bar)
{
    writer.BeginElement("Toolbar");
    writer.AddAttribute("ID", bar.id);
    writer.AddAttribute("Editable", bar.editable);
    writer.AddAttribute("Name", bar.name.c_str());
    writer.AddAttribute("Hidden", bar.shown);
    writer.AddAttribute("UnDocked", bar.undocked ? 1 : 0);
    writer.AddAttribute("X", bar.x);
    writer.AddAttribute("Y", bar.y);
    if (bar.hasChild)
        writer.AddAttribute("HasChild", 1);
    for (const ToolbarButton& button : bar.buttons)
        WriteButton(writer, button);
    writer.EndElement();
}

void WriteToolbars(XMLWriter& writer, std::span<const ToolbarRecord> bars)
{
    for (const ToolbarRecord& bar : bars) {
        if (!bar.buttons.empty() || bar.hasChild)
            WriteToolbar(writer, bar);
    }
}

// ---- Catalogue and loading

const ToolbarButton* FindCommand(const ButtonCatalogue& catalogue, int command)
{
    const auto last = std::find_if(catalogue.rbegin(), catalogue.rend(),
                                   [=](const auto& entry) { return entry.command == command; });
    return last == catalogue.rend() ? nullptr : &*last;
}

int CountImages(const ButtonCatalogue& catalogue)
{
    const auto end = std::ranges::find(catalogue, ToolbarButton{});
    return static_cast<int>(
        std::count_if(catalogue.begin(), end, [](const auto& b) { return !b.IsSeparator(); }));
}

std::vector<LoadStep> PlanLoading(std::span<const ToolbarRecord> bars)
{
    std::vector<LoadStep> steps;
    // Deliberately never cleared: every bar with buttons behind the first floating one floats too.
    bool floats = false;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        if (bars[i].buttons.empty() && !bars[i].hasChild)
            break;
        floats = floats || bars[i].undocked;
        const LoadStep::Kind kind = floats ? LoadStep::Float : LoadStep::Insert;
        steps.push_back({bars[i].buttons.empty() ? LoadStep::Host : kind, static_cast<int>(i)});
    }
    return steps;
}

}  // namespace qx
