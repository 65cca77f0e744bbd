#include <qxutility/ui/tool_tipper.h>

ToolTipper::ToolTipper(HWND owner)
{
    Init(owner);
}

ToolTipper::~ToolTipper() = default;

void ToolTipper::Init(HWND owner)
{
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);
    const auto module = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(owner, GWLP_HINSTANCE));
    m_owner = owner;
    m_tooltip =
        ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                          WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, module, nullptr);
    ::SetWindowPos(m_tooltip, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// The record's size is that of the oldest common controls: the newer ones take it, too.
static TOOLINFOA ToolOf(HWND owner, HWND window)
{
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = owner;
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = LPSTR_TEXTCALLBACKA;
    return tool;
}

void ToolTipper::AddTip(HWND window)
{
    TOOLINFOA tool = ToolOf(m_owner, window);
    AddTip(&tool);
}

void ToolTipper::DeleteTip(HWND window)
{
    TOOLINFOA tool = ToolOf(m_owner, window);
    DeleteTip(&tool);
}

void ToolTipper::AddTip(TOOLINFOA* tool)
{
    ::SendMessageA(m_tooltip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(tool));
}

void ToolTipper::DeleteTip(TOOLINFOA* tool)
{
    ::SendMessageA(m_tooltip, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(tool));
}
