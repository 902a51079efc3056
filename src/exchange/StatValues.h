#pragma once

#include "model/OdoStat.h"

#include <QLatin1StringView>
#include <QString>

#include <vector>

namespace ridelog {

class Defaults;

/// A value of a period as people read it.
struct StatValue {
    QLatin1StringView key; ///< its name among the statistics, or "firstTour" and "lastTour"
    QString name;          ///< with the unit
    QString text;          ///< empty for what the period does not have
};

/// All values of a period, in the units that the user has chosen. The same values, in the same order, for
/// every period.
std::vector<StatValue> statValues(OdoStat& stat, Period period, const Defaults& defaults);

/// The values of all periods as lines with tabs between the cells: first the names of the periods, then a
/// line for each value.
QString statText(OdoStat& stat, const Defaults& defaults);

} // namespace ridelog
