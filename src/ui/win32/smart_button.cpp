#include "platform/open_document.h"
#include "ui/win32/button_pictures.h"

#include <qxutility/core/text.h>
#include <qxutility/ui/button_panel.h>

#include <utility>

using namespace qx;

static_assert(SmartButton::pushed == static_cast<int>(ButtonState::Pushed) &&
              SmartButton::rollover == static_cast<int>(ButtonState::Rollover));

SmartButton::SmartButton(HINSTANCE module, HWND panel) : m_panel(panel), m_module(module) {}

static void Replace(HBITMAP& picture, HBITMAP other)
{
    if (picture)
        ::DeleteObject(picture);
    picture = other;
}

SmartButton::~SmartButton()
{
    for (HBITMAP& picture : m_pictures)
        Replace(picture, nullptr);
    while (m_next)  // not one inside the other: a panel may have many
        m_next = std::move(m_next->m_next);
}

void SmartButton::ReadXML(XMLElement* element)
{
    if (!element)
        return;
    const ButtonDescription button = ReadButton(*element);
    m_x = button.area.x;
    m_y = button.area.y;
    m_width = button.area.width;
    m_height = button.area.height;
    m_command = button.command;
    m_link = button.link;

    std::array<win32::BitmapHandle, 3> pictures;
    if (button.quickImage) {
        pictures = win32::DrawPictures(*button.quickImage, {m_width, m_height}, m_module, m_panel);
    } else {
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            if (button.pictures[i])
                pictures[i] = win32::LoadPicture(*button.pictures[i], m_module);
        }
    }
    for (std::size_t i = 0; i < pictures.size(); ++i)
        Replace(m_pictures[i], pictures[i].Release());
}

void SmartButton::SetState(BtnState state)
{
    if (state == m_state)
        return;
    const BtnState taken = m_pictures[state] ? state : standard;
    if (std::exchange(m_state, taken) != taken)
        Draw(nullptr);
}

void SmartButton::Draw(HDC dc)
{
    const HBITMAP picture = m_pictures[m_state];
    if (!picture || (!dc && !m_panel))  // no window would be the whole screen
        return;
    const HDC target = dc ? dc : ::GetDC(m_panel);
    {
        const win32::MemoryDc source(::CreateCompatibleDC(target));
        const win32::Selection selection(source.get(), picture);
        ::BitBlt(target, m_x, m_y, m_width, m_height, source.get(), 0, 0, SRCCOPY);
    }
    if (!dc)
        ::ReleaseDC(m_panel, target);
}

// Opening something may take messages, and end the panel with its buttons.
void SmartButton::Go(HWND target)
{
    const int command = m_command;
    if (!m_link.empty()) {
        char file[MAX_PATH];
        std::string arguments(m_link.size() + 1, '\0');
        SplitName(m_link.c_str(), file, arguments.data());
        platform::OpenDocument(m_panel, file, arguments.c_str());
    }
    if (command != 0)
        ::PostMessageA(target, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

bool SmartButton::HasAction() const
{
    return m_command != 0 || !m_link.empty();
}

ButtonArea SmartButton::Area() const
{
    return {m_x, m_y, m_width, m_height};
}

bool SmartButton::bInRect(int x, int y) const
{
    return Contains(Area(), x, y);
}

void SmartButton::CalcSize(int& width, int& height) const
{
    SIZE size{width, height};
    Enclose(size, Area());
    width = size.cx;
    height = size.cy;
}
