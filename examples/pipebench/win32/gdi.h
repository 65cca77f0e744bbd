// The few drawing helpers that the windows share.
#pragma once

#include <windows.h>

namespace pipebench {

// Selects an object into a device context and puts the earlier one back.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : m_dc(dc), m_previous(::SelectObject(dc, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { ::SelectObject(m_dc, m_previous); }

  private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

// The user's font for texts in windows; never deleted, it lives as long as the program.
HFONT MessageFont();
// Pixels of this screen for pixels at 96 dots per inch.
int Scaled(int pixels);
int TextWidth(HWND window, const char* text);
// Fills a rectangle with a colour that becomes another one: from the left to the right
// (GRADIENT_FILL_RECT_H) or from the top to the bottom (GRADIENT_FILL_RECT_V).
void FillShaded(HDC dc, const RECT& area, COLORREF from, COLORREF to, ULONG direction);

}  // namespace pipebench
