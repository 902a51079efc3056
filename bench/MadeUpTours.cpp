#include "bench/MadeUpTours.h"

#include <cstdint>

namespace ridelog {

Tours makeTours(int from, int count, int samples)
{
    const auto start = CalendarDate::fromFields(2001, 1, 1, 8, 0, 0, QTimeZone("Europe/Berlin"));
    Tours tours;
    tours.reserve(static_cast<std::size_t>(count));
    std::uint32_t random = 1;
    for (int i = 0; i < count; ++i) {
        TourDictionary dictionary{.type = QStringLiteral("Bike"),
                                  .recordOffsetDD = 1005,
                                  .hour = 8,
                                  .min = 0,
                                  .month = 1,
                                  .day = 1,
                                  .distanceAtStart = 1200,
                                  .altitudeAtStart = 400,
                                  .pulseAtStart = 90,
                                  .tourData = {},
                                  .otherEntries = {}};
        dictionary.tourData.reserve(static_cast<std::size_t>(samples));
        for (int sample = 0; sample < samples; ++sample) {
            random = random * 1664525U + 1013904223U;
            dictionary.tourData.push_back(
                {.temperature = 18,
                 .cadence = 80,
                 .pulseChange = static_cast<std::int16_t>((random >> 28) - 7),
                 .altitudeChange = static_cast<std::int16_t>((random >> 20 & 15) - 7),
                 .distance = static_cast<std::int32_t>(random >> 10 & 15) * 10});
        }
        auto tour = OdoTour::initWithOdoDataTourDict(std::move(dictionary), start);
        tour->setDate(start.addSecs(qint64{3600} * (from + i)));
        tour->setTitle(QStringLiteral("Ride %1").arg(from + i));
        tours.push_back(std::move(tour));
    }
    return tours;
}

} // namespace ridelog
