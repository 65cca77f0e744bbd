#include "platform/key_state.h"

namespace qx::platform {

bool IsKeyDown(HeldKey)
{
    return false;
}

}  // namespace qx::platform
