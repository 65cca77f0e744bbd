// The exported face: each call holds the strip, which any message may end.
#include "ui/win32/toolbar_strip_window.h"

#include <qxutility/ui/toolbar_master.h>

using namespace qx;

static_assert(UM_COMMANDSTATE == WM_USER + 100 && UM_TOOLBARSCHANGED == WM_USER + 105);
static_assert(UM_RELAYOUT == WM_USER + 106 && UM_STATUSTEXT == WM_USER + 107);

using Held = const std::shared_ptr<StripWindow>;

static std::string Name(const char* fileName)
{
    return fileName ? fileName : "";
}

ToolBarMaster::ToolBarMaster() : m_strip(std::make_shared<StripWindow>()) {}

ToolBarMaster::~ToolBarMaster()
{
    StripWindow::Leave(m_strip);
}

int ToolBarMaster::CreateRebar(HWND parent, int defaultToolbars, int controlId, int bitmap,
                               int images, int catalogue)
{
    Held strip = m_strip;
    return strip->Create(parent, {defaultToolbars, controlId, bitmap, images, catalogue});
}

void ToolBarMaster::LoadToolbars(const char* fileName)
{
    Held strip = m_strip;
    strip->LoadToolbars(Name(fileName));
}

void ToolBarMaster::SaveToolbars(const char* fileName)
{
    Held strip = m_strip;
    strip->SaveToolbars(Name(fileName));
}

bool ToolBarMaster::CreateToolBar(int barId, HWND child, int)
{
    Held strip = m_strip;
    return strip->CreateToolBar(barId, child);
}

void ToolBarMaster::UpdateButtonStates()
{
    Held strip = m_strip;
    strip->UpdateButtonStates();
}

void ToolBarMaster::ToggleDock(int x, int y, int barId, int index)
{
    Held strip = m_strip;
    strip->ToggleDock(x, y, barId, index);
}

void ToolBarMaster::ToggleLockControls(int customisable)
{
    m_strip->ToggleLockControls(customisable != 0);
}

bool ToolBarMaster::HandleToolTip(NMHDR* notification)
{
    Held strip = m_strip;
    return notification && notification->code == TTN_NEEDTEXTA &&
           strip->HandleToolTip(*reinterpret_cast<NMTTDISPINFOA*>(notification));
}

int ToolBarMaster::HandleNotifiers(WPARAM wParam, NMHDR* notification)
{
    Held strip = m_strip;
    return notification ? static_cast<int>(strip->HandleNotifiers(wParam, *notification)) : 0;
}

void ToolBarMaster::GetWindowRect(RECT* area) const
{
    if (!area)
        return;
    *area = {};
    ::GetWindowRect(m_strip->Window(), area);
}

HWND ToolBarMaster::GetRebarHWND() const
{
    return m_strip->Window();
}

void ToolBarMaster::SizeRebarWindow(int width, int height)
{
    ::MoveWindow(m_strip->Window(), 0, 0, width, height, TRUE);
}

int ToolBarMaster::GetBandHeight(HWND toolbar) const
{
    return m_strip->BandSize(toolbar).cy;
}

int ToolBarMaster::GetBandWidth(HWND toolbar) const
{
    return m_strip->BandSize(toolbar).cx;
}

bool ToolBarMaster::IsWrapable(HWND toolbar) const
{
    return m_strip->IsWrapable(toolbar);
}
