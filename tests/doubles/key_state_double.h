// Keys that the test holds down.
#pragma once

#include "doubles/in_force.h"
#include "platform/key_state.h"

#include <set>

namespace qx::test {

struct KeyStateDouble : InForce<KeyStateDouble> {
    std::set<platform::HeldKey> down;
};

}  // namespace qx::test

namespace qx::platform {

bool IsKeyDown(HeldKey key)
{
    return test::KeyStateDouble::Current().down.count(key) > 0;
}

}  // namespace qx::platform
