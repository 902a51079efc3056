#include "library/TourSorting.h"

#include <QCollator>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <optional>
#include <variant>

namespace ridelog {
namespace {

using Number = std::optional<double>;
using Text = std::optional<QString>;

template <auto accessor>
Number number(const OdoTour& tour)
{
    return Number((tour.*accessor)());
}

template <auto accessor>
Text text(const OdoTour& tour)
{
    return Text((tour.*accessor)());
}

Number start(const OdoTour& tour)
{
    return tour.date().isValid() ? Number(tour.date().toMSecsSinceEpoch()) : Number();
}

struct Column {
    QString key;
    std::variant<Number (*)(const OdoTour&), Text (*)(const OdoTour&)> valueOf;
};

const Column columns[] = {
    {TourKey::date, start},
    {TourKey::type, text<&OdoTour::type>},
    {TourKey::title, text<&OdoTour::shownTitle>},
    {TourKey::totalDistance, number<&OdoTour::totalDistance>},
    {TourKey::duration, number<&OdoTour::duration>},
    {TourKey::elevationGain, number<&OdoTour::elevationGain>},
    {TourKey::averageSpeed, number<&OdoTour::avgSpeed>},
    {TourKey::maxSpeed, number<&OdoTour::maxSpeed>},
    {TourKey::averagePulse, number<&OdoTour::avgPulse>},
    {TourKey::maxPulse, number<&OdoTour::maxPulse>},
    {TourKey::averageMovingSpeed, number<&OdoTour::avgMovingSpeed>},
    {TourKey::climbingCount, number<&OdoTour::climbingCount>},
    {TourKey::maxClimbingPercentage, number<&OdoTour::maxClimbingPercentage>},
    {TourKey::avgPower, number<&OdoTour::avgPower>},
    {TourKey::averageTemp, number<&OdoTour::avgTemperature>},
};

const Column* columnWithKey(QStringView key)
{
    const auto* found = std::ranges::find(columns, key, &Column::key);
    return found == std::end(columns) ? nullptr : found;
}

// What tours are compared by, computed once for each.

QCollator usersCollator()
{
    QCollator collator;
    // The language "C" compares bytes: for people any other is better.
    if (collator.locale().language() == QLocale::C)
        collator.setLocale(QLocale(QLocale::English));
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

std::vector<Number> sortKeys(const Tours& tours, Number (*valueOf)(const OdoTour&))
{
    std::vector<Number> keys;
    keys.reserve(tours.size());
    for (const auto& tour : tours)
        keys.push_back(valueOf(*tour));
    return keys;
}

std::vector<std::optional<QCollatorSortKey>> sortKeys(const Tours& tours, Text (*valueOf)(const OdoTour&))
{
    const auto collator = usersCollator();
    std::vector<std::optional<QCollatorSortKey>> keys;
    keys.reserve(tours.size());
    for (const auto& tour : tours) {
        const auto value = valueOf(*tour);
        keys.push_back(value ? std::optional(collator.sortKey(*value)) : std::nullopt);
    }
    return keys;
}

template <typename Key>
void sortStably(std::vector<std::size_t>& order, const std::vector<Key>& keys, bool ascending)
{
    std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
        return ascending ? keys[left] < keys[right] : keys[right] < keys[left];
    });
}

const QString ascendingWord = QStringLiteral("asc");
const QString descendingWord = QStringLiteral("desc");

std::optional<SortDescriptor> descriptorFromText(QStringView text)
{
    const auto parts = text.split(u':');
    if (parts.size() != 2)
        return std::nullopt;
    const auto* column = columnWithKey(parts[0].trimmed());
    const auto direction = parts[1].trimmed();
    if (!column || (direction != ascendingWord && direction != descendingWord))
        return std::nullopt;
    return SortDescriptor{.key = column->key, .ascending = direction == ascendingWord};
}

} // namespace

SortDescriptors newestFirst()
{
    return {{.key = TourKey::date, .ascending = false}};
}

QString textOfSortDescriptors(const SortDescriptors& descriptors)
{
    QStringList texts;
    for (const auto& [key, ascending] : descriptors)
        texts.append(key + u':' + (ascending ? ascendingWord : descendingWord));
    return texts.join(u',');
}

SortDescriptors sortDescriptorsFromText(QStringView text)
{
    SortDescriptors descriptors;
    for (const auto part : text.split(u',')) {
        const auto descriptor = descriptorFromText(part);
        const bool isNew =
            descriptor && !std::ranges::count(descriptors, descriptor->key, &SortDescriptor::key);
        if (isNew)
            descriptors.push_back(*descriptor);
    }
    return descriptors.empty() ? newestFirst() : descriptors;
}

Tours sortedTours(const Tours& tours, const SortDescriptors& descriptors)
{
    std::vector<std::size_t> order(tours.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    // The one that counts most sorts last, and leaves the others' order where it finds no difference.
    for (auto descriptor = descriptors.rbegin(); descriptor != descriptors.rend(); ++descriptor) {
        const auto* column = columnWithKey(descriptor->key);
        if (!column)
            continue;
        std::visit([&](auto valueOf) { sortStably(order, sortKeys(tours, valueOf), descriptor->ascending); },
                   column->valueOf);
    }
    Tours sorted;
    sorted.reserve(tours.size());
    for (const auto index : order)
        sorted.push_back(tours[index]);
    return sorted;
}

} // namespace ridelog
