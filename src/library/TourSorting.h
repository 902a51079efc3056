#pragma once

#include "model/OdoTour.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace ridelog {

/// The keys of what the tour table can show, and be sorted by.
namespace TourKey {

inline const QString date = QStringLiteral("date");
inline const QString type = QStringLiteral("type");
inline const QString title = QStringLiteral("title");
inline const QString totalDistance = QStringLiteral("totalDistance");
inline const QString duration = QStringLiteral("duration");
inline const QString elevationGain = QStringLiteral("elevationGain");
inline const QString averageSpeed = QStringLiteral("averageSpeed");
inline const QString maxSpeed = QStringLiteral("maxSpeed");
inline const QString averagePulse = QStringLiteral("averagePulse");
inline const QString maxPulse = QStringLiteral("maxPulse");
inline const QString averageMovingSpeed = QStringLiteral("averageMovingSpeed");
inline const QString climbingCount = QStringLiteral("climbingCount");
inline const QString maxClimbingPercentage = QStringLiteral("maxClimbingPercentage");
inline const QString avgPower = QStringLiteral("avgPower");
inline const QString averageTemp = QStringLiteral("averageTemp");

} // namespace TourKey

/// By what tours are sorted. A key that is not in TourKey sorts nothing.
struct SortDescriptor {
    QString key;
    bool ascending = true;

    bool operator==(const SortDescriptor&) const = default;
};

/// The first one counts most.
using SortDescriptors = std::vector<SortDescriptor>;

/// The order of a table that nobody has sorted.
SortDescriptors newestFirst();

/// The form in which an order is stored: "date:desc,title:asc".
QString textOfSortDescriptors(const SortDescriptors& descriptors);
/// Reads what it can of that form; newest first if that is nothing.
SortDescriptors sortDescriptorsFromText(QStringView text);

/// Tours that are equal by all descriptors keep their order. Tours without a value come first where the order
/// is ascending. Texts are compared as the user's language has it, without regard to case, and the numbers in
/// them as numbers.
Tours sortedTours(const Tours& tours, const SortDescriptors& descriptors);

} // namespace ridelog
