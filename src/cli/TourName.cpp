#include "cli/TourName.h"

#include "library/TourList.h"

#include <algorithm>

namespace ridelog {
namespace {

bool isNumber(const QString& text)
{
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar character) { return character >= u'0' && character <= u'9'; });
}

QString thereAre(std::size_t count)
{
    switch (count) {
    case 0:
        return QStringLiteral("there are none");
    case 1:
        return QStringLiteral("there is 1");
    default:
        return QStringLiteral("there are %1").arg(count);
    }
}

} // namespace

std::optional<TourName> TourName::fromText(const QString& text)
{
    TourName name;
    name._text = text;
    if (isNumber(text))
        return name;
    name._day = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    name._time = QTime::fromString(text.mid(10), QStringLiteral("'T'HH:mm"));
    return name._day.isValid() && name._time.isValid() ? std::optional(name) : std::nullopt;
}

TourName::Found TourName::findIn(const Tours& tours, bool countRemoved) const
{
    return _day.isValid() ? byStart(tours, countRemoved) : byNumber(tours, countRemoved);
}

TourName::Found TourName::byNumber(const Tours& tours, bool countRemoved) const
{
    const auto listed = countRemoved ? tours : withoutRemoved(tours);
    const int number = _text.toInt(); // 0 for one that is too large
    if (number >= 1 && static_cast<std::size_t>(number) <= listed.size())
        return {.tour = listed[static_cast<std::size_t>(number) - 1], .number = number};
    auto refusal = QStringLiteral("no tour %1: %2").arg(_text, thereAre(listed.size()));
    if (const auto removed = tours.size() - listed.size(); removed > 0)
        refusal += QStringLiteral(", and %1 removed").arg(removed);
    return {.refusal = refusal};
}

TourName::Found TourName::byStart(const Tours& tours, bool countRemoved) const
{
    std::vector<Found> shown;
    std::vector<Found> all;
    int shownNumber = 0;
    int number = 0;
    for (const auto& tour : tours) {
        ++number;
        shownNumber += !tour->removed();
        const auto time = tour->date().time();
        if (tour->date().date() != _day || time.hour() != _time.hour() || time.minute() != _time.minute())
            continue;
        all.push_back({.tour = tour, .number = number});
        if (!tour->removed())
            shown.push_back({.tour = tour, .number = shownNumber});
    }
    // Where one of them is removed, only the list with all tours has a number for each.
    const bool allShown = !countRemoved && shown.size() == all.size();
    const auto& found = allShown ? shown : all;
    if (found.size() == 1)
        return found.front();
    if (found.empty())
        return {.refusal = QStringLiteral("no tour starts at %1").arg(_text)};
    QStringList numbers;
    for (const auto& one : found)
        numbers << QString::number(one.number);
    return {.refusal = QStringLiteral("%1 tours start at %2: numbers %3%4")
                           .arg(QString::number(found.size()), _text, numbers.join(QStringLiteral(", ")),
                                allShown ? QString() : QStringLiteral(" with --removed"))};
}

} // namespace ridelog
