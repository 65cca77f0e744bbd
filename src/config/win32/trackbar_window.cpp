#include "config/trackbar.h"
#include "config/win32/window_classes.h"
#include "win32/gdi.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace qx::win32 {

static constexpr char kProperty[] = "QX_TRACKBAR";
static constexpr UINT_PTR kTimer = 1;
static constexpr UINT kFirstRepeat = 400, kRepeat = 80;     // milliseconds
static constexpr int kChannel = 4, kMargin = 2, kTick = 4;  // pixels

namespace {

// The control of one window: the bar, and what only matters on the screen.
struct Control {
    HWND window;
    Trackbar bar;
    int thumbLength = 21;  // across the bar, as in the standard control
    int wheel = 0;         // turns of the wheel that are not a whole notch yet
};

}  // namespace

// ---- Geometry

static bool Is(const Control& control, DWORD style)
{
    return (static_cast<DWORD>(::GetWindowLongA(control.window, GWL_STYLE)) & style) != 0;
}

static RECT ClientArea(const Control& control)
{
    RECT area;
    ::GetClientRect(control.window, &area);
    return area;
}

// A rectangle given along and across the bar, as it lies in the window.
static RECT Placed(const Control& control, int from, int to, int side, int otherSide)
{
    return Is(control, TBS_VERT) ? RECT{side, from, otherSide, to}
                                 : RECT{from, side, to, otherSide};
}

static int LengthAlong(const Control& control)
{
    const RECT client = ClientArea(control);
    return Is(control, TBS_VERT) ? client.bottom : client.right;
}

static int ThumbAcross(const Control& control)
{
    const RECT client = ClientArea(control);
    const int room = (Is(control, TBS_VERT) ? client.right : client.bottom) - 2 * kMargin;
    return std::clamp(control.thumbLength, 0, std::max(room, 0));
}

static RECT ThumbArea(const Control& control)
{
    const auto [first, end] = control.bar.Thumb();
    return Placed(control, first, end, kMargin, kMargin + ThumbAcross(control));
}

static RECT ChannelArea(const Control& control)
{
    const int middle = kMargin + ThumbAcross(control) / 2 - kChannel / 2;
    return Placed(control, control.bar.PixelOf(control.bar.minimum()),
                  control.bar.PixelOf(control.bar.maximum()), middle, middle + kChannel);
}

static int PixelAlong(const Control& control, LPARAM point)
{
    return Is(control, TBS_VERT) ? GET_Y_LPARAM(point) : GET_X_LPARAM(point);
}

static void Resize(Control& control)
{
    control.bar.SetSize(LengthAlong(control), std::max(control.thumbLength / 2, 1));
    ::InvalidateRect(control.window, nullptr, FALSE);
}

// ---- Painting

static void DrawTicks(const Control& control, HDC dc)
{
    const Trackbar& bar = control.bar;
    const int side = 2 * kMargin + ThumbAcross(control);
    const int count = bar.TickCount();
    if (count > LengthAlong(control))  // they would run into each other
        return;
    for (int i = 0; i < count; ++i) {
        const std::int64_t value = bar.minimum() + std::int64_t{i} * bar.tickStep();
        const int pixel =
            bar.PixelOf(static_cast<int>(std::min<std::int64_t>(value, bar.maximum())));
        const RECT tick = Placed(control, pixel, pixel + 1, side, side + kTick);
        ::FillRect(dc, &tick, ::GetSysColorBrush(COLOR_BTNTEXT));
    }
}

static void DrawThumb(const Control& control, HDC dc)
{
    RECT thumb = ThumbArea(control);
    const UINT pushed = control.bar.dragging() ? DFCS_PUSHED : 0;
    const UINT disabled = ::IsWindowEnabled(control.window) ? 0 : DFCS_INACTIVE;
    ::DrawFrameControl(dc, &thumb, DFC_BUTTON, DFCS_BUTTONPUSH | pushed | disabled);
}

static void Paint(const Control& control)
{
    const BufferedPaint paint(control.window);
    RECT client = paint.client(), channel = ChannelArea(control);
    ::FillRect(paint.dc(), &client, ::GetSysColorBrush(COLOR_BTNFACE));
    ::DrawEdge(paint.dc(), &channel, EDGE_SUNKEN, BF_RECT);
    if (Is(control, TBS_AUTOTICKS) && !Is(control, TBS_NOTICKS))
        DrawTicks(control, paint.dc());
    DrawThumb(control, paint.dc());
    if (::GetFocus() == control.window)
        ::DrawFocusRect(paint.dc(), &client);
}

