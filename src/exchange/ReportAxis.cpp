#include "exchange/ReportAxis.h"

#include <algorithm>
#include <cmath>

namespace ridelog {
namespace {

/// Not finer than numbers of this size can be told apart.
double leastStep(double least, double greatest, int mostSteps)
{
    const auto size = std::max(std::abs(least), std::abs(greatest));
    return std::max({(greatest - least) / mostSteps, size * 1e-9, 1e-3});
}

} // namespace

ReportAxis::ReportAxis(AxisValues values, double least, double greatest, int mostSteps, End end)
    : _values(values),
      _step(ticStep(values, leastStep(least, greatest, mostSteps))),
      _first(std::floor(least / _step)),
      _steps(std::clamp(static_cast<int>(std::ceil(greatest / _step) - _first), 1, mostSteps + 1)),
      _begin(_first * _step),
      _end((_first + _steps) * _step)
{
    if (end == End::atGreatest && greatest > _begin)
        _end = greatest;
}

std::vector<ReportAxis::Tic> ReportAxis::tics() const
{
    std::vector<Tic> tics;
    for (int tic = 0; tic <= _steps; ++tic) {
        const auto value = (_first + tic) * _step;
        if (value <= _end)
            tics.push_back({.part = partOf(value), .label = ticLabel(_values, value, _step)});
    }
    return tics;
}

} // namespace ridelog
