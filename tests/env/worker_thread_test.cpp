#include <qxutility/env/worker_thread.h>

#include <atomic>
#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#if defined(__linux__)
#include <pthread.h>
#endif

namespace {

constexpr std::chrono::seconds kLongEnough(30);

bool Arrives(const std::future<void>& event)
{
    return event.wait_for(kLongEnough) == std::future_status::ready;
}

// Sets a plain value, then signals that it is done.
class Summing : public WorkerThread {
  public:
    std::promise<void> done;
    std::thread::id thread;
    int sum = 0;

    void Work() override
    {
        thread = std::this_thread::get_id();
        for (int i = 1; i <= 100; ++i)
            sum += i;
    }

  private:
    void Done() override { done.set_value(); }
};

// Owns itself: gone when its work is done.
class SelfDeleting : public WorkerThread {
  public:
    explicit SelfDeleting(std::promise<void> gone) : m_gone(std::move(gone)) {}
    ~SelfDeleting() override { m_gone.set_value(); }
    void Work() override {}

  private:
    void Done() override { delete this; }

    std::promise<void> m_gone;
};

class Counting : public WorkerThread {
  public:
    std::atomic<int>& count;

    explicit Counting(std::atomic<int>& counter) : count(counter) {}
    void Work() override { ++count; }
};

}  // namespace

TEST(WorkerThread, SignalsAfterTheWorkOnAnotherThread)
{
    Summing worker;
    const auto done = worker.done.get_future();
    worker.Begin();
    ASSERT_TRUE(Arrives(done));
    EXPECT_EQ(5050, worker.sum);
    EXPECT_NE(std::this_thread::get_id(), worker.thread);
}

TEST(WorkerThread, MayDeleteItselfWhenDone)
{
    for (int i = 0; i < 50; ++i) {
        std::promise<void> promise;
        const auto gone = promise.get_future();
        (new SelfDeleting(std::move(promise)))->Begin();
        ASSERT_TRUE(Arrives(gone));
    }
}

TEST(WorkerThread, BeginsAsOftenAsAsked)
{
    static std::atomic<int> count = 0;
    static Counting worker(count);  // lives on: without Done nobody knows when a thread ends
    for (int i = 0; i < 10; ++i)
        worker.Begin();
    const auto end = std::chrono::steady_clock::now() + kLongEnough;
    while (count < 10 && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    EXPECT_EQ(10, count);
}

#if defined(__linux__)
TEST(WorkerThread, DoesNothingWhenTheSystemHasNoThreadToGive)
{
    std::atomic<int> count = 0;
    Counting worker(count);
    pthread_attr_t usual, excessive;
    ASSERT_EQ(0, ::pthread_getattr_default_np(&usual));
    ASSERT_EQ(0, ::pthread_attr_init(&excessive));
    ASSERT_EQ(0, ::pthread_attr_setstacksize(&excessive, std::size_t{1} << 60));
    ASSERT_EQ(0, ::pthread_setattr_default_np(&excessive));
    worker.Begin();
    EXPECT_EQ(0, ::pthread_setattr_default_np(&usual));
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(0, count);
}
#endif
