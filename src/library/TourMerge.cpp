#include "library/TourMerge.h"

#include <QHash>

#include <utility>

namespace ridelog {
namespace {

bool areSame(const OdoTour& one, const OdoTour& other)
{
    if (one.isEqual(&other))
        return true;
    const auto& left = one.tourDataDict();
    const auto& right = other.tourDataDict();
    return left && right && left->tourData == right->tourData;
}

qint64 startOf(const OdoTour& tour)
{
    return tour.date().toMSecsSinceEpoch();
}

/// The tours of a list by the instant at which they start: only those that start together need a closer look.
/// They are told by their place in the list, counted from 1; 0 is none.
class PlacesByStart {
public:
    explicit PlacesByStart(const Tours& tours)
    {
        _last.reserve(static_cast<qsizetype>(tours.size()));
        _before.reserve(tours.size());
        for (const auto& tour : tours)
            _before.push_back(std::exchange(_last[startOf(*tour)], _before.size() + 1));
    }

    /// The last tour that starts then.
    std::size_t last(qint64 start) const { return _last.value(start); }
    /// The tour before this one that starts together with it.
    std::size_t before(std::size_t place) const { return _before[place - 1]; }

private:
    QHash<qint64, std::size_t> _last;
    std::vector<std::size_t> _before;
};

} // namespace

Tours toursNotIn(const Tours& present, const Tours& incoming)
{
    const PlacesByStart places(incoming);
    const auto at = [&incoming](std::size_t place) -> const auto&
    {
        return incoming[place - 1];
    };

    std::vector<bool> isKnown(incoming.size() + 1);
    for (const auto& tour : present) {
        for (auto place = places.last(startOf(*tour)); place != 0; place = places.before(place))
            isKnown[place] = isKnown[place] || areSame(*tour, *at(place));
    }
    Tours added;
    added.reserve(incoming.size());
    for (std::size_t place = 1; place <= incoming.size(); ++place) {
        for (auto other = places.before(place); other != 0 && !isKnown[place]; other = places.before(other))
            isKnown[place] = !isKnown[other] && areSame(*at(other), *at(place));
        if (!isKnown[place])
            added.push_back(at(place));
    }
    return added;
}

} // namespace ridelog
