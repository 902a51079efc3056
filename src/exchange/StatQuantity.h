#pragma once

#include "format/AxisTics.h"
#include "format/ReadableUnits.h"
#include "model/Period.h"
#include "model/PeriodStatistics.h"

#include <QDate>
#include <QString>

#include <array>

namespace ridelog {

class Defaults;

/// What a chart of statistics shows.
enum class StatQuantity { distance, duration, elevationGain, heartBeats };

inline constexpr std::array allStatQuantities{StatQuantity::distance, StatQuantity::duration,
                                              StatQuantity::elevationGain, StatQuantity::heartBeats};

QString nameOf(StatQuantity quantity);
/// The name with its unit, if it has one.
QString nameWithUnit(StatQuantity quantity, const ReadableUnits& units);
AxisValues axisValuesOf(StatQuantity quantity);
/// The key of the colour of the series that it comes from, or that suits it.
QString colourKeyOf(StatQuantity quantity);
double valueOf(StatQuantity quantity, const PeriodStatistics& statistics, const ReadableUnits& units);
/// The value in words, with its unit: "312.4 km".
QString textOf(StatQuantity quantity, const PeriodStatistics& statistics, const Defaults& defaults);

// What the part of a period that begins on this day is called.

QString shortPartName(Period period, QDate firstDay); ///< as short as it can be below a bar: "Mar"
QString longPartName(Period period, QDate firstDay);  ///< "March 2007"

} // namespace ridelog
