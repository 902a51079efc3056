#include "platform/ColourComponents.h"

#include <QLocale>
#include <QStringList>

#include <array>

namespace ridelog {

QString ColourComponents::text() const
{
    QStringList numbers;
    for (const double component : {red, green, blue, alpha})
        numbers.append(QString::number(component, 'g', QLocale::FloatingPointShortest));
    return numbers.join(u',');
}

std::optional<ColourComponents> ColourComponents::fromText(const QString& text)
{
    const auto words = text.split(u',');
    std::array<double, 4> numbers{};
    if (words.size() != static_cast<qsizetype>(numbers.size()))
        return {};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = words.at(static_cast<qsizetype>(i)).toDouble(&isNumber);
        if (!isNumber || !(numbers[i] >= 0 && numbers[i] <= 1))
            return {};
    }
    return ColourComponents{numbers[0], numbers[1], numbers[2], numbers[3]};
}

} // namespace ridelog
