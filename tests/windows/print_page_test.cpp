// Page text on a device context, and the system's page set-up dialog.
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/print/page_text.h>
#include <qxutility/print/print_job.h>

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

using namespace qx::test;

namespace {

class PageText : public testing::Test {
  protected:
    ~PageText() override { ::DeleteDC(dc); }

    int Width(const std::string& text) const
    {
        SIZE size{};
        ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

    HDC dc = ::CreateCompatibleDC(nullptr);
    const int em = Width("m");
};

TEST_F(PageText, CountsTheLinesOfAParagraph)
{
    const char* const twelve = "m m m m m m m m m m m m";
    EXPECT_EQ(10, CenterPrint(dc, 0, em, 0, 10, twelve));
    EXPECT_EQ(4, LeftPrint(dc, 0, em, 0, 10, twelve));
    EXPECT_EQ(1, LeftPrint(dc, 0, 100 * em, 0, 10, twelve));
    EXPECT_EQ(1, CenterPrint(dc, 0, 0, 0, 10, nullptr));
}

TEST_F(PageText, ClippedTextNeedsTheRoomThatIsSaid)
{
    const std::string longText(10000, 'w');
    for (const std::string& text : {std::string("a"), std::string("abc"), longText}) {
        for (const int width : {-em, 0, 1, em, Width("abc"), Width("abc") + 1, 50 * em}) {
            const auto dots = static_cast<std::size_t>(std::max(width + 2, 0) / Width("."));
            GuardedBuffer out(text.size() + dots + 1);
            std::strcpy(out.data(), text.c_str());
            EXPECT_EQ(out.data(), ClipString(dc, width, out.data(), out.data()));
            EXPECT_EQ(Width(text) < width, text == out.data()) << text.size() << ' ' << width;
        }
    }
}

TEST_F(PageText, MayBeMissing)
{
    char out[2];
    EXPECT_STREQ("", ClipString(dc, 2 * em, nullptr, out));
    EXPECT_EQ(7, LeftOfColon(dc, 7, nullptr));
    EXPECT_EQ(50, CenterX(dc, 0, 100, nullptr));
    Underline(dc, 0, 0, nullptr);
    SmartTabbedTextOut(dc, 0, 0, nullptr, 0, 3, nullptr, 0, 100);
    SmartTabbedTextOut(dc, 0, 0, "\t\t\t", 0, -1, nullptr, 0, 100);
}

TEST(PageSetup, KeepsWhatTheUserChooses)
{
    QXPrint print;
    if (!print.SetupPrinter(nullptr, true, "DEF")) {
        const char* const ci = std::getenv("CI");
        ASSERT_TRUE(!ci || std::strcmp(ci, "true") != 0) << "there is no printer";
        GTEST_SKIP() << "there is no printer";
    }
    const TestWindow owner("Owner");
    const TemporaryFolder folder;
    ChangeINIFileName(folder.Path("kvl.ini").c_str());
    const ModalAnswer answer([](HWND dialog) {
        constexpr int kLeftMargin = 1155;
        EXPECT_EQ("0.15", TextOfItem(dialog, kLeftMargin).substr(0, 4));
        ::SetDlgItemTextA(dialog, kLeftMargin, "1.25");
        Press(dialog, IDOK);
    });
    print.landscape = true;
    EXPECT_TRUE(print.SetupPrinter(owner, false, "Pumps"));
    EXPECT_EQ(1, answer.Count());
    EXPECT_EQ(1250, print.margins.left);
    EXPECT_TRUE(print.landscape);
    EXPECT_EQ("[KVL PRINT]\r\nMargins-Pumps=1250,150,150,150\r\n", folder.Read("kvl.ini"));

    const ModalAnswer cancel([](HWND dialog) { Press(dialog, IDCANCEL); });
    EXPECT_FALSE(print.SetupPrinter(owner, false, "Pumps"));
    EXPECT_EQ(1250, print.margins.left);
    EXPECT_TRUE(print.SetupPrinter(nullptr, true, "DEF"));
    ChangeINIFileName("");
}

}  // namespace
