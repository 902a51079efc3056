#pragma once

#include <QString>

namespace ridelog::SeriesNames {

// The fields of a series that something treats by its name: those that charts show, and the x quantities.

inline const QString altitude = QStringLiteral("altitude");
inline const QString speed = QStringLiteral("speed");
inline const QString pulse = QStringLiteral("pulse");
inline const QString distance = QStringLiteral("distance");
inline const QString time = QStringLiteral("time");

} // namespace ridelog::SeriesNames
