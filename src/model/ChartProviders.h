#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

namespace ridelog {

// What charts ask of whoever has the data. Names are those of the fields of a SeriesEntry; "time" (seconds)
// or "distance" (kilometres) names the x quantity. Values are 32-bit floats; indices run from 0 to the count,
// and beyond it, and for a name that is no field, a value is 0.

/// One series that is always the same: the altitude.
class SimpleChart {
public:
    virtual ~SimpleChart() = default;
    virtual float yValueFor(unsigned index) const = 0;
    virtual unsigned countValues() const = 0;
    virtual float maxYValue() const = 0;
};

/// One series against an x quantity, both by name.
class NamedXYChart {
public:
    virtual ~NamedXYChart() = default;
    virtual float xValueAt(unsigned index) const = 0;
    virtual float yValueAt(unsigned index) const = 0;
    virtual unsigned countXValues() const = 0;
    virtual float maxX() const = 0;
    virtual float maxY() const = 0;
    virtual void setNameForYValue(const QString& name) = 0;
    virtual void setNameForXValue(const QString& name) = 0;
};

/// Several series by name against one x quantity.
class NamedXYChartArray {
public:
    virtual ~NamedXYChartArray() = default;
    virtual float xValueAt(unsigned index) const = 0;
    virtual float yValueAt(unsigned index, QStringView forName) const = 0;
    virtual unsigned countXValues() const = 0;
    virtual float maxX() const = 0;
    virtual float maxYForName(QStringView name) const = 0;
    virtual float minYForName(QStringView name) const = 0;
    /// The series to draw; none where the chart decides.
    virtual std::optional<QStringList> namesForYValue() const = 0;

    // All values at once, for drawing: the name is looked up once and not for every index.

    virtual std::vector<float> xValues() const = 0;
    virtual std::vector<float> yValuesForName(QStringView name) const = 0;
};

} // namespace ridelog
