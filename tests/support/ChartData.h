#pragma once

#include "model/ChartProviders.h"

#include <QMap>

#include <algorithm>

namespace ridelog {

/// Any numbers for a chart.
class ChartData : public NamedXYChartArray {
public:
    ChartData(std::vector<float> x, QMap<QString, std::vector<float>> y) : _x(std::move(x)), _y(std::move(y))
    {
    }

    float xValueAt(unsigned index) const override { return index < _x.size() ? _x[index] : 0; }
    float yValueAt(unsigned index, QStringView forName) const override
    {
        const auto values = yValuesForName(forName);
        return index < values.size() ? values[index] : 0;
    }
    unsigned countXValues() const override { return static_cast<unsigned>(_x.size()); }
    float maxX() const override { return _x.empty() ? 0 : std::ranges::max(_x); }
    float maxYForName(QStringView name) const override
    {
        const auto values = yValuesForName(name);
        return values.empty() ? 0 : std::ranges::max(values);
    }
    float minYForName(QStringView name) const override
    {
        const auto values = yValuesForName(name);
        return values.empty() ? 0 : std::ranges::min(values);
    }
    std::optional<QStringList> namesForYValue() const override { return std::nullopt; }
    std::vector<float> xValues() const override { return _x; }
    std::vector<float> yValuesForName(QStringView name) const override { return _y.value(name.toString()); }

private:
    std::vector<float> _x;
    QMap<QString, std::vector<float>> _y;
};

} // namespace ridelog
