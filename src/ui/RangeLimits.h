#pragma once

#include <algorithm>

namespace ridelog {

/// The two limits of a range that a rider sets, one after the other. One that would pass the other pushes it
/// along, and the range stays as wide as before, but for the end of what there is.
struct RangeLimits {
    double low;
    double high;

    /// After the lower limit was set. `leastExtent` is left at least, and nothing is higher than `highest`.
    RangeLimits withLow(double value, double leastExtent, double highest) const
    {
        const auto pushed = std::min(value + std::max(high - low, leastExtent), highest);
        return {value, value >= high ? pushed : high};
    }
    /// The same for the upper limit.
    RangeLimits withHigh(double value, double leastExtent, double lowest) const
    {
        const auto pushed = std::max(value - std::max(high - low, leastExtent), lowest);
        return {value <= low ? pushed : low, value};
    }
};

} // namespace ridelog
