#include "cli/StandardError.h"

#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace ridelog {

void tellIfRead(const QByteArray& text)
{
    pollfd room{.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
    if (poll(&room, 1, 0) == 1 && (room.revents & POLLOUT) != 0)
        std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}

} // namespace ridelog
