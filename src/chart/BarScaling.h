#pragma once

#include "chart/ChartScaling.h"
#include "format/AxisTics.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace ridelog {

/// Bars beside each other, one for each part of a whole.
struct BarChart {
    struct Bar {
        QString label;    ///< below it
        double value = 0; ///< what is negative or no number counts as 0
    };
    using Values = AxisValues;

    QString title; ///< above the bars: what they stand for
    std::vector<Bar> bars = {};
    Values values = Values::numbers;
    QColor color = {};
    QString note = {}; ///< in the middle: why there is nothing to be seen
};

/// Everything of a chart of bars that is computed and not drawn: margins, tics, and where a bar stands. All
/// in view units: the origin at the upper left corner, y downwards.
///
/// The axis begins at 0 and ends at a tic, the first that no bar is higher than. Without a bar above 0 it has
/// no tics, as the axes of other charts without extent.
class BarScaling {
public:
    struct Tic {
        double y;
        QString label;
    };

    BarScaling() = default; ///< of nothing
    BarScaling(BarChart chart, QSizeF size, const ChartScaling::LabelMeasure& measure);

    const BarChart& chart() const { return _chart; }
    QSizeF size() const { return _size; }
    int count() const { return static_cast<int>(_chart.bars.size()); }

    /// Between the margins; empty where there is no room for it.
    const QRectF& plot() const { return _plot; }
    /// The room of a bar, as high as the plot.
    QRectF columnOf(int bar) const;
    QRectF barOf(int bar) const;
    /// The bar in whose column, or below it, a place is.
    std::optional<int> barAt(QPointF place) const;

    /// From the bottom.
    const std::vector<Tic>& tics() const { return _tics; }
    /// Of so many labels of bars there is room for one.
    int labelStep() const { return _labelStep; }

private:
    void makeTics(double height);
    void placePlot(const ChartScaling::LabelMeasure& measure, double labelHeight);

    BarChart _chart;
    QSizeF _size;
    QRectF _plot;
    double _top = 0; ///< value at the upper end of the axis; 0 without extent
    std::vector<Tic> _tics;
    int _labelStep = 1;
};

} // namespace ridelog
