#include "platform/JobThread.h"

#include <future>
#include <memory>
#include <utility>

namespace ridelog {

JobThread::~JobThread()
{
    if (!_thread.joinable())
        return;
    {
        const std::lock_guard lock(_lock);
        _ends = true;
    }
    _more.notify_one();
    _thread.join();
}

void JobThread::run(std::function<void()> job)
{
    {
        const std::lock_guard lock(_lock);
        _jobs.push_back(std::move(job));
    }
    _more.notify_one();
    if (!_thread.joinable())
        _thread = std::thread([this] { work(); });
}

void JobThread::waitForAll()
{
    if (!_thread.joinable())
        return;
    const auto reached = std::make_shared<std::promise<void>>();
    run([reached] { reached->set_value(); });
    reached->get_future().wait();
}

void JobThread::work()
{
    std::unique_lock lock(_lock);
    for (;;) {
        _more.wait(lock, [this] { return _ends || !_jobs.empty(); });
        if (_jobs.empty())
            return;
        auto job = std::move(_jobs.front());
        _jobs.pop_front();
        lock.unlock();
        job();
        // What it holds may be large, and is freed here as well.
        job = nullptr;
        lock.lock();
    }
}

} // namespace ridelog
