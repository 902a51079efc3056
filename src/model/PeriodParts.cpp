#include "model/PeriodParts.h"

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

/// A tour that the period counts, and the day on which it starts.
using TourOnDay = std::pair<QDate, const OdoTour*>;

std::vector<TourOnDay> countedTours(const Tours& tours, const PeriodDays& days)
{
    std::vector<TourOnDay> counted;
    for (const auto& tour : tours) {
        const auto day = tour->date().date();
        if (!tour->removed() && days.contain(day))
            counted.emplace_back(day, tour.get());
    }
    return counted;
}

/// Those with tours, in order.
std::vector<QDate> riddenYears(const std::vector<TourOnDay>& tours)
{
    std::vector<QDate> years;
    years.reserve(tours.size());
    for (const auto& [day, tour] : tours)
        years.emplace_back(day.year(), 1, 1);
    std::ranges::sort(years);
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}

/// From the first one to the last one, unless a damaged start lies so far off that nobody rode between them.
std::vector<QDate> yearsOf(const std::vector<TourOnDay>& tours)
{
    constexpr int longestLife = 200;
    auto years = riddenYears(tours);
    if (years.empty() || years.back().year() - years.front().year() > longestLife)
        return years;
    std::vector<QDate> all;
    all.reserve(longestLife + 1);
    for (int year = years.front().year(); year <= years.back().year(); ++year)
        all.emplace_back(year, 1, 1);
    return all;
}

std::vector<QDate> monthsOf(int year)
{
    std::vector<QDate> months;
    for (int month = 1; month <= 12; ++month)
        months.emplace_back(year, month, 1);
    return months;
}

std::vector<QDate> daysOf(int year, const PeriodDays& period)
{
    std::vector<QDate> days;
    for (auto day = QDate(year, 1, 1); day.year() == year; day = day.addDays(1)) {
        if (period.contain(day))
            days.push_back(day);
    }
    return days;
}

} // namespace

std::vector<PeriodPart> partsOf(Period period, const OdoStat& stat)
{
    const auto chosen = stat.date().date();
    const PeriodDays days(period, chosen, stat.weekRule());
    const auto tours = countedTours(stat.toursArray(), days);

    std::vector<QDate> firstDays;
    if (period == Period::all)
        firstDays = yearsOf(tours);
    else
        firstDays = period == Period::year ? monthsOf(chosen.year()) : daysOf(chosen.year(), days);

    std::vector<TourSums> sums(firstDays.size());
    for (const auto& [day, tour] : tours) {
        const auto next = std::ranges::upper_bound(firstDays, day);
        sums[static_cast<std::size_t>(next - firstDays.begin()) - 1].add(*tour);
    }

    std::vector<PeriodPart> parts;
    parts.reserve(sums.size());
    for (std::size_t i = 0; i < sums.size(); ++i)
        parts.push_back({.firstDay = firstDays[i], .statistics = sums[i].statistics()});
    return parts;
}

} // namespace ridelog
