#ifndef IOSPHOTO_TESTS_MEANWHILE_H
#define IOSPHOTO_TESTS_MEANWHILE_H

#include <atomic>
#include <functional>
#include <thread>

namespace iosphoto::test {

/// Does something again and again in another thread, until it goes.
class Meanwhile
{
public:
    explicit Meanwhile(std::function<void()> action)
        : thread_([this, action = std::move(action)] {
              while (!isOver_) {
                  action();
                  ++count_;
              }
          })
    {
        waitForNext();
    }
    ~Meanwhile()
    {
        isOver_ = true;
        thread_.join();
    }
    Meanwhile(const Meanwhile &) = delete;
    Meanwhile &operator=(const Meanwhile &) = delete;

    /// Until it was done once more, from beginning to end.
    void waitForNext() const
    {
        const int before = count_;
        while (count_ < before + 2)
            std::this_thread::yield();
    }

private:
    std::atomic<bool> isOver_ = false;
    std::atomic<int> count_ = 0;
    std::thread thread_;
};

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_MEANWHILE_H
