#pragma once

#include "model/OdoTour.h"

#include <memory>
#include <utility>

namespace ridelog {

/// A tour over an x quantity of a window's own, for its chart. The tour itself has one for all who show it.
class TourOverX : public NamedXYChartArray {
public:
    TourOverX(std::shared_ptr<const OdoTour> tour, QString nameForXValue)
        : _tour(std::move(tour)), _nameForXValue(std::move(nameForXValue))
    {
    }

    float xValueAt(unsigned index) const override { return _tour->valueAt(index, _nameForXValue); }
    float yValueAt(unsigned index, QStringView forName) const override
    {
        return _tour->yValueAt(index, forName);
    }
    unsigned countXValues() const override { return _tour->countXValues(); }
    float maxX() const override { return _tour->maxYForName(_nameForXValue); }
    float maxYForName(QStringView name) const override { return _tour->maxYForName(name); }
    float minYForName(QStringView name) const override { return _tour->minYForName(name); }
    std::optional<QStringList> namesForYValue() const override { return _tour->namesForYValue(); }
    std::vector<float> xValues() const override { return _tour->yValuesForName(_nameForXValue); }
    std::vector<float> yValuesForName(QStringView name) const override { return _tour->yValuesForName(name); }

private:
    std::shared_ptr<const OdoTour> _tour;
    QString _nameForXValue;
};

} // namespace ridelog
