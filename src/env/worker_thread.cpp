#include "platform/threads.h"

#include <qxutility/env/worker_thread.h>

void WorkerThread::Begin()
{
    const auto run = [](void* worker) noexcept {
        const auto self = static_cast<WorkerThread*>(worker);
        self->Work();
        self->Done();
    };
    // Not started is deliberately not reported: for the caller Begin has no failure.
    qx::platform::StartThread(run, this);
}

void WorkerThread::Done() {}
