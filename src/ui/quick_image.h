// Pictures of a button that are drawn from an icon and a caption: what they consist of and where it
// goes.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>

namespace qx {

enum class CaptionAlign { Left, Center, Right };

struct QuickIcon {
    std::string source;  // the number of a resource, or a file or address
    bool isSmall = false;
    std::optional<int> x, y;
};

struct QuickCaption {
    std::string text;
    int fontHeight = 18;
    std::optional<int> left;
    std::optional<CaptionAlign> align;
};

struct QuickImage {
    bool border = false;
    std::optional<QuickIcon> icon;
    std::optional<QuickCaption> caption;
};

struct QuickPlacement {
    POINT icon;
    int captionLeft;  // the caption reaches from here to the right edge of the button
    CaptionAlign align;
};

// Where icon and caption go on a button.
QuickPlacement Place(const QuickImage& image, SIZE button, SIZE icon);

// The alignment of that name, in any letter case.
std::optional<CaptionAlign> AlignNamed(const std::string& name);

// The number of an icon resource when the source begins with a digit; 0 for one that no resource
// can have.
std::optional<int> IconResource(const std::string& source);
// The extension whose type's icon stands for a source of which `file` is the file without
// arguments; empty when it has none. Addresses are shown as a web page or a mail.
std::string IconExtension(const std::string& source, const std::string& file);

}  // namespace qx
