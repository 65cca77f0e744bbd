#include "ui/button_panel.h"
#include "win32/window_class.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/ui/button_panel.h>

#include <windowsx.h>

using namespace qx;

static constexpr char kPanelClass[] = "BtnLayout";
static constexpr INT_PTR kPanelId = 5000;

// ---- Life

Layout::Layout(HWND parent, HWND target, HINSTANCE module, XMLElement* element)
    : m_module(module), m_parent(parent), m_target(target)
{
    RegisterPanelClass();
    XMLElement* layout = element ? element->FindElement("layout") : nullptr;
    if (!layout)
        return;
    m_panel = ::CreateWindowExA(0, kPanelClass, "", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 100, 100,
                                parent, reinterpret_cast<HMENU>(kPanelId), module, this);
    if (!m_panel)
        return;
    ReadButtons(*layout);
    RECT client;
    ::GetClientRect(parent, &client);
    Center(client);
    Show(true);
}

Layout::~Layout()
{
    if (m_panel)
        ::DestroyWindow(m_panel);
    if (m_registered)  // fails as long as there are other panels
        ::UnregisterClassA(kPanelClass, m_module);
}

void Layout::RegisterPanelClass()
{
    m_registered = win32::RegisterPlainClass(m_module, kPanelClass, Procedure);
}

// Comments and stray end tags are elements without a name, and no buttons.
static bool HasName(const XMLElement& element)
{
    char name[2];
    element.GetElementName(name, sizeof name);
    return name[0] != '\0';
}

void Layout::ReadButtons(XMLElement& layout)
{
    std::unique_ptr<SmartButton>* end = &m_first;
    for (XMLElement* element = layout.FirstElement(); element; element = layout.NextElement()) {
        if (!HasName(*element))
            continue;
        *end = std::make_unique<SmartButton>(m_module, m_panel);
        (*end)->ReadXML(element);
        end = &(*end)->m_next;
    }
}

void Layout::WindowDestroyed()
{
    ::SetWindowLongPtrA(m_panel, GWLP_USERDATA, 0);
    m_panel = nullptr;
    m_tracked = nullptr;
}

// ---- Place and picture

void Layout::Show(bool show)
{
    ::ShowWindow(m_panel, show ? SW_SHOW : SW_HIDE);
}

void Layout::CalcSize(int& width, int& height) const
{
    width = height = 0;
    for (const SmartButton* button = m_first.get(); button; button = button->m_next.get())
        button->CalcSize(width, height);
}

void Layout::Center(const RECT& within)
{
    int width, height;
    CalcSize(width, height);
    const RECT area = Centred({width, height}, within);
    ::SetWindowPos(m_panel, HWND_BOTTOM, area.left, area.top, area.right - area.left,
                   area.bottom - area.top, SWP_NOACTIVATE);
}

void Layout::Paint(HDC dc)
{
    for (SmartButton* button = m_first.get(); button; button = button->m_next.get())
        button->Draw(dc);
}

// ---- Mouse

SmartButton* Layout::FindButton(int x, int y) const
{
    SmartButton* found = nullptr;
    for (SmartButton* button = m_first.get(); button; button = button->m_next.get()) {
        if (button->bInRect(x, y))
            found = button;
    }
    return found;
}

static Layout* LayoutOf(HWND panel)
{
    return reinterpret_cast<Layout*>(::GetWindowLongPtrA(panel, GWLP_USERDATA));
}

// What a button opens may end the panel: it is looked for anew each time.
static void Do(HWND panel, HWND target, const ButtonSteps<SmartButton>& steps)
{
    for (const auto& step : steps) {
        if (!LayoutOf(panel))
            return;
        if (step.what == ButtonStep<SmartButton>::What::Go)
            step.button->Go(target);
        else
            step.button->SetState(static_cast<SmartButton::BtnState>(step.state));
    }
}

void Layout::MouseMove(int x, int y, bool held)
{
    TRACKMOUSEEVENT request{sizeof request, TME_LEAVE, m_panel, 0};
    ::TrackMouseEvent(&request);
    Do(m_panel, m_target, OnMouseMove(m_tracked, FindButton(x, y), held));
}

void Layout::MouseDown(int x, int y)
{
    Do(m_panel, m_target, OnMouseDown(FindButton(x, y)));
}

void Layout::MouseUp(int x, int y)
{
    Do(m_panel, m_target, OnMouseUp(m_tracked, FindButton(x, y)));
}

void Layout::MouseLeave()
{
    Do(m_panel, m_target, OnMouseLeave(m_tracked));
}

void Layout::SetCursor() const
{
    const bool active = m_tracked && m_tracked->HasAction();
    ::SetCursor(::LoadCursorA(nullptr, active ? IDC_HAND : IDC_ARROW));
}

// ---- The window

namespace {

// Answers WM_PAINT while it lives.
class PaintDc {
  public:
    explicit PaintDc(HWND window) : m_window(window), m_dc(::BeginPaint(window, &m_paint)) {}
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    ~PaintDc() { ::EndPaint(m_window, &m_paint); }

    HDC dc() const { return m_dc; }

  private:
    HWND m_window;
    PAINTSTRUCT m_paint;
    HDC m_dc;
};

}  // namespace

static void Create(HWND panel, LPARAM lParam)
{
    const auto* description = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    ::SetWindowLongPtrA(panel, GWLP_USERDATA,
                        reinterpret_cast<LONG_PTR>(description->lpCreateParams));
}

LRESULT CALLBACK Layout::Procedure(HWND panel, UINT message, WPARAM wParam, LPARAM lParam)
{
    Layout* layout = LayoutOf(panel);
    if (message == WM_CREATE)
        return Create(panel, lParam), 0;
    if (!layout)
        return ::DefWindowProcA(panel, message, wParam, lParam);
    const int x = GET_X_LPARAM(lParam), y = GET_Y_LPARAM(lParam);
    switch (message) {
        case WM_DESTROY:
            return layout->WindowDestroyed(), 0;
        case WM_PAINT:
            return layout->Paint(PaintDc(panel).dc()), 0;
        case WM_SETCURSOR:
            return layout->SetCursor(), TRUE;
        case WM_MOUSEMOVE:
            return layout->MouseMove(x, y, (wParam & MK_LBUTTON) != 0), 0;
        case WM_LBUTTONDOWN:
            return layout->MouseDown(x, y), 0;
        case WM_LBUTTONUP:
            return layout->MouseUp(x, y), 0;
        case WM_MOUSELEAVE:
            return layout->MouseLeave(), 0;
        default:
            return ::DefWindowProcA(panel, message, wParam, lParam);
    }
}
