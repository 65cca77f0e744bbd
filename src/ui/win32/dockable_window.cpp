#include "ui/area.h"
#include "win32/subclass.h"
#include "win32/window_class.h"

#include <qxutility/ui/dockable_window.h>

#include <algorithm>
#include <utility>

using namespace qx;

static_assert(UM_DOCKQUERY == WM_USER + 101);
static_assert(UM_DOCKREQUEST == WM_USER + 102);
static_assert(UM_FLOATMOVED == WM_USER + 104);

static constexpr char kFloatClass[] = "DOCKABLEWND";

DockableWindow::hwndToobj DockableWindow::windToThis[32];
bool DockableWindow::initial = true;

// ---- Life

DockableWindow::DockableWindow(HWND owner, HWND hosted)
    : m_owner(owner),
      m_hosted(hosted),
      m_module(reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(owner, GWLP_HINSTANCE))),
      m_life(std::make_shared<char>())
{
    if (std::exchange(initial, false))
        std::fill(std::begin(windToThis), std::end(windToThis), hwndToobj{});
    RegisterWindowClass();
    CreateFloat();
    if (hosted)
        UnDock(owner, hosted, 0, 0);
    ::SetFocus(owner);
}

DockableWindow::~DockableWindow()
{
    m_life.reset();
    LeaveFrame();
    if (HoldsHosted() && ::IsWindow(m_owner)) {
        ::ShowWindow(m_hosted, SW_HIDE);
        ::SetParent(m_hosted, m_owner);
    }
    if (m_window)
        ::DestroyWindow(m_window);
    ::UnregisterClassA(kFloatClass, m_module);  // fails as long as there are other windows
}

void DockableWindow::RegisterWindowClass()
{
    win32::RegisterPlainClass(m_module, kFloatClass, FloatProcedure);
}

static SIZE SizeOf(HWND window)
{
    RECT area{};
    ::GetWindowRect(window, &area);
    return {ToInt(Width(area)), ToInt(Height(area))};
}

void DockableWindow::CreateFloat()
{
    const SIZE hosted = SizeOf(m_hosted);
    const int frame = 2 * ::GetSystemMetrics(SM_CXDLGFRAME) + 4;
    ::CreateWindowExA(WS_EX_TOOLWINDOW, kFloatClass, "Dockable",
                      WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, 50, 50,
                      hosted.cx + frame, hosted.cy + ::GetSystemMetrics(SM_CYSMCAPTION) + frame,
                      m_owner, nullptr, m_module, this);
}

void DockableWindow::FloatDestroyed()
{
    if (m_outlineDrawn)
        DrawOutline({}, true);
    ::SetWindowLongPtrA(m_window, GWLP_USERDATA, 0);
    m_window = nullptr;
    m_moving = m_undocked = false;
    LeaveFrame();
}

DockableWindow* DockableWindow::ObjectOf(HWND window)
{
    DWORD process = 0;
    char name[sizeof kFloatClass + 1] = "";
    ::GetWindowThreadProcessId(window, &process);
    ::GetClassNameA(window, name, sizeof name);
    if (process != ::GetCurrentProcessId() || ::lstrcmpiA(name, kFloatClass) != 0)
        return nullptr;
    return reinterpret_cast<DockableWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
}

// ---- Docking

static HWND FindFrame(HWND window)
{
    while (window && !(::GetWindowLongA(window, GWL_STYLE) & WS_BORDER))
        window = ::GetParent(window);
    return window;
}

// What a window has around its client area.
static SIZE Margins(HWND window)
{
    RECT client{};
    ::GetClientRect(window, &client);
    const SIZE size = SizeOf(window);
    return {size.cx - client.right, size.cy - client.bottom};
}

void DockableWindow::UnDock(HWND owner, HWND hosted, int width, int height)
{
    m_owner = owner;
    m_hosted = hosted;
    m_active = true;
    if (!m_window)
        return;
    if (m_moving)
        ShowInstead();
    FollowFrame(FindFrame(owner));
    SIZE size{width, height};
    if (width == 0 && height == 0)
        size = SizeOf(hosted);
    const SIZE margins = Margins(m_window);
    MoveFloat(GetX(), GetY(), ToInt(std::int64_t{size.cx} + margins.cx),
              ToInt(std::int64_t{size.cy} + margins.cy));
    ::SetParent(hosted, m_window);
    ::MoveWindow(hosted, 0, 0, size.cx, size.cy, TRUE);
    m_undocked = true;
    ::ShowWindow(m_window, SW_SHOW);  // the frame is told, and may end the object
}

void DockableWindow::Dock(HWND* owner, RECT* dock)
{
    if (owner)
        *owner = m_owner;
    if (dock)
        *dock = m_dock;
    m_undocked = false;
    if (m_window)
        ::ShowWindow(m_window, SW_HIDE);
}

bool DockableWindow::IsUnDocked() const
{
    return m_undocked;
}

bool DockableWindow::HoldsHosted() const
{
    return m_window && m_hosted && ::GetParent(m_hosted) == m_window;
}

// Sizes arrive while the hosted window is not in here, too: then it is not touched.
void DockableWindow::SizeHosted() const
{
    if (!HoldsHosted())
        return;
    RECT client;
    ::GetClientRect(m_window, &client);
    ::MoveWindow(m_hosted, 0, 0, client.right, client.bottom, TRUE);
}

WPARAM DockableWindow::HostedId() const
{
    return static_cast<WPARAM>(::GetWindowLongA(m_hosted, GWL_ID));
}

LPARAM DockableWindow::ToolbarFlag() const
{
    char name[32] = "";
    ::GetClassNameA(m_hosted, name, sizeof name);
    return ::lstrcmpiA(name, "ToolbarWindow32") == 0;
}

// ---- Place and caption

RECT DockableWindow::FloatArea() const
{
    RECT area{};
    ::GetWindowRect(m_window, &area);
    return area;
}

int DockableWindow::GetX() const
{
    return FloatArea().left;
}

int DockableWindow::GetY() const
{
    return FloatArea().top;
}

int DockableWindow::GetWidth() const
{
    return ToInt(Width(FloatArea()));
}

int DockableWindow::GetHeight() const
{
    return ToInt(Height(FloatArea()));
}

void DockableWindow::MoveFloat(int x, int y, int width, int height) const
{
    ::MoveWindow(m_window, x, y, width, height, TRUE);
}

void DockableWindow::SetX(int x)
{
    MoveFloat(x, GetY(), GetWidth(), GetHeight());
}

void DockableWindow::SetY(int y)
{
    MoveFloat(GetX(), y, GetWidth(), GetHeight());
}

void DockableWindow::SetWidth(int width)
{
    MoveFloat(GetX(), GetY(), width, GetHeight());
}

void DockableWindow::SetHeight(int height)
{
    MoveFloat(GetX(), GetY(), GetWidth(), height);
}

void DockableWindow::SetWindowTextA(const char* text)
{
    ::SetWindowTextA(m_window, text);
}

void DockableWindow::Disable(bool enable)
{
    ::EnableWindow(m_window, enable);
    ::SendMessageA(m_window, WM_NCACTIVATE, FALSE, 0);
}
