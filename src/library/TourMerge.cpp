#include "library/TourMerge.h"

#include <algorithm>
#include <unordered_map>

namespace ridelog {
namespace {

bool haveSameSamples(const OdoTour& left, const OdoTour& right)
{
    const auto& one = left.tourDataDict();
    const auto& other = right.tourDataDict();
    return one && other && one->tourData == other->tourData;
}

/// Tours by the instant of their start: only those that start together need a closer look.
class ToursByStart {
public:
    explicit ToursByStart(std::size_t count) { _tours.reserve(count); }

    void add(const OdoTour& tour) { _tours.emplace(instantOf(tour), &tour); }

    bool contains(const OdoTour& tour) const
    {
        const auto [first, last] = _tours.equal_range(instantOf(tour));
        return std::any_of(first, last, [&tour](const auto& entry) {
            return entry.second->isEqual(&tour) || haveSameSamples(*entry.second, tour);
        });
    }

private:
    static qint64 instantOf(const OdoTour& tour) { return tour.date().toMSecsSinceEpoch(); }

    std::unordered_multimap<qint64, const OdoTour*> _tours;
};

} // namespace

Tours toursNotIn(const Tours& present, const Tours& incoming)
{
    ToursByStart known(present.size() + incoming.size());
    for (const auto& tour : present)
        known.add(*tour);
    Tours added;
    for (const auto& tour : incoming) {
        if (known.contains(*tour))
            continue;
        known.add(*tour);
        added.push_back(tour);
    }
    return added;
}

} // namespace ridelog
