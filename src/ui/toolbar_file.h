// The toolbars of a strip as an XML file describes them, and the catalogue of all buttons.
//
// The file has no root element: each element at the top is a bar, whatever its name, and each child
// of a bar is a button.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

class XMLElement;
class XMLWriter;

namespace qx {

inline constexpr int kMostBars = 128;
inline constexpr int kMostButtons = 128;   // of one bar when it is read, and of the catalogue
inline constexpr int kMostNameBytes = 63;  // of a bar's name
inline constexpr int kFarthest = 32'767;   // positions are kept within this distance of 0

// Bits of a button's state and of its style, with the values of the toolbar control.
inline constexpr std::uint8_t kButtonChecked = 1, kButtonPressed = 2, kButtonEnabled = 4,
                              kButtonHidden = 8;
inline constexpr std::uint8_t kStyleSeparator = 1, kStyleToggle = 2, kStyleDropDown = 8;

struct ToolbarButton {
    int image = 0;  // in the bitmap strip
    int command = 0;
    std::uint8_t state = 0;
    std::uint8_t style = 0;

    bool IsSeparator() const { return (style & kStyleSeparator) != 0; }
    bool IsHidden() const { return (state & kButtonHidden) != 0; }
    bool operator==(const ToolbarButton&) const = default;
};

struct ToolbarRecord {
    int id = 0;
    int editable = 0;  // not 0: the user may customise and delete the bar
    std::string name;
    int shown = 0;     // not 0: shown
    int undocked = 0;  // not 0: floats, at (x, y) on the screen
    int x = 0, y = 0;
    int hasChild = 0;  // not 0: hosts a window in place of buttons
    std::vector<ToolbarButton> buttons;

    bool operator==(const ToolbarRecord&) const = default;
};

// Entries that are not used are all 0.
using ButtonCatalogue = std::array<ToolbarButton, kMostButtons>;

// What is missing has its default, what is no number is 0.
ToolbarButton ReadToolbarButton(XMLElement& element);
// The bars at the top of a document, in order; those behind the 128th are left out, as are buttons
// behind the 128th of a bar.
std::vector<ToolbarRecord> ReadToolbars(XMLElement& document);
// Entries behind the 128th are left out.
ButtonCatalogue ReadCatalogue(XMLElement& document);

// Appends the bars that have buttons or a child. States of buttons are not written.
void WriteToolbars(XMLWriter& writer, std::span<const ToolbarRecord> bars);

// The last of all 128 entries with that command; null without one. Empty entries have command 0.
const ToolbarButton* FindCommand(const ButtonCatalogue& catalogue, int command);
// The images of the bitmap strip: buttons that are no separators, up to the first empty entry.
int CountImages(const ButtonCatalogue& catalogue);

// What happens to a bar that was read, in the order of the file.
struct LoadStep {
    enum Kind { Host, Insert, Float } kind;  // Host: only its toolbar is made, for a child to come
    int index;
};
// Ends before the first bar that has neither buttons nor a child.
std::vector<LoadStep> PlanLoading(std::span<const ToolbarRecord> bars);

}  // namespace qx
