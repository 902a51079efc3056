#pragma once

#include <QString>

#include <cerrno>
#include <cstring>

namespace ridelog {

/// What the system says of the call that failed last.
inline QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// The call's result, made again for as long as a signal interrupts it.
template <typename Call>
auto uninterrupted(Call&& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

} // namespace ridelog
