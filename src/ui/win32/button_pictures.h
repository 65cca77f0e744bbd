// The pictures of a panel's buttons.
#pragma once

#include "ui/button_description.h"
#include "win32/gdi.h"

#include <array>

namespace qx::win32 {

// The bitmap that a description names; none when it cannot be had. `module` is the panel's.
BitmapHandle LoadPicture(const PictureSource& source, HINSTANCE module);

// The three pictures of a button of a size, drawn from an icon and a caption, by ButtonState. They
// fit the device of `window`. None when the size is nothing or more than any screen's.
std::array<BitmapHandle, 3> DrawPictures(const QuickImage& image, SIZE size, HINSTANCE module,
                                         HWND window);

}  // namespace qx::win32
