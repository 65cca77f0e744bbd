#include "platform/threads.h"

#include <exception>
#include <thread>

namespace qx::platform {

bool StartThread(void (*run)(void* context) noexcept, void* context)
{
    try {
        std::thread(run, context).detach();
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

}  // namespace qx::platform
