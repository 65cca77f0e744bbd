// A piece of work on a thread of its own.
#pragma once

#include <qxutility/export.h>

// A class derives from it, supplies Work and calls Begin. Nothing is locked: what the derived class
// shares between threads is its own concern. Neither Work nor Done may throw.
class QX_API WorkerThread {
  public:
    WorkerThread() = default;
    WorkerThread(const WorkerThread&) {}
    WorkerThread& operator=(const WorkerThread&) { return *this; }

    // Starts a thread that calls Work and then Done, and returns at once. The object must live
    // until Done has returned. May be called again; each call starts another thread on the same
    // object. When the system has no thread to give, nothing happens: neither Work nor Done is
    // called.
    void Begin();

    // The work, on the new thread.
    virtual void Work() = 0;

  protected:
    // Called on the worker thread after Work; does nothing. The place to signal completion or to
    // delete the object: it is not touched any more afterwards.
    virtual void Done();

  public:
    virtual ~WorkerThread() = default;  // last, so that Work and Done keep their slots
};
