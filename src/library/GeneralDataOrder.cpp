#include "library/GeneralDataOrder.h"

namespace ridelog {

std::vector<std::pair<QString, std::int32_t>> inOrderOfTheDevice(GeneralData numbers)
{
    std::vector<std::pair<QString, std::int32_t>> ordered;
    for (const auto& field : DumpLayout::generalDataFields) {
        const auto number = numbers.constFind(field.name.toString());
        if (number == numbers.constEnd())
            continue;
        ordered.emplace_back(number.key(), *number);
        numbers.erase(number);
    }
    for (auto number = numbers.constBegin(); number != numbers.constEnd(); ++number)
        ordered.emplace_back(number.key(), *number);
    return ordered;
}

} // namespace ridelog
