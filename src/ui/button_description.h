// Buttons of a panel as an XML file describes them.
#pragma once

#include "ui/button_panel.h"
#include "ui/quick_image.h"

#include <array>
#include <optional>
#include <string>

class XMLElement;

namespace qx {

// Where a picture comes from: a bitmap file, or a bitmap among the resources of a module. Without a
// file that is the library's or the panel's module.
struct PictureSource {
    std::string file;
    int resource = 0;           // 0: none
    bool buttonColors = false;  // greys become the system's colours of buttons
    bool windowColor = false;   // the colour of the first pixel becomes that of windows
};

struct ButtonDescription {
    ButtonArea area;
    std::array<std::optional<PictureSource>, 3> pictures;  // by ButtonState
    int command = 0;                                       // 0: none
    std::string link;                                      // empty: none
    std::optional<QuickImage> quickImage;                  // in place of the pictures
};

// What is missing has its default, what is no number is 0. Texts are cut to 259 characters.
ButtonDescription ReadButton(XMLElement& element);

}  // namespace qx
