#include "device/WakeUp.h"

#include "platform/SystemCall.h"

#include <array>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ridelog {

WakeUp::WakeUp() : _descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

WakeUp::~WakeUp()
{
    if (isValid())
        ::close(_descriptor);
}

void WakeUp::wake()
{
    _isWoken = true;
    const std::uint64_t one = 1;
    // It cannot fail but for a counter that is full, and then all are awake.
    [[maybe_unused]] const auto written = ::write(_descriptor, &one, sizeof one);
}

bool WakeUp::waitFor(int descriptor, short events) const
{
    std::array<pollfd, 2> waits{{{descriptor, events, 0}, {_descriptor, POLLIN, 0}}};
    const int ready = uninterrupted([&] { return poll(waits.data(), waits.size(), -1); });
    return ready > 0 && waits[1].revents == 0 && (waits[0].revents & POLLNVAL) == 0;
}

} // namespace ridelog
