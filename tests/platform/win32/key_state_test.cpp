#include "platform/key_state.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace qx::platform {
namespace {

void Hold(int key, bool down)
{
    BYTE keys[256];
    ASSERT_TRUE(::GetKeyboardState(keys));
    keys[key] = down ? 0x80 : 0;
    ASSERT_TRUE(::SetKeyboardState(keys));
}

TEST(KeyState, TellsEachKeyByItself)
{
    for (const bool shift : {false, true}) {
        for (const bool control : {false, true}) {
            Hold(VK_SHIFT, shift);
            Hold(VK_CONTROL, control);
            EXPECT_EQ(IsKeyDown(HeldKey::Shift), shift) << control;
            EXPECT_EQ(IsKeyDown(HeldKey::Control), control) << shift;
        }
    }
    Hold(VK_SHIFT, false);
    Hold(VK_CONTROL, false);
}

}  // namespace
}  // namespace qx::platform
