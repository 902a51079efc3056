#pragma once

#include <QLatin1StringView>
#include <QString>

#include <vector>

namespace ridelog {

class Defaults;
class OdoTour;

/// A summary value as people read it.
struct SummaryValue {
    QLatin1StringView key; ///< its name among the tour's values
    QString name;
    QString text; ///< empty for what the tour does not have
};

struct SummaryGroup {
    QString name;
    std::vector<SummaryValue> values = {};
};

/// All summary values of a tour, in the units that the user has chosen. The same groups and values, in the
/// same order, for every tour.
std::vector<SummaryGroup> tourSummary(const OdoTour& tour, const Defaults& defaults);

} // namespace ridelog
