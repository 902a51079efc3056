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

} // namespace ridelog
