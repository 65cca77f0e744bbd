#include <qxutility/env/worker_thread.h>

#include <exception>
#include <thread>

void WorkerThread::Begin()
{
    try {
        std::thread([this] {
            Work();
            Done();
        }).detach();
    } catch (const std::exception&) {
        // Not started. Deliberately not reported: for the caller Begin has no failure.
    }
}

void WorkerThread::Done() {}
