#include "platform/choice_box.h"

#include "support/win32_ui.h"

#include <gtest/gtest.h>

namespace qx::platform {
namespace {

const std::string kAnswers[] = {"&Keep all", "Replace & go on", "&Close"};
constexpr int kFirstButton = 101;

int Show()
{
    return ShowChoice(nullptr, "A question, a long one: which of these should it be, do you think?",
                      "Caption", kAnswers);
}

TEST(ChoiceBox, ShowsQuestionAndAnswers)
{
    std::vector<std::string> texts, cut;
    std::string caption;
    int focus = 0;
    test::ModalAnswer answer([&](HWND dialog) {
        caption = test::TextOf(dialog);
        for (const HWND child : test::ChildrenOf(dialog))
            texts.push_back(test::TextOf(child));
        cut = test::CutTexts(dialog);
        focus = ::GetDlgCtrlID(::GetFocus());
        test::Press(dialog, kFirstButton);
    });
    EXPECT_EQ(Show(), 0);
    EXPECT_EQ(caption, "Caption");
    const std::vector<std::string> expected = {
        "A question, a long one: which of these should it be, do you think?", kAnswers[0],
        kAnswers[1], kAnswers[2]};
    EXPECT_EQ(texts, expected);
    EXPECT_EQ(cut, std::vector<std::string>());
    EXPECT_EQ(focus, kFirstButton);
}

TEST(ChoiceBox, ReturnsTheAnswerPressed)
{
    for (const int button : {0, 1, 2}) {
        test::ModalAnswer answer([&](HWND dialog) { test::Press(dialog, kFirstButton + button); });
        EXPECT_EQ(Show(), button);
    }
}

TEST(ChoiceBox, ClosingItChangesNothing)
{
    test::ModalAnswer answer([](HWND dialog) { ::PostMessageA(dialog, WM_CLOSE, 0, 0); });
    EXPECT_EQ(Show(), 0);
}

}  // namespace
}  // namespace qx::platform
