#pragma once

#include "chart/ChartSettings.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace ridelog {

class MultipFormatter;
class NamedXYChartArray;

/// Everything of a chart that is computed and not drawn: margins, ranges, tics, and where a value stands.
///
/// Positions are in view units: the origin at the lower left corner, y upwards. All numbers are 32-bit floats
/// and worked out in the order given here, so that a chart is the same everywhere to the last digit. A
/// drawing pass calls `calcValues`, `calcXAxis`, and `calcYAxisForName` for each series before it is drawn;
/// what they work out holds until the next pass.
///
/// An axis without extent (no data, all values zero) has no tics, and all values stand at its start. An end
/// of a range that is no number is taken as 0.
class ChartScaling {
public:
    /// Size of a label in view units.
    using LabelMeasure = std::function<QSizeF(const QString&)>;

    struct Chart {
        const NamedXYChartArray* dataProvider = nullptr; ///< none: every value is 0
        QStringList showNames;                           ///< the series in drawing order
        float width = 0;                                 ///< of the rectangle that is drawn
        float height = 0;
        bool useTimeFormatForX = false; ///< x values are seconds
        ChartSettings settings;
        const MultipFormatter* formatterForXAxis = nullptr; ///< also for the second y axis
        const MultipFormatter* formatterForYAxis = nullptr;
        LabelMeasure measure;
    };

    struct Tic {
        float position; ///< view x or y
        QString label;
    };

    explicit ChartScaling(Chart chart) : _chart(std::move(chart)) {}

    // The steps of a pass

    void calcValues(); ///< margins, and whether there is a second y axis
    void calcXAxis();
    /// Range and factor of one series. That on the second axis is scaled as any other.
    void calcYAxisForName(const QString& name);

    // The plot between the margins. On an axis with extent its ends are those of the range.

    float plotLeft() const { return _chartOffsetX; }
    float plotRight() const { return _chart.width - _2ndChartOffsetX; }
    float plotBottom() const;
    float plotTop() const;
    /// Whether there is room for one.
    bool hasPlot() const { return plotRight() > plotLeft() && plotTop() > plotBottom(); }

    float calcRealXValueFrom(float x) const { return x * _xFactor + _chartOffsetX; }
    float calcRealYValueFrom(float y) const { return (y - _minYAxisValue) * _yFactor + _chartOffsetY; }
    /// The x value at a view x; not kept within the axis. 0 on an axis without extent.
    double calcXValueFromPoint(double x) const;

    // Results. View units, and data units of the series.

    float chartOffsetX() const { return _chartOffsetX; }          ///< left margin
    float secondChartOffsetX() const { return _2ndChartOffsetX; } ///< right margin
    bool draw2ndAxis() const { return _draw2ndAxis; }
    float xFactor() const { return _xFactor; } ///< view units for one data unit; 0 without extent
    float maxXAxisValue() const { return _maxXAxisValue; }
    float majorXTicDistance() const { return _majorXTicDistance; }
    std::int32_t xTicCount() const { return _xTicCount; } ///< intervals
    float yFactor() const { return _yFactor; }            ///< 0 without extent
    float minYAxisValue() const { return _minYAxisValue; }
    float maxYAxisValue() const { return _maxYAxisValue; }

    /// Whether the series has the second axis: speed beside another one.
    bool isOn2ndAxis(qsizetype series) const;
    std::vector<Tic> xTics() const;
    /// Of the series scaled last, labelled for the left or the second axis.
    std::vector<Tic> yTics(bool second) const;

    float xAxisPosition() const { return _chartOffsetY - 3.0F; } ///< view y
    float leftAxisPosition() const { return _chartOffsetX - 3.0F; }
    float secondAxisPosition() const { return plotRight() + 3.0F; }

    const Chart& chart() const { return _chart; }

private:
    Chart _chart;
    float _xFactor = 0;
    float _maxXAxisValue = 0;
    float _majorXTicDistance = 0;
    std::int32_t _xTicCount = 0;
    float _chartOffsetX = 0;
    float _2ndChartOffsetX = 0;
    bool _draw2ndAxis = false;
    float _yFactor = 0;
    float _maxYAxisValue = 0;
    float _minYAxisValue = 0;
    float _chartOffsetY = 0;
};

} // namespace ridelog
