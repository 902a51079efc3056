#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace ridelog {

/// A thread for what would keep the main thread waiting: runs jobs one after another, in the order in which
/// they came. It starts with the first job. Jobs must not throw.
class JobThread {
public:
    JobThread() = default;
    /// Waits for all jobs.
    ~JobThread();
    JobThread(const JobThread&) = delete;
    JobThread& operator=(const JobThread&) = delete;

    void run(std::function<void()> job);
    /// Waits for the jobs that there are.
    void waitForAll();

private:
    void work();

    std::mutex _lock;
    std::condition_variable _more;
    std::deque<std::function<void()>> _jobs;
    bool _ends = false;
    std::thread _thread;
};

} // namespace ridelog
