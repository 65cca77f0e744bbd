// Ownership of drawing objects, and painting without flicker.
#pragma once

#include "win32/handle.h"

#include <qxutility/types.h>

namespace qx::win32 {

template <typename Object>
struct GdiObjectTraits {
    static Object None() { return nullptr; }
    static void Close(Object object) { ::DeleteObject(object); }
};
using BitmapHandle = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using BrushHandle = UniqueHandle<GdiObjectTraits<HBRUSH>>;
using FontHandle = UniqueHandle<GdiObjectTraits<HFONT>>;
using PenHandle = UniqueHandle<GdiObjectTraits<HPEN>>;

struct MemoryDcTraits {
    static HDC None() { return nullptr; }
    static void Close(HDC dc) { ::DeleteDC(dc); }
};
using MemoryDc = UniqueHandle<MemoryDcTraits>;

// Selects an object into a device context while it lives; it must end before the object does.
class Selection {
  public:
    Selection(HDC dc, HGDIOBJ object) : m_dc(dc), m_previous(::SelectObject(dc, object)) {}
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() { ::SelectObject(m_dc, m_previous); }

  private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

// Answers WM_PAINT: what is drawn into dc() appears in the window, all at once, at the end. The
// whole client area is to be drawn; WM_ERASEBKGND need not draw anything.
class BufferedPaint {
  public:
    explicit BufferedPaint(HWND window);
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;
    ~BufferedPaint();

    HDC dc() const { return m_buffer ? m_buffer.get() : m_screen; }
    const RECT& client() const { return m_client; }

  private:
    HWND m_window;
    PAINTSTRUCT m_paint;
    HDC m_screen;
    RECT m_client;
    BitmapHandle m_bitmap;
    MemoryDc m_buffer;  // none when there is no memory for it: then the window is drawn directly
    HGDIOBJ m_previousBitmap;
};

// The font of message boxes, in the size of the user's settings.
FontHandle CreateMessageFont();

}  // namespace qx::win32
