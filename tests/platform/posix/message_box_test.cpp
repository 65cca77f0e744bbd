#include "platform/message_box.h"

#include <qxutility/host.h>

#include <gtest/gtest.h>
#include <string>

namespace qx::test {
namespace {

using namespace platform;

struct LastBox {
    HWND owner;
    std::string text, caption;
    UINT style;
} lastBox;

int Record(HWND owner, const char* text, const char* caption, UINT style)
{
    lastBox = {owner, text, caption, style};
    return IDYES;
}

TEST(MessageBox, GoesToTheHostsHandler)
{
    const auto builtIn = host::SetMessageBoxHandler(Record);
    const auto owner = reinterpret_cast<HWND>(&lastBox);
    EXPECT_EQ(IDYES, ShowMessageBox(owner, "text", "caption", MB_YESNO | MB_ICONHAND));
    EXPECT_EQ(owner, lastBox.owner);
    EXPECT_EQ("text", lastBox.text);
    EXPECT_EQ("caption", lastBox.caption);
    EXPECT_EQ(MB_YESNO | MB_ICONHAND, lastBox.style);

    ShowMessageBox(nullptr, nullptr, nullptr, MB_OK);
    EXPECT_EQ("", lastBox.text);
    EXPECT_EQ("Error", lastBox.caption);

    EXPECT_EQ(Record, host::SetMessageBoxHandler(nullptr));
    EXPECT_EQ(builtIn, host::SetMessageBoxHandler(nullptr));
}

TEST(MessageBox, WritesToStandardErrorWithoutAHandler)
{
    testing::internal::CaptureStderr();
    ShowMessageBox(nullptr, "100 %s of %n", "%d", MB_OK);
    DebugOutput("**%s**\n");
    DebugOutput(nullptr);
    EXPECT_EQ("%d: 100 %s of %n\n**%s**\n", testing::internal::GetCapturedStderr());
}

TEST(MessageBox, AnswersWithTheButtonThatChangesNothing)
{
    const struct {
        UINT style;
        int answer;
    } cases[] = {
        {MB_OK, IDOK},
        {MB_OKCANCEL, IDCANCEL},
        {2, 3},  // Abort, Retry, Ignore: Abort
        {MB_YESNOCANCEL, IDCANCEL},
        {MB_YESNO, IDNO},
        {5, IDCANCEL},  // Retry, Cancel
        {6, IDCANCEL},  // Cancel, Try again, Continue
        {MB_YESNO | MB_ICONHAND | MB_SYSTEMMODAL | 0x100, IDNO},
    };
    testing::internal::CaptureStderr();
    for (const auto& [style, answer] : cases)
        EXPECT_EQ(answer, ShowMessageBox(nullptr, "", "", style)) << style;
    testing::internal::GetCapturedStderr();
}

}  // namespace
}  // namespace qx::test
