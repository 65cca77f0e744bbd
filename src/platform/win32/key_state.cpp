#include "platform/key_state.h"

#include <qxutility/types.h>

namespace qx::platform {

bool IsKeyDown(HeldKey key)
{
    return ::GetKeyState(key == HeldKey::Shift ? VK_SHIFT : VK_CONTROL) < 0;
}

}  // namespace qx::platform
