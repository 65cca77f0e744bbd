// Tooltips that appear over real controls.
#include "support/win32_screen.h"

#include <qxutility/ui/tool_tipper.h>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

using namespace qx::test;

namespace {

// A window with two buttons that answers what their tooltips ask.
class Owner {
  public:
    Owner()
    {
        ::SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
        ::MoveWindow(second, 10, 140, 200, 80, TRUE);
        ::SetForegroundWindow(m_window);
        MoveMouse(m_window, 300, 200);
    }

    HWND window() const { return m_window; }

    std::string text = "Tip of ";
    int asked = 0;
    std::function<void()> whenAsked;  // the first time only

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* owner = reinterpret_cast<Owner*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message == WM_NOTIFY) {
            auto* info = reinterpret_cast<NMTTDISPINFOA*>(lParam);
            if (info->hdr.code == static_cast<UINT>(TTN_GETDISPINFOA))
                owner->Answer(*info);
        }
        return ::DefWindowProcA(window, message, wParam, lParam);
    }
    void Answer(NMTTDISPINFOA& info)
    {
        ++asked;
        m_answer = text + TextOf(reinterpret_cast<HWND>(info.hdr.idFrom));
        info.lpszText = m_answer.data();
        if (const auto act = std::exchange(whenAsked, nullptr))
            act();
    }

    TestWindow m_window{"Tips"};
    std::string m_answer;

  public:
    HWND first = MakeChild(m_window, "Button", "one && only", 0, 101);
    HWND second = MakeChild(m_window, "Button", "two", 0, 102);
};

HWND tooltipFound;

BOOL CALLBACK FindTooltip(HWND window, LPARAM owner)
{
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    if (std::string(name) == TOOLTIPS_CLASSA &&
        ::GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner))
        tooltipFound = window;
    return TRUE;
}

HWND TooltipOf(HWND owner)
{
    tooltipFound = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindTooltip, reinterpret_cast<LPARAM>(owner));
    return tooltipFound;
}

bool Shows(const Owner& owner, HWND over)
{
    const HWND tooltip = TooltipOf(owner.window());
    MoveMouse(over, 10, 10);
    MoveMouse(over, 12, 12);
    return PumpUntil([&] { return ::IsWindowVisible(tooltip) != 0; });
}

TEST(ToolTipper, ShowsATextThatItsOwnerSupplies)
{
    Owner owner;
    ToolTipper tips(owner.window());
    tips.AddTip(owner.first);
    const HWND tooltip = TooltipOf(owner.window());
    ASSERT_NE(nullptr, tooltip);
    EXPECT_TRUE(::GetWindowLongA(tooltip, GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_TRUE(Shows(owner, owner.first));
    EXPECT_LT(0, owner.asked);
    EXPECT_EQ("Tip of one && only", TextOf(tooltip));
    RECT area;
    ::GetWindowRect(tooltip, &area);
    EXPECT_LT(40, area.right - area.left) << "as wide as its text";
}

TEST(ToolTipper, KnowsOnlyTheWindowsThatWereAddedAndNotRemoved)
{
    Owner owner;
    ToolTipper tips(owner.window());
    tips.AddTip(owner.first);
    tips.AddTip(owner.second);
    const HWND tooltip = TooltipOf(owner.window());
    EXPECT_EQ(2, ::SendMessageA(tooltip, TTM_GETTOOLCOUNT, 0, 0));
    tips.DeleteTip(owner.first);
    EXPECT_EQ(1, ::SendMessageA(tooltip, TTM_GETTOOLCOUNT, 0, 0));
    EXPECT_TRUE(Shows(owner, owner.second));
    EXPECT_EQ("Tip of two", TextOf(tooltip));

    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.hwnd = owner.window();
    tool.uId = 7;
    tool.rect = {0, 0, 50, 50};
    char text[] = "Area";
    tool.lpszText = text;
    tips.AddTip(&tool);
    EXPECT_EQ(2, ::SendMessageA(tooltip, TTM_GETTOOLCOUNT, 0, 0));
    tips.DeleteTip(&tool);
    EXPECT_EQ(1, ::SendMessageA(tooltip, TTM_GETTOOLCOUNT, 0, 0));
}

TEST(ToolTipper, TakesTextsOfAnyLength)
{
    Owner owner;
    ToolTipper tips(owner.window());
    tips.AddTip(owner.first);
    owner.text = std::string(100'000, 'x');
    MoveMouse(owner.first, 10, 10);
    MoveMouse(owner.first, 12, 12);
    EXPECT_TRUE(PumpUntil([&] { return owner.asked > 0; }));
}

TEST(ToolTipper, MayEndWithTheControlWhileTheTextIsAskedFor)
{
    Owner owner;
    auto tips = std::make_unique<ToolTipper>(owner.window());
    tips->AddTip(owner.first);
    owner.whenAsked = [&] {
        tips.reset();
        ::DestroyWindow(owner.first);
    };
    MoveMouse(owner.first, 10, 10);
    MoveMouse(owner.first, 12, 12);
    EXPECT_TRUE(PumpUntil([&] { return owner.asked > 0; }));
    PumpWaiting();
    EXPECT_FALSE(::IsWindow(owner.first));
}

TEST(ToolTipper, WindowGoesWithItsOwner)
{
    HWND tooltip;
    std::unique_ptr<ToolTipper> tips;
    {
        const Owner owner;
        tips = std::make_unique<ToolTipper>(owner.window());
        tips->AddTip(owner.first);
        tooltip = TooltipOf(owner.window());
        ToolTipper(owner.window()).AddTip(owner.second);
        EXPECT_TRUE(::IsWindow(tooltip));
    }
    EXPECT_FALSE(::IsWindow(tooltip));
    tips->AddTip(static_cast<HWND>(nullptr));
    tips->DeleteTip(tooltip);
}

}  // namespace
