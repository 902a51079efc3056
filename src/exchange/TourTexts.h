#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace ridelog {

class OdoTour;

// What windows and reports write of a tour beside what has a pattern of its own. Values are without their
// units.

/// Empty for 0, which a device without a belt records.
QString pulseText(float beatsPerMinute);
QString gradeText(float perCent);
QString powerText(double watts);
/// Without groups of digits, as the patterns of the other values have it.
QString countText(std::int64_t count);
/// Empty for none.
QString temperatureText(std::optional<float> celsius, int decimals);

/// The locale's own short form of dates, with all digits of the year.
QString shortDateFormat();
/// When the tour began, and of which type it is.
QString startAndType(const OdoTour& tour);
/// What a file of the tour may be called, without an ending: its day and its title, as far as file systems
/// take them.
QString fileNameOf(const OdoTour& tour);

} // namespace ridelog
