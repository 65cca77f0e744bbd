#include "platform/choice_box.h"

#include "doubles/message_box_double.h"

#include <gtest/gtest.h>

namespace qx::platform {
namespace {

const std::string kAnswers[] = {"Keep all", "Replace", "Close"};

TEST(ChoiceBox, AsksAboutOneAnswerAfterTheOther)
{
    test::MessageBoxDouble boxes({IDNO, IDYES});
    EXPECT_EQ(ShowChoice(nullptr, "What now?", "Caption", kAnswers), 2);
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_EQ(boxes.shown[0].text, "What now?\n\nReplace?");
    EXPECT_EQ(boxes.shown[1].text, "What now?\n\nClose?");
    EXPECT_EQ(boxes.shown[1].caption, "Caption");
    EXPECT_EQ(boxes.shown[1].style, UINT{MB_YESNO | MB_ICONQUESTION});
}

TEST(ChoiceBox, FirstAnswerWhenAllOthersAreRefused)
{
    test::MessageBoxDouble boxes({IDNO, IDNO});
    EXPECT_EQ(ShowChoice(nullptr, "What now?", "Caption", kAnswers), 0);
}

TEST(ChoiceBox, OnlyAnswerIsGivenWithoutAQuestion)
{
    test::MessageBoxDouble boxes;
    EXPECT_EQ(ShowChoice(nullptr, "What now?", "Caption", std::span(kAnswers, 1)), 0);
}

}  // namespace
}  // namespace qx::platform
