#include "win32/gdi.h"

namespace qx::win32 {

static RECT ClientArea(HWND window)
{
    RECT area;
    ::GetClientRect(window, &area);
    return area;
}

BufferedPaint::BufferedPaint(HWND window)
    : m_window(window),
      m_screen(::BeginPaint(window, &m_paint)),
      m_client(ClientArea(window)),
      m_bitmap(::CreateCompatibleBitmap(m_screen, m_client.right, m_client.bottom)),
      m_buffer(m_bitmap ? ::CreateCompatibleDC(m_screen) : nullptr),
      m_previousBitmap(m_buffer ? ::SelectObject(m_buffer.get(), m_bitmap.get()) : nullptr)
{
}

BufferedPaint::~BufferedPaint()
{
    if (m_buffer) {
        ::BitBlt(m_screen, 0, 0, m_client.right, m_client.bottom, m_buffer.get(), 0, 0, SRCCOPY);
        ::SelectObject(m_buffer.get(), m_previousBitmap);
    }
    ::EndPaint(m_window, &m_paint);
}

FontHandle CreateMessageFont()
{
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    return FontHandle(::CreateFontIndirectA(&metrics.lfMessageFont));
}

}  // namespace qx::win32
