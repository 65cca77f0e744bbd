// Message boxes that nobody sees: each must be expected.
#pragma once

#include "doubles/in_force.h"
#include "platform/message_box.h"

#include <deque>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

namespace qx::test {

struct ShownBox {
    HWND owner;
    std::string text, caption;
    UINT style;
};

// Answers boxes in their order; one too many fails the test, and so does one too few at the end.
//   MessageBoxDouble boxes({IDYES, IDNO});
struct MessageBoxDouble : InForce<MessageBoxDouble> {
    MessageBoxDouble(std::initializer_list<int> expected = {}) : answers(expected) {}
    ~MessageBoxDouble()
    {
        EXPECT_TRUE(answers.empty()) << answers.size() << " expected boxes were not shown";
    }

    std::deque<int> answers;
    std::vector<ShownBox> shown;
    std::string debugOutput;
};

}  // namespace qx::test

namespace qx::platform {

int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style)
{
    auto& boxes = test::MessageBoxDouble::Current();
    boxes.shown.push_back({owner, text ? text : "", caption ? caption : "Error", style});
    if (boxes.answers.empty()) {
        ADD_FAILURE() << "unexpected box \"" << boxes.shown.back().text << "\"";
        return 0;
    }
    const int answer = boxes.answers.front();
    boxes.answers.pop_front();
    return answer;
}

void DebugOutput(const char* text)
{
    test::MessageBoxDouble::Current().debugOutput += text ? text : "";
}

}  // namespace qx::platform
