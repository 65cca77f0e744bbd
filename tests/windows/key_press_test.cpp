// Edit controls that report a pause after typing, with real keys and real time.
#include "support/win32_ui.h"

#include <qxutility/ui/dialog_fields.h>

#include <gmock/gmock.h>

using namespace qx::test;

static constexpr int kEdit = 7, kOther = 8;
static constexpr long kDelay = 150;  // milliseconds

namespace {

struct Report {
    int id;
    HWND control;
    ULONGLONG time;
};

// A window that notes what looks like a control that has lost the focus.
class Typing : public testing::Test {
  protected:
    Typing()
    {
        ::SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
        ::SetForegroundWindow(m_window);
        ::SetFocus(m_edit);
        MakeKeyPressDelay(m_window, kEdit, kDelay);
        PumpWaiting();
        reports.clear();
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto& self = *reinterpret_cast<Typing*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS) {
            self.reports.push_back(
                {LOWORD(wParam), reinterpret_cast<HWND>(lParam), ::GetTickCount64()});
            if (self.onReport)
                self.onReport();
        }
        return ::DefWindowProcA(window, message, wParam, lParam);
    }

    void Type(char key) { ::PostMessageA(m_edit, WM_CHAR, static_cast<WPARAM>(key), 1); }
    bool Waits() const { return ::GetPropA(m_edit, "TIMER") == m_edit; }

    std::vector<Report> reports;
    std::function<void()> onReport;
    TestWindow m_window{"Typing"};
    HWND m_edit = MakeChild(m_window, "Edit", "", WS_TABSTOP, kEdit);
    HWND m_other = MakeChild(m_window, "Edit", "", WS_TABSTOP, kOther);
};

}  // namespace

TEST_F(Typing, IsReportedOnceAfterThePause)
{
    ULONGLONG last = 0;
    for (const char key : {'1', '2', '3'}) {
        Type(key);
        last = ::GetTickCount64();
        PumpUntil([&] { return ::GetTickCount64() >= last + kDelay / 2; });
    }
    EXPECT_THAT(reports, testing::IsEmpty());
    EXPECT_TRUE(PumpUntil([&] { return !reports.empty(); }));
    EXPECT_LE(last + kDelay - 20, reports[0].time);
    EXPECT_EQ(kEdit, reports[0].id);
    EXPECT_EQ(m_edit, reports[0].control);
    EXPECT_EQ("123", TextOf(m_edit));
    EXPECT_FALSE(Waits());
    EXPECT_FALSE(PumpUntil([&] { return reports.size() > 1; }, 2 * kDelay));
}

TEST_F(Typing, IsNotReportedWhenTheFieldIsLeftFirst)
{
    Type('1');
    EXPECT_TRUE(PumpUntil([&] { return Waits(); }));
    ::SetFocus(m_other);
    EXPECT_FALSE(Waits());
    EXPECT_EQ(1u, reports.size()) << "what the control itself sends";
    ::PostMessageA(m_edit, WM_TIMER, 5, 0);  // one that was on its way already
    EXPECT_FALSE(PumpUntil([&] { return reports.size() > 1; }, 2 * kDelay));
}

TEST_F(Typing, ASecondCallChangesTheDelay)
{
    MakeKeyPressDelay(m_window, kEdit, 60'000);
    Type('1');
    EXPECT_TRUE(PumpUntil([&] { return Waits(); }));
    EXPECT_FALSE(PumpUntil([&] { return !reports.empty(); }, 2 * kDelay));
    MakeKeyPressDelay(m_window, kEdit, 1);
    Type('2');
    EXPECT_TRUE(PumpUntil([&] { return !reports.empty(); }));
    EXPECT_EQ("12", TextOf(m_edit));
}

TEST_F(Typing, SurvivesTheEndOfTheControlWhileItIsReported)
{
    onReport = [this] { ::DestroyWindow(m_edit); };
    Type('1');
    EXPECT_TRUE(PumpUntil([&] { return !reports.empty(); }));
    EXPECT_FALSE(::IsWindow(m_edit));
}

TEST_F(Typing, SurvivesTheEndOfTheControlWhileItWaits)
{
    Type('1');
    EXPECT_TRUE(PumpUntil([&] { return Waits(); }));
    ::DestroyWindow(m_edit);
    reports.clear();  // the control itself has said that it lost the focus
    EXPECT_FALSE(PumpUntil([&] { return !reports.empty(); }, 2 * kDelay));
}

TEST_F(Typing, TimersOfTheControlItselfAreNoPause)
{
    Type('1');
    EXPECT_TRUE(PumpUntil([&] { return Waits(); }));
    ::SendMessageA(m_edit, WM_TIMER, 1, 0);
    EXPECT_THAT(reports, testing::IsEmpty());
    EXPECT_TRUE(Waits());
}
