// Which object handles the messages of which strip, and the procedure of all strips.
#include "ui/win32/toolbar_strip_window.h"
#include "win32/window_class.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace qx {

// Private: wParam is the object that handles what no strip is entered for from now on.
static constexpr UINT UM_ATTACHOBJECT = 2701;

static constexpr char kStripClass[] = "ZREBARWIND";
static constexpr int kStripHeight = 22;  // until it is laid out

namespace {

struct hwndToobj {
    HWND window;
    StripWindow* object;
};

}  // namespace

static hwndToobj windToThis[16];
static StripWindow* current = nullptr;

// All objects there are: a message may name any.
static std::vector<StripWindow*>& Objects()
{
    static std::vector<StripWindow*> objects;
    return objects;
}

static std::shared_ptr<StripWindow> Hold(StripWindow* object)
{
    return object ? object->shared_from_this() : nullptr;
}

static void Attach(WPARAM wParam)
{
    const auto object = reinterpret_cast<StripWindow*>(wParam);
    if (std::ranges::count(Objects(), object) > 0)
        current = object;
}

static void Register(StripWindow& object)
{
    const auto free = std::ranges::find(windToThis, nullptr, &hwndToobj::object);
    if (free != std::end(windToThis))
        *free = {object.Window(), &object};
}

// The last of the others that are entered becomes the current one.
static void Unregister(const StripWindow& object)
{
    current = nullptr;
    for (hwndToobj& entry : windToThis) {
        if (entry.object == &object)
            entry = {};
        else if (entry.object)
            current = entry.object;
    }
}

// ---- Life

StripWindow::StripWindow()
{
    Objects().push_back(this);
}

StripWindow::~StripWindow()
{
    std::erase(Objects(), this);
    if (current == this)
        current = nullptr;
    if (m_module)  // fails as long as there are other strips
        ::UnregisterClassA(kStripClass, m_module);
}

void StripWindow::Leave(const std::shared_ptr<StripWindow>& strip)
{
    Unregister(*strip);
    if (strip->m_window)
        strip->m_self = strip;
}

bool StripWindow::Create(HWND parent, const StripResources& resources)
{
    if (m_window)
        return false;
    RECT client{};
    ::GetClientRect(parent, &client);
    m_resources = resources;
    m_module = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(parent, GWLP_HINSTANCE));
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_COOL_CLASSES | ICC_USEREX_CLASSES};
    ::InitCommonControlsEx(&controls);
    win32::RegisterPlainClass(m_module, kStripClass, Procedure);  // fails from the second on
    Procedure(nullptr, UM_ATTACHOBJECT, reinterpret_cast<WPARAM>(this), 0);
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(resources.controlId));
    ::CreateWindowExA(WS_EX_TOOLWINDOW, kStripClass, "Rebar",
                      WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, client.right,
                      kStripHeight, parent, id, m_module, this);
    if (!m_window)
        return false;
    Register(*this);
    LoadBuildButtons();
    return true;
}

// ---- Messages

std::shared_ptr<StripWindow> StripWindow::Own(HWND strip)
{
    const auto object = std::ranges::find(Objects(), strip, &StripWindow::m_window);
    return strip && object != Objects().end() ? Hold(*object) : nullptr;
}

static bool IsCreatedBy(const StripWindow* object, LPARAM lParam)
{
    const auto created = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    return object && created && created->lpCreateParams == object;
}

// A strip that is not entered is handled by the object that was found last.
static std::shared_ptr<StripWindow> Find(HWND window)
{
    const auto entry = std::ranges::find(windToThis, window, &hwndToobj::window);
    if (entry != std::end(windToThis) && entry->object)
        current = entry->object;
    return Hold(current);
}

// The toolbars in the strip go with it; what floats is destroyed here.
void StripWindow::BeingDestroyed()
{
    Unregister(*this);
    if (m_inMenu)
        ::EndMenu();  // its loop would wait for messages to the strip
    for (Bar& bar : m_bars) {
        if (bar.floating || (bar.toolbar && bar.toolbar == m_customised))
            FreeBar(bar);
        bar.record.buttons.clear();
    }
}

void StripWindow::Destroyed()
{
    m_window = nullptr;
    m_dragged = -1;
    for (Bar& bar : m_bars)
        bar = {};
    m_self.reset();
}

void StripWindow::FollowLife(HWND window, UINT message)
{
    const auto own = Own(window);
    if (own && message == WM_DESTROY)
        own->BeingDestroyed();
    if (own && message == WM_NCDESTROY)
        own->Destroyed();
}

LRESULT CALLBACK StripWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept
{
    if (message == UM_ATTACHOBJECT)
        return Attach(wParam), 0;
    const auto object = Find(window);
    if (message == WM_NCCREATE && IsCreatedBy(object.get(), lParam))
        object->m_window = window;
    if (message == WM_DESTROY || message == WM_NCDESTROY)
        FollowLife(window, message);
    else if (object)
        return object->Handle(window, message, wParam, lParam);
    return ::DefWindowProcA(window, message, wParam, lParam);
}

static POINT PointOf(LPARAM lParam)
{
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

LRESULT StripWindow::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case RB_HITTEST:
            return HitTestMessage(reinterpret_cast<RBHITTESTINFO*>(lParam));
        case UM_RELAYOUT:
            return RelayOut(wParam), 0;
        case kShowMenuMessage:
            return ShowMenu(PointOf(lParam)), 0;
        case kResetMessage:
            return ResetAfterDialog(), 0;
        case WM_SIZE:
            return Sized(), 0;
        case WM_PAINT:
            return Paint(window), 0;
        case WM_LBUTTONDOWN:
            return ButtonDown(PointOf(lParam)), 0;
        case WM_MOUSEMOVE:
            return MouseMove(PointOf(lParam)), 0;
        case WM_LBUTTONUP:
            return ButtonUp(), 0;
        case WM_CAPTURECHANGED:
            m_dragged = -1;
            return 0;
        case WM_RBUTTONDOWN:
            return ShowMenu(PointOf(lParam)), 0;
        case WM_SETCURSOR:
            // Windows in the bars have cursors of their own.
            return reinterpret_cast<HWND>(wParam) == window
                       ? (::SetCursor(::LoadCursorA(nullptr, IDC_ARROW)), TRUE)
                       : FALSE;
        case WM_COMMAND:
            return ::PostMessageA(Parent(), message, wParam, lParam), 0;
        case WM_NOTIFY:
            return lParam ? HandleNotifiers(wParam, *reinterpret_cast<NMHDR*>(lParam)) : 0;
        case WM_MENUSELECT:
            return MenuSelect(wParam, reinterpret_cast<HMENU>(lParam)), 0;
        default:
            return ::DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace qx
