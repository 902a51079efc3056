#pragma once

#include "tests/support/Tours.h"

namespace ridelog {

/// A tour by what statistics make of it.
struct Ride {
    QDateTime start;
    int entries = 180; ///< of its series, each 20 s
    int metres = 0;
    int pulseSum = 0; ///< beats per minute of all entries together: what their average is made of

    std::shared_ptr<OdoTour> tour() const
    {
        auto dictionary = startValues(500, 0);
        const int samples = entries - 1;
        int pulse = 0;
        for (int i = 0; i < samples; ++i) {
            const int before = pulse;
            pulse = share(pulseSum, i, samples);
            dictionary.tourData.push_back({.pulseChange = static_cast<std::int16_t>(pulse - before),
                                           .distance = share(metres, i, samples)});
        }
        auto tour = OdoTour::initWithOdoDataTourDict(dictionary, start);
        tour->setDate(start);
        return tour;
    }

private:
    static int share(int whole, int index, int count)
    {
        return whole * (index + 1) / count - whole * index / count;
    }
};

} // namespace ridelog
