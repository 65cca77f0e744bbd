// Keys that the user holds down.
#pragma once

namespace qx::platform {

enum class HeldKey { Shift, Control };

// As of the last message that this thread has taken from its queue. Where there are no windows, no
// key is ever down.
bool IsKeyDown(HeldKey key);

}  // namespace qx::platform
