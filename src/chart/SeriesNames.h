#pragma once

#include <QString>

namespace ridelog::SeriesNames {

// The series that charts treat by their names, and the x quantities.

inline const QString altitude = QStringLiteral("altitude");
inline const QString speed = QStringLiteral("speed");
inline const QString pulse = QStringLiteral("pulse");
inline const QString distance = QStringLiteral("distance");
inline const QString time = QStringLiteral("time");

} // namespace ridelog::SeriesNames
