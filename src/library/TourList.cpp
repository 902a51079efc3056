#include "library/TourList.h"

#include "library/TourSorting.h"

namespace ridelog {

Tours inListOrder(const Tours& tours)
{
    return sortedTours(tours, newestFirst());
}

Tours withoutRemoved(Tours tours)
{
    std::erase_if(tours, [](const auto& tour) { return tour->removed(); });
    return tours;
}

} // namespace ridelog
