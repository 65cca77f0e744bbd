// Questions that nobody sees: each must be expected.
#pragma once

#include "doubles/in_force.h"
#include "platform/choice_box.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <vector>

namespace qx::test {

// Picks answers by their texts; one question too many fails the test, and so does one too few.
struct ChoiceBoxDouble : InForce<ChoiceBoxDouble> {
    ~ChoiceBoxDouble() { EXPECT_TRUE(answers.empty()) << "an expected question was not asked"; }

    std::deque<std::string> answers;
    std::vector<std::vector<std::string>> offered;
};

}  // namespace qx::test

namespace qx::platform {

int ShowChoice(HWND, const char* question, const char*, std::span<const std::string> answers)
{
    auto& box = test::ChoiceBoxDouble::Current();
    box.offered.emplace_back(answers.begin(), answers.end());
    const std::string wanted = box.answers.empty() ? "" : box.answers.front();
    const auto found = std::find(answers.begin(), answers.end(), wanted);
    if (found == answers.end()) {
        ADD_FAILURE() << "unexpected question \"" << question << "\"";
        return 0;
    }
    box.answers.pop_front();
    return static_cast<int>(found - answers.begin());
}

}  // namespace qx::platform
