// Print jobs on a printer whose every call can fail.
#include "config/process.h"
#include "doubles/message_box_double.h"
#include "doubles/print_system_double.h"
#include "print/win32/cancel_window.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/print/print_job.h>

#include <climits>
#include <cmath>
#include <functional>
#include <gmock/gmock.h>
#include <memory>

using namespace qx;
using namespace qx::test;
using testing::ElementsAre;
using testing::EndsWith;

namespace {

constexpr int kDocumentName = 501, kCancelButton = 504;

// Texts and dialogs are those of the library that stands beside the test.
class PrintJob : public testing::Test {
  protected:
    PrintJob()
    {
        AttachProcess(::LoadLibraryA("QXUtility.dll"));
        ChangeINIFileName(folder.Path("kvl.ini").c_str());
    }
    ~PrintJob() override { DetachProcess(); }

    // The boxes shown: the number of the string, what follows it, and "!" or "i" for the icon.
    std::string Told() const;
    // What failed and what was told then, for each call of a whole job that can fail.
    std::vector<std::string> RunWithEachFailure(HWND owner);

    TemporaryFolder folder;
    MessageBoxDouble boxes;
};

BOOL CALLBACK FindCancelWindow(HWND window, LPARAM found)
{
    if (::GetDlgItem(window, kCancelButton))
        *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

HWND CancelWindow()
{
    HWND window = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindCancelWindow,
                        reinterpret_cast<LPARAM>(&window));
    return window;
}

void ExpectNothingLeft(const PrintSystemDouble& system, HWND owner)
{
    EXPECT_EQ(0, system.held) << system.failed;
    EXPECT_EQ(0, system.locked) << system.failed;
    EXPECT_NE("started", system.document) << system.failed;
    EXPECT_TRUE(!owner || ::IsWindowEnabled(owner)) << system.failed;
    EXPECT_FALSE(CancelWindow()) << system.failed;
}

std::string PrintJob::Told() const
{
    std::string told;
    for (const ShownBox& box : boxes.shown) {
        EXPECT_EQ("KVL Print", box.caption);
        for (unsigned id = 1005; id <= 1012; ++id) {
            const std::string text = Process().language.String(nullptr, id);
            if (!text.empty() && box.text.starts_with(text))
                told += std::to_string(id) + box.text.substr(text.size());
        }
        told += box.style == MB_ICONSTOP ? "!" : box.style == MB_ICONINFORMATION ? "i" : "";
    }
    return told;
}

// A document of one page. SetupPrinter again: what it replaces is not left either.
void PrintPage(HWND owner)
{
    QXPrint print;
    print.SetupPrinter(owner, true, "DEF");
    if (!print.SetupPrint(owner, "Report"))
        return;
    int result = print.PageStart();
    if (result > 0)
        result = print.PageEnd();
    print.EndPrint(result);
}

std::vector<std::string> PrintJob::RunWithEachFailure(HWND owner)
{
    std::vector<std::string> outcomes;
    for (int call = 1; call < 100; ++call) {
        PrintSystemDouble system;
        system.failAt = call;
        boxes.shown.clear();
        boxes.answers.assign(owner ? 1 : 0, IDOK);
        PrintPage(owner);
        ExpectNothingLeft(system, owner);
        boxes.answers.clear();
        if (system.failed.empty())
            return outcomes;
        outcomes.push_back(system.failed + " " + Told());
    }
    return outcomes;
}

TEST_F(PrintJob, LeavesNothingBehindWhicheverCallFails)
{
    const TestWindow owner("Owner");
    EXPECT_THAT(
        RunWithEachFailure(owner),
        ElementsAre("PrintDlgA ", "GlobalLock ", "OpenPrinterA ", "OpenPrinterA ",
                    "PrintDlgA 1009i", "GlobalLock ", "GlobalLock 1005!", "GlobalLock 1005!",
                    "CreateDCA 1006!", "StartDocA 1006!", "GlobalLock ", "CreateDialogParamA 1005!",
                    "CreateFontA 1006!", "CreateFontA 1006!", "SelectObject 1006!",
                    "GetTextMetricsA 1006!", "SelectObject ", "SetAbortProc ",
                    "StartPage 1006, code: -1", "EndPage 1006, code: -1", "EndDoc 1006, code: -1"));
}

TEST_F(PrintJob, WithoutOwnerShowsNoBox)
{
    EXPECT_EQ(19U, RunWithEachFailure(nullptr).size());
}

TEST_F(PrintJob, EndsWithItsObject)
{
    const TestWindow owner("Owner");
    PrintSystemDouble system;
    boxes.answers = {IDOK};
    {
        QXPrint print;
        print.pdf = true;
        EXPECT_FALSE(print.SetupPrint(owner, "Report"));
        EXPECT_EQ("1012i", Told());
        print.pdf = false;  // the user's printer is as it was
        EXPECT_TRUE(print.SetupPrint(owner, "Report"));
    }
    EXPECT_EQ("aborted", system.document);
    ExpectNothingLeft(system, owner);
}

TEST_F(PrintJob, SettlesNameAndSettings)
{
    PrintSystemDouble system;
    system.mode.dmFields = DM_PAPERSIZE;
    system.mode.dmOrientation = DMORIENT_LANDSCAPE;
    QXPrint print;
    EXPECT_TRUE(print.landscape) << "as the printer has it";
    print.landscape = false;
    print.color = true;
    ASSERT_TRUE(print.SetupPrint(std::string(10000, 't')));
    EXPECT_EQ("device", system.device);
    EXPECT_EQ(std::string(63, 't'), system.name);
    EXPECT_EQ(static_cast<DWORD>(DM_PAPERSIZE | DM_COPIES | DM_COLOR), system.mode.dmFields);
    EXPECT_EQ(1, system.mode.dmCopies);
    EXPECT_EQ(DMORIENT_PORTRAIT, system.mode.dmOrientation);
    EXPECT_EQ(DMCOLOR_COLOR, system.mode.dmColor);

    QXPrint second;
    EXPECT_FALSE(second.SetupPrint("Second")) << "while the first job runs";
    EXPECT_FALSE(print.SetupPrint("Again"));
    print.EndPrint(1);
    EXPECT_EQ("ended", system.document);
    EXPECT_TRUE(second.SetupPrint(nullptr, nullptr));
    second.EndPrint(1);
    second.EndPrint(-1);
    EXPECT_EQ("ended", system.document) << "there is no job to abort";
}

TEST_F(PrintJob, MeasuresThePage)
{
    PrintSystemDouble system;
    QXPrint print;
    print.margins = {INT_MAX, INT_MAX, INT_MAX, INT_MAX};  // larger than the page
    ASSERT_TRUE(print.SetupPrint(""));
    EXPECT_EQ(-1, print.lastLine);
    EXPECT_GT(print.lineHeight, 5);
    EXPECT_GT(print.CharWidth(), 2);
    print.EndPrint(1);
    EXPECT_EQ(0, print.CharWidth());

    system.noResolution = true;
    ASSERT_TRUE(print.SetupPrint(""));
    EXPECT_EQ(-1, print.lastLine);
    EXPECT_EQ(-1, print.right);
    print.EndPrint(1);
}

TEST_F(PrintJob, IsCancelledOnAnyPage)
{
    const TestWindow owner("Owner");
    for (int last = 0; last < 3; ++last) {
        PrintSystemDouble system;
        boxes.shown.clear();
        boxes.answers = {IDOK};
        QXPrint print;
        ASSERT_TRUE(print.SetupPrint(owner, "Report"));
        const HWND window = CancelWindow();
        ASSERT_TRUE(window);
        EXPECT_EQ("Report", TextOfItem(window, kDocumentName));
        EXPECT_FALSE(::IsWindowEnabled(owner));
        for (int page = 0; page <= last; ++page) {
            EXPECT_FALSE(print.CancelPrint());
            if (page == last)
                Press(window, page == 0 ? kCancelButton : IDCANCEL);
            EXPECT_EQ(page < last, system.abort(print.GetDC(), 0) != FALSE) << page;
        }
        EXPECT_TRUE(print.CancelPrint());
        EXPECT_TRUE(::IsWindowEnabled(owner));
        print.EndPrint(1);
        EXPECT_EQ("1008", Told());
        EXPECT_EQ("aborted", system.document);
    }
}

std::function<void()> onOwnMessage;

LRESULT CALLBACK HandleOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP)
        onOwnMessage();
    return ::DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(PrintJob, IsEndedOnlyByWhoPrints)
{
    const TestWindow owner("Owner");
    ::SetWindowLongPtrA(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(HandleOwnMessage));
    PrintSystemDouble system;
    QXPrint print;
    const HDC dc = print.SetupPrint(owner, "Report");
    bool handled = false;
    onOwnMessage = [&] {
        handled = true;
        print.EndPrint(1);
    };
    ::PostMessageA(owner, WM_APP, 0, 0);
    EXPECT_TRUE(system.abort(dc, 0));
    EXPECT_TRUE(handled);
    EXPECT_EQ(dc, print.GetDC());

    system.onEndDoc = [&] {
        print.EndPrint(1);
        EXPECT_EQ(dc, print.GetDC());
        Press(CancelWindow(), kCancelButton);  // too late
    };
    print.EndPrint(1);
    EXPECT_EQ("", Told());
    EXPECT_EQ("ended", system.document);
    EXPECT_EQ(2, system.held) << "its printer";
}

