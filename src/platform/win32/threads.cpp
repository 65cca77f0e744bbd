#include "platform/threads.h"

#include <windows.h>

#include <memory>
#include <new>
#include <process.h>

namespace qx::platform {

namespace {

struct Start {
    void (*run)(void* context) noexcept;
    void* context;
};

unsigned __stdcall Run(void* given)
{
    const Start start = *std::unique_ptr<Start>(static_cast<Start*>(given));
    start.run(start.context);
    return 0;
}

}  // namespace

// Not std::thread: a thread that is detached while it starts sometimes never runs with the thread
// library of the compiler (one in some thousands).
bool StartThread(void (*run)(void* context) noexcept, void* context)
{
    std::unique_ptr<Start> start(new (std::nothrow) Start{run, context});
    if (!start)
        return false;
    const auto thread = _beginthreadex(nullptr, 0, Run, start.get(), 0, nullptr);
    if (thread == 0)
        return false;
    static_cast<void>(start.release());  // the thread has it
    ::CloseHandle(reinterpret_cast<HANDLE>(thread));
    return true;
}

}  // namespace qx::platform
