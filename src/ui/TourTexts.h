#pragma once

#include <QString>

#include <optional>

namespace ridelog {

class OdoTour;

// What windows write of a tour beside what has a pattern of its own. Values are without their units.

/// Empty for 0, which a device without a belt records.
QString pulseText(float beatsPerMinute);
QString gradeText(float perCent);
QString powerText(double watts);
/// Empty for none.
QString temperatureText(std::optional<float> celsius, int decimals);

/// When the tour began, and of which type it is.
QString startAndType(const OdoTour& tour);
/// What a file of the tour may be called, without an ending: its day and its title, as far as file systems
/// take them.
QString fileNameOf(const OdoTour& tour);

} // namespace ridelog
