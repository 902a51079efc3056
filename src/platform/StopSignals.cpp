#include "platform/StopSignals.h"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

/// Where the handler leaves word of a signal; hardly anything else may be done in one.
std::atomic<int> told = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void tell(int /*signal*/)
{
    const auto before = errno;
    const std::uint64_t once = 1;
    [[maybe_unused]] const auto written = ::write(told, &once, sizeof(once));
    errno = before;
}

} // namespace

StopSignals::StopSignals(std::function<void()> onStop) : _descriptor(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    handle(SIGPIPE, SIG_IGN);
    if (_descriptor < 0)
        return;
    _notifier.emplace(_descriptor, QSocketNotifier::Read);
    QObject::connect(&*_notifier, &QSocketNotifier::activated, &*_notifier,
                     [this, onStop = std::move(onStop)] {
                         std::uint64_t times = 0;
                         if (::read(_descriptor, &times, sizeof(times)) > 0)
                             onStop();
                     });
    told = _descriptor;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        handle(signal, tell);
}

StopSignals::~StopSignals()
{
    for (const auto& [signal, before] : _dispositions)
        ::sigaction(signal, &before, nullptr);
    told = -1;
    _notifier.reset();
    if (_descriptor >= 0)
        ::close(_descriptor);
}

void StopSignals::handle(int signal, void (*handler)(int))
{
    struct sigaction before {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
    _dispositions.push_back({signal, before});
}

} // namespace ridelog