static void Redraw(const Control& control)
{
    ::InvalidateRect(control.window, nullptr, FALSE);
}

// ---- Reports to the parent

static void Report(const Control& control, TrackbarCode code)
{
    const bool withPosition =
        code == TrackbarCode::ThumbPosition || code == TrackbarCode::ThumbTrack;
    const int position = withPosition ? control.bar.position() : 0;
    ::SendMessageA(::GetParent(control.window), Is(control, TBS_VERT) ? WM_VSCROLL : WM_HSCROLL,
                   MAKEWPARAM(static_cast<int>(code), position),
                   reinterpret_cast<LPARAM>(control.window));
}

static void ShowAndReport(const Control& control, std::optional<TrackbarCode> code)
{
    if (!code)
        return;
    Redraw(control);
    ::UpdateWindow(control.window);
    Report(control, *code);
}

static void ReportAll(const Control& control, const std::vector<TrackbarCode>& codes)
{
    Redraw(control);
    for (const TrackbarCode code : codes)
        Report(control, code);
}

static void ReportReleasedCapture(const Control& control)
{
    NMHDR header{};
    header.hwndFrom = control.window;
    header.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(control.window));
    header.code = static_cast<UINT>(NM_RELEASEDCAPTURE);
    ::SendMessageA(::GetParent(control.window), WM_NOTIFY, header.idFrom,
                   reinterpret_cast<LPARAM>(&header));
}

// ---- Keys and mouse

static std::optional<TrackbarCode> CodeOfKey(WPARAM key)
{
    switch (key) {
        case VK_LEFT:
        case VK_UP:
            return TrackbarCode::LineUp;
        case VK_RIGHT:
        case VK_DOWN:
            return TrackbarCode::LineDown;
        case VK_PRIOR:
            return TrackbarCode::PageUp;
        case VK_NEXT:
            return TrackbarCode::PageDown;
        case VK_HOME:
            return TrackbarCode::Top;
        case VK_END:
            return TrackbarCode::Bottom;
        default:
            return {};
    }
}

static void KeyDown(Control& control, WPARAM key)
{
    if (const auto code = CodeOfKey(key); code && !control.bar.pressed())
        ShowAndReport(control, control.bar.Move(*code));
}

static void KeyUp(const Control& control, WPARAM key)
{
    if (CodeOfKey(key))
        Report(control, TrackbarCode::EndTrack);
}

static void ButtonDown(Control& control, LPARAM point)
{
    ::SetFocus(control.window);
    ::SetCapture(control.window);
    const auto code = control.bar.Press(PixelAlong(control, point));
    if (!control.bar.dragging())
        ::SetTimer(control.window, kTimer, kFirstRepeat, nullptr);
    Redraw(control);
    ShowAndReport(control, code);
}

static void Timer(Control& control)
{
    ::SetTimer(control.window, kTimer, kRepeat, nullptr);
    ShowAndReport(control, control.bar.Repeat());
}

static void ButtonUp(Control& control)
{
    ::KillTimer(control.window, kTimer);
    const auto codes = control.bar.Release();
    if (codes.empty())
        return;
    ::ReleaseCapture();
    ReportReleasedCapture(control);
    ReportAll(control, codes);
}

static void CaptureLost(Control& control)
{
    ::KillTimer(control.window, kTimer);
    ReportAll(control, control.bar.Cancel());
}

static void Wheel(Control& control, int turned)
{
    control.wheel += turned;
    const int notches = control.wheel / WHEEL_DELTA;
    control.wheel %= WHEEL_DELTA;
    const TrackbarCode code = notches > 0 ? TrackbarCode::LineUp : TrackbarCode::LineDown;
    for (int i = 0; i < std::abs(notches); ++i)
        ShowAndReport(control, control.bar.Move(code));
}

// ---- Messages of the standard control

static LRESULT SetPosition(Control& control, bool redraw, int position)
{
    control.bar.SetPosition(position);
    if (redraw)
        Redraw(control);
    return 0;
}

static LRESULT SetRange(Control& control, bool redraw, int minimum, int maximum)
{
    control.bar.SetRange(minimum, maximum);
    if (redraw)
        Redraw(control);
    return 0;
}

static LRESULT SetMaximum(Control& control, bool redraw, int maximum)
{
    return SetRange(control, redraw, std::min(control.bar.minimum(), maximum), maximum);
}

static LRESULT SetMinimum(Control& control, bool redraw, int minimum)
{
    return SetRange(control, redraw, minimum, std::max(control.bar.maximum(), minimum));
}

static LRESULT SetLineSize(Control& control, int size)
{
    const int previous = control.bar.lineSize();
    control.bar.SetLineSize(size);
    return previous;
}