TEST_F(PrintJob, IsCancelledWhenItsOwnerGoes)
{
    PrintSystemDouble system;
    boxes.answers = {IDOK};
    QXPrint print;
    {
        const TestWindow owner("Owner");
        ASSERT_TRUE(print.SetupPrint(owner, "Report"));
    }
    EXPECT_TRUE(print.CancelPrint());
    print.EndPrint(1);
}

TEST_F(PrintJob, IsCancelledWhenTheProgramEnds)
{
    const TestWindow owner("Owner");
    PrintSystemDouble system;
    boxes.answers = {IDOK};
    {
        QXPrint print;
        ASSERT_TRUE(print.SetupPrint(owner, "Report"));
        ::PostQuitMessage(7);
        EXPECT_FALSE(system.abort(print.GetDC(), 0));
        print.EndPrint(1);
    }
    ExpectNothingLeft(system, owner);
    MSG message{};
    EXPECT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7U, message.wParam);
}

TEST_F(PrintJob, CancelWindowIsOneAndCounted)
{
    const TestWindow owner("Owner", 600, 400);
    win32::CloseCancelWindow();  // none is open
    EXPECT_TRUE(win32::OpenCancelWindow(owner, "A"));
    const HWND window = CancelWindow();
    EXPECT_TRUE(win32::OpenCancelWindow(owner, "B"));
    EXPECT_EQ("A", TextOfItem(window, kDocumentName));
    RECT client{}, area{};
    ::GetClientRect(owner, &client);
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(nullptr, owner, reinterpret_cast<POINT*>(&area), 2);
    EXPECT_EQ(client.bottom / 20, area.top);
    EXPECT_NEAR(client.right - area.right, area.left, 1);
    win32::CloseCancelWindow();
    EXPECT_TRUE(::IsWindow(window));
    win32::CloseCancelWindow();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_TRUE(::IsWindowEnabled(owner));
    EXPECT_EQ(owner, ::GetActiveWindow()) << "the user goes on there";
}

