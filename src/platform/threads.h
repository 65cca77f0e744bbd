// Threads that nobody waits for.
#pragma once

namespace qx::platform {

// Runs run(context) on a thread of its own. False when the system has no thread to give.
bool StartThread(void (*run)(void* context) noexcept, void* context);

}  // namespace qx::platform
