// Everything that opens windows, a thousand times: the process then holds what it held before.
#include "panel_fixture.h"

#include <qxutility/ui/browse_box.h>
#include <qxutility/ui/dialog_fields.h>
#include <qxutility/ui/tool_tipper.h>
#include <qxutility/ui/warning_list.h>
#include <qxutility/ui/window_layout.h>

#include <array>
#include <gmock/gmock.h>

using namespace qx;
using namespace qx::test;

namespace {

constexpr int kRounds = 1000;

class OpenClose : public testing::Test {
  protected:
    // The first rounds leave what the system itself keeps from then on.
    void LeavesNothingBehind(const std::function<void(int round)>& round)
    {
        for (int i = 0; i < 8; ++i)
            round(i);
        const ObjectCounts before = CountObjects();
        for (int i = 0; i < kRounds; ++i)
            round(i);
        EXPECT_EQ(before, CountObjects());
        EXPECT_EQ(nullptr, ::GetWindow(m_owner, GW_CHILD));
    }

    TestWindow m_owner{"Rounds"};
    int m_closed = 0;
    // Modal dialogs of the owner are cancelled as soon as they stand and are painted.
    Spy m_closer{m_owner, [this](UINT message, WPARAM, LPARAM dialog) -> std::optional<LRESULT> {
                     if (message != WM_ENTERIDLE)
                         return {};
                     ++m_closed;
                     ::SendMessageA(reinterpret_cast<HWND>(dialog), WM_COMMAND, IDCANCEL, 0);
                     return 0;
                 }};
};

INT_PTR CALLBACK EndWhenCancelled(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        return ::EndDialog(dialog, IDCANCEL);
    return FALSE;
}

// A sheet is cancelled as soon as it is to be shown.
LRESULT CALLBACK CancelSheet(int code, WPARAM window, LPARAM lParam)
{
    if (code == HCBT_ACTIVATE)
        ::PostMessageA(reinterpret_cast<HWND>(window), PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    return ::CallNextHookEx(nullptr, code, window, lParam);
}

}  // namespace

TEST_F(OpenClose, WindowLayout)
{
    const TestWindow other("Other");
    const HWND child = MakeChild(other, "Static", "", 0, 101);
    LeavesNothingBehind([&](int i) {
        const HWND host = MakeChild(m_owner, "Static", "", WS_BORDER, 102);
        auto layout = std::make_unique<::WindowLayout>(host);
        layout->AddWindow(child, 50, kPaneLeft | kPaneAcross | kPaneSizable | kPaneEdge, nullptr);
        layout->ReCalcLayout();
        if (i % 2 == 0)
            layout.reset();
        ::SetParent(child, other);
        ::DestroyWindow(host);
    });
}

TEST_F(OpenClose, ButtonPanel)
{
    const Pictures pictures;
    const std::string contents[] = {pictures.Three(), Resource("test_pictures.dll", "7"),
                                    Quick("<icon>9</icon><text>T</text>"),
                                    Quick("<icon>no extension</icon>")};
    LeavesNothingBehind([&](int i) {
        XMLDocument document;
        document.UseData(("<layout>" + Button(0, 0, contents[i % 4]) + "</layout>").c_str(), -1);
        const Layout layout(m_owner, m_owner, ::GetModuleHandleA(nullptr), &document);
        const HWND panel = ::GetDlgItem(m_owner, 5000);
        ::SendMessageA(panel, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ::UpdateWindow(panel);
        if (i % 8 < 4)
            ::DestroyWindow(panel);
    });
}

TEST_F(OpenClose, SmartButton)
{
    const Pictures pictures;
    XMLDocument document;
    document.UseData(Button(3, 4, pictures.Three()).c_str(), -1);
    LeavesNothingBehind([&](int) {
        ::SmartButton button(::GetModuleHandleA(nullptr), m_owner);
        button.ReadXML(document.FirstElement());
        button.ReadXML(document.FirstElement());  // in place of the first pictures
        button.SetState(::SmartButton::rollover);
    });
}

TEST_F(OpenClose, ToolTipper)
{
    LeavesNothingBehind([](int) {
        const HWND owner = ::CreateWindowA("Static", "", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr,
                                           nullptr, nullptr);
        ::ToolTipper tips(owner);
        tips.AddTip(MakeChild(owner, "Button", "", 0, 101));
        ::DestroyWindow(owner);  // and with it the tooltip
    });
}

TEST_F(OpenClose, BrowseBox)
{
    const TemporaryFolder folder;
    for (const char* name : {"Pumps.dat", "Valves.dat"})
        folder.Write(name, "x");
    CBrowseBox box(folder.Path().c_str(), "*.dat");
    LeavesNothingBehind([&](int) { EXPECT_EQ(IDCANCEL, box.Display(m_owner)); });
    EXPECT_GE(m_closed, kRounds);
}

TEST_F(OpenClose, WarningList)
{
    QXWarningList warnings(nullptr, 0, 0, nullptr, nullptr);
    warnings.add("Pipe 1 is too long", nullptr);
    LeavesNothingBehind([&](int) { warnings.display(m_owner); });
    EXPECT_GE(m_closed, kRounds);
}

TEST_F(OpenClose, DialogBox)
{
    const HMODULE library = ::GetModuleHandleA("QXUtility.dll");
    LeavesNothingBehind([&](int) {
        EXPECT_EQ(IDCANCEL, ShowDialogBox(library, m_owner, EndWhenCancelled, 104, 0));
    });
    EXPECT_GE(m_closed, kRounds);
}

TEST_F(OpenClose, KeyPressDelay)
{
    LeavesNothingBehind([&](int) {
        const HWND edit = MakeChild(m_owner, "Edit", "", 0, 101);
        MakeKeyPressDelay(m_owner, 101, 60'000);
        ::SendMessageA(edit, WM_CHAR, '1', 1);
        ::DestroyWindow(edit);
    });
}

TEST_F(OpenClose, PropertySheet)
{
    static const struct {
        DLGTEMPLATE header{WS_CHILD | WS_CAPTION, 0, 0, 0, 0, 180, 90};
        WORD menu = 0, windowClass = 0, title = 0;
    } page;
    const HHOOK hook = ::SetWindowsHookExA(WH_CBT, CancelSheet, nullptr, ::GetCurrentThreadId());
    LeavesNothingBehind([&](int) {
        PROPSHEETPAGEA record;
        PropSheetPageFirst(nullptr, &record, 0, EndWhenCancelled, 0, false, "Page");
        record.dwFlags |= PSP_DLGINDIRECT;
        record.pResource = &page.header;
        HPROPSHEETPAGE handle = ::CreatePropertySheetPageA(&record);
        PROPSHEETHEADERA header{};
        header.dwSize = PROPSHEETHEADERA_V1_SIZE;
        header.dwFlags = PSH_USECALLBACK;
        header.hwndParent = m_owner;
        header.pszCaption = "Sheet";
        header.nPages = 1;
        header.phpage = &handle;
        header.pfnCallback = PropSheetProc;
        EXPECT_EQ(0, ::PropertySheetA(&header));
    });
    ::UnhookWindowsHookEx(hook);
}
