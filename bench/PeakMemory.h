#pragma once

#include <cstdint>

namespace ridelog {

/// How far the memory of the process (its resident set) rises above what it is now.
class PeakMemory {
public:
    /// Starts watching: forgets earlier peaks.
    PeakMemory();

    /// Bytes of the highest point since the start above the level at the start.
    std::int64_t risen() const;

private:
    std::int64_t _atStart = 0;
};

} // namespace ridelog
