#include "cli/TourList.h"

#include <algorithm>

namespace ridelog {

Tours newestFirst(Tours tours)
{
    std::ranges::stable_sort(tours, std::ranges::greater(), [](const auto& tour) { return tour->date(); });
    return tours;
}

Tours withoutRemoved(Tours tours)
{
    std::erase_if(tours, [](const auto& tour) { return tour->removed(); });
    return tours;
}

} // namespace ridelog
