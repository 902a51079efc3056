#pragma once

#include "model/OdoTour.h"
#include "tests/support/Dates.h"

#include <initializer_list>

namespace ridelog {

/// Altitude change in metres and distance in metres of one sample.
struct Stretch {
    int rise;
    int distance;
};

/// The start values of a tour on 10 March at 08:00 that begins at `altitude`.
inline TourDictionary startValues(int altitude = 500, int pulse = 90)
{
    TourDictionary dictionary;
    dictionary.type = QStringLiteral("Bike");
    dictionary.hour = 8;
    dictionary.min = 0;
    dictionary.month = 3;
    dictionary.day = 10;
    dictionary.altitudeAtStart = altitude;
    dictionary.pulseAtStart = pulse;
    return dictionary;
}

inline std::shared_ptr<OdoTour> tourOver(int altitude, std::initializer_list<Stretch> road)
{
    auto dictionary = startValues(altitude);
    for (const auto& stretch : road)
        dictionary.tourData.push_back(
            {.altitudeChange = static_cast<std::int16_t>(stretch.rise), .distance = stretch.distance});
    return OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
}

/// A tour through these altitudes, 200 m of road between each two.
inline std::shared_ptr<OdoTour> tourThrough(std::initializer_list<int> altitudes)
{
    auto dictionary = startValues(*altitudes.begin());
    int last = *altitudes.begin();
    for (const auto* altitude = altitudes.begin() + 1; altitude != altitudes.end(); ++altitude) {
        dictionary.tourData.push_back(
            {.altitudeChange = static_cast<std::int16_t>(*altitude - last), .distance = 200});
        last = *altitude;
    }
    return OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
}

} // namespace ridelog