TEST_F(PrintJob, TakesMarginsInTheUsersUnits)
{
    PrintSystemDouble system;
    QXPrint print;
    system.onPageSetup = [](PAGESETUPDLGA& request, double unit) {
        EXPECT_EQ(std::lrint(150 * unit), request.rtMargin.bottom);
        request.rtMargin.top = std::lrint(333 * unit);
        return TRUE;
    };
    EXPECT_TRUE(print.SetupPrinter(nullptr, false, "Pumps"));
    EXPECT_THAT(folder.Read("kvl.ini"), EndsWith("Margins-Pumps=150,150,333,150\r\n"));
    EXPECT_EQ(333, print.margins.top);
}

TEST_F(PrintJob, KeepsItsMarginsWhenNoneAreChosen)
{
    const TestWindow owner("Owner");
    PrintSystemDouble system;
    QXPrint print;
    system.onPageSetup = [](PAGESETUPDLGA& request, double) {
        request.rtMargin = {};
        return FALSE;
    };
    EXPECT_FALSE(print.SetupPrinter(owner, false, "DEF"));  // cancelled
    boxes.answers = {IDOK};
    system.dialogError = 0x1008;
    EXPECT_FALSE(print.SetupPrinter(owner, false, "DEF"));
    EXPECT_EQ("1006!", Told());
    EXPECT_EQ(150, print.margins.left);
}

}  // namespace
