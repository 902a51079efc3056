#pragma once

#include "model/OdoStat.h"

#include <QDate>

#include <vector>

namespace ridelog {

/// A year, a month or a day, and what was ridden in it.
struct PeriodPart {
    QDate firstDay;
    PeriodStatistics statistics;
};

/// A period in its parts, the earliest first: all tours in years, from that of the first tour to that of the
/// last (only those with tours, where they are more than 200 years apart); a year in months; a month and a
/// week in days. Parts without tours are there as well. Every tour that the period counts is in one part, so
/// totals of the parts add up to those of the period; heart beats only nearly, as each part has an average
/// pulse of its own. The days of a week are those that belong to it (see PeriodDays): around New Year seven
/// or fewer, or more.
///
/// Computed of the tours as they are now; results that `stat` holds may be older.
std::vector<PeriodPart> partsOf(Period period, const OdoStat& stat);

} // namespace ridelog
