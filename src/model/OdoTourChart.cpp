// What charts read of a tour.

#include "model/OdoTour.h"
#include "model/TourLog.h"

#include <algorithm>

namespace ridelog {

float OdoTour::valueAt(unsigned index, QStringView forName) const
{
    return index < _data.size() ? _data[index].valueForKey(forName).value_or(0.0F) : 0.0F;
}

float OdoTour::yValueFor(unsigned index) const
{
    return index < _data.size() ? static_cast<float>(_data[index].altitude) : 0.0F;
}

unsigned OdoTour::countValues() const
{
    return countXValues();
}

unsigned OdoTour::countXValues() const
{
    return static_cast<unsigned>(_data.size());
}

float OdoTour::maxYValue() const
{
    return static_cast<float>(std::ranges::max(_data, {}, &SeriesEntry::altitude).altitude);
}

void OdoTour::setNameForXValue(const QString& name)
{
    _nameForXValue = name;
}

void OdoTour::setNameForYValue(const QString& name)
{
    _nameForYValue = name;
}

float OdoTour::xValueAt(unsigned index) const
{
    return valueAt(index, _nameForXValue);
}

float OdoTour::yValueAt(unsigned index) const
{
    return valueAt(index, _nameForYValue);
}

float OdoTour::yValueAt(unsigned index, QStringView forName) const
{
    return valueAt(index, forName);
}

std::vector<float> OdoTour::xValues() const
{
    return yValuesForName(_nameForXValue);
}

std::vector<float> OdoTour::yValuesForName(QStringView name) const
{
    std::vector<float> values(_data.size());
    forEachSeriesField([&](QStringView field, auto member) {
        if (field == name)
            std::ranges::transform(_data, values.begin(),
                                   [member](const auto& entry) { return static_cast<float>(entry.*member); });
    });
    return values;
}

float OdoTour::maxX() const
{
    return std::ranges::max(xValues());
}

float OdoTour::maxY() const
{
    return std::ranges::max(yValuesForName(_nameForYValue));
}

float OdoTour::maxYForName(QStringView name) const
{
    const auto largest = std::ranges::max(yValuesForName(name));
    qCDebug(lcTour, "%s, %f", qUtf8Printable(name.toString()), static_cast<double>(largest));
    return largest;
}

float OdoTour::minYForName(QStringView name) const
{
    return std::ranges::min(yValuesForName(name));
}

std::optional<QStringList> OdoTour::namesForYValue() const
{
    return std::nullopt;
}

} // namespace ridelog