static LRESULT SetPageSize(Control& control, int size)
{
    const int previous = control.bar.pageSize();
    control.bar.SetPageSize(size);
    return previous;
}

static LRESULT SetTickStep(Control& control, int step)
{
    control.bar.SetTickStep(step);
    Redraw(control);
    return 0;
}

static LRESULT SetThumbLength(Control& control, int length)
{
    control.thumbLength = std::max(length, 0);
    Resize(control);
    return 0;
}

static LRESULT CopyArea(LPARAM destination, const RECT& area)
{
    if (destination)
        *reinterpret_cast<RECT*>(destination) = area;
    return 0;
}

static LRESULT Handle(Control& control, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto value = static_cast<int>(lParam);
    const bool redraw = wParam != 0;
    switch (message) {
        case TBM_GETPOS:
            return control.bar.position();
        case TBM_GETRANGEMIN:
            return control.bar.minimum();
        case TBM_GETRANGEMAX:
            return control.bar.maximum();
        case TBM_SETPOS:
            return SetPosition(control, redraw, value);
        case TBM_SETRANGE:
            return SetRange(control, redraw, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        case TBM_SETRANGEMIN:
            return SetMinimum(control, redraw, value);
        case TBM_SETRANGEMAX:
            return SetMaximum(control, redraw, value);
        case TBM_GETLINESIZE:
            return control.bar.lineSize();
        case TBM_SETLINESIZE:
            return SetLineSize(control, value);
        case TBM_GETPAGESIZE:
            return control.bar.pageSize();
        case TBM_SETPAGESIZE:
            return SetPageSize(control, value);
        case TBM_SETTICFREQ:
            return SetTickStep(control, static_cast<int>(wParam));
        case TBM_GETNUMTICS:
            return Is(control, TBS_NOTICKS) ? 0 : control.bar.TickCount();
        case TBM_GETTHUMBLENGTH:
            return control.thumbLength;
        case TBM_SETTHUMBLENGTH:
            return SetThumbLength(control, static_cast<int>(wParam));
        case TBM_GETTHUMBRECT:
            return CopyArea(lParam, ThumbArea(control));
        case TBM_GETCHANNELRECT:
            return CopyArea(lParam, ChannelArea(control));
        case WM_PAINT:
            return Paint(control), 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            return Resize(control), 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
            return Redraw(control), 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_KEYDOWN:
            return KeyDown(control, wParam), 0;
        case WM_KEYUP:
            return KeyUp(control, wParam), 0;
        case WM_MOUSEWHEEL:
            return Wheel(control, GET_WHEEL_DELTA_WPARAM(wParam)), 0;
        case WM_LBUTTONDOWN:
            return ButtonDown(control, lParam), 0;
        case WM_MOUSEMOVE:
            return ShowAndReport(control, control.bar.MouseTo(PixelAlong(control, lParam))), 0;
        case WM_LBUTTONUP:
            return ButtonUp(control), 0;
        case WM_CAPTURECHANGED:
            return CaptureLost(control), 0;
        case WM_TIMER:
            return Timer(control), 0;
        default:
            return ::DefWindowProcA(control.window, message, wParam, lParam);
    }
}

// ---- The window

// The window's property owns the control; a message that is being handled owns it as well, as the
// parent may destroy the window at any report.
using Owner = std::shared_ptr<Control>;

static LRESULT Create(HWND window, WPARAM wParam, LPARAM lParam)
{
    auto owner = std::make_unique<Owner>(std::make_shared<Control>(Control{window, {}}));
    if (!::SetPropA(window, kProperty, owner.get()))
        return FALSE;
    static_cast<void>(owner.release());  // the window holds it from now on
    return ::DefWindowProcA(window, WM_NCCREATE, wParam, lParam);
}

static LRESULT Destroy(HWND window, WPARAM wParam, LPARAM lParam)
{
    delete static_cast<Owner*>(::RemovePropA(window, kProperty));
    return ::DefWindowProcA(window, WM_NCDESTROY, wParam, lParam);
}

static LRESULT HandleFor(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* owner = static_cast<const Owner*>(::GetPropA(window, kProperty));
    if (!owner)
        return ::DefWindowProcA(window, message, wParam, lParam);
    const Owner control = *owner;
    return Handle(*control, message, wParam, lParam);
}

LRESULT CALLBACK TrackbarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
        case WM_NCCREATE:
            return Create(window, wParam, lParam);
        case WM_NCDESTROY:
            return Destroy(window, wParam, lParam);
        default:
            return HandleFor(window, message, wParam, lParam);
    }
}

}  // namespace qx::win32
