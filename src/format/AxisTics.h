#pragma once

#include <QString>

namespace ridelog {

/// What the tics of an axis count.
enum class AxisValues { numbers, wholeNumbers, seconds };

/// A round distance between two tics, not less than `least` (above 0, finite): 1, 2 or 5 with zeros, in
/// tenths at the finest; of seconds whole minutes or hours that people count in.
double ticStep(AxisValues values, double least);

/// The first of 1, 2, 5, 10, 20, 50 and so on, or of their tenths, that is not less. Above 0, finite.
double roundStep(double least);

/// What stands at a tic, in the user's locale; `step` lies between it and the next.
QString ticLabel(AxisValues values, double value, double step);

} // namespace ridelog
