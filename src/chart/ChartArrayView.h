#pragma once

#include "chart/ChartScaling.h"
#include "format/MultipFormatter.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace ridelog {

class Defaults;

/// Who hears of clicks into a chart.
class ChartMouseDelegate {
public:
    virtual ~ChartMouseDelegate() = default;
    /// In data units of the x axis; also beyond its ends.
    virtual void clickAtXValue(double x) = 0;
};

/// A chart of one or more named series. What is set here shows with the next repaint, which the caller asks
/// for; what the rider chooses for all charts shows at once.
class ChartArrayView : public QWidget {
    Q_OBJECT

public:
    explicit ChartArrayView(const Defaults& defaults, QWidget* parent = nullptr);
    ~ChartArrayView() override;

    void setDataProvider(std::shared_ptr<const NamedXYChartArray> provider)
    {
        _dataProvider = std::move(provider);
    }
    const std::shared_ptr<const NamedXYChartArray>& dataProvider() const { return _dataProvider; }
    /// The series in drawing order.
    void setShowNames(const QStringList& names) { _showNames = names; }
    const QStringList& showNames() const { return _showNames; }
    /// X values are seconds and labelled as times.
    void setUseTimeFormatForX(bool useTime);
    bool useTimeFormatForX() const { return _useTimeFormatForX; }
    void setMpFormatterForXAxis(const MultipFormatter& formatter) { _mpFormatterForXAxis = formatter; }
    void setMpFormatterForYAxis(const MultipFormatter& formatter) { _mpFormatterForYAxis = formatter; }
    /// Not owned; none for nobody.
    void setMouseDelegate(ChartMouseDelegate* delegate) { _mouseDelegate = delegate; }

    // A line at one x value. It shows, moves and goes at once: only where it is and was is painted again.

    void showXIndicatorUsingValue(float x);
    void hideXIndicator();
    void setIndicatorValue(float x) { _indicatorValue = x; }
    float indicatorValue() const { return _indicatorValue; }
    bool showsXIndicator() const { return _showXIndicator; }

    const ChartSettings& settings() const { return _settings; }

    /// What is drawn, for a picture of another size.
    ChartScaling::Chart chart(QSizeF size) const;
    std::optional<float> indicator() const;
    /// The x value at a view x, by the last repaint.
    double calcXValueFromPoint(double x) const;

    QSize sizeHint() const override { return {640, 320}; }
    QSize minimumSizeHint() const override { return {160, 100}; }

Q_SIGNALS:
    /// The mouse is over this x value, by the last repaint; none when it has left.
    void hovered(std::optional<double> x);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void _bindUsedPreferences();
    void updateXIndicator();

    const Defaults& _defaults;
    ChartSettings _settings;
    std::shared_ptr<const NamedXYChartArray> _dataProvider;
    QStringList _showNames;
    bool _useTimeFormatForX = false;
    bool _showXIndicator = false;
    float _indicatorValue = 0;
    ChartMouseDelegate* _mouseDelegate = nullptr;
    std::optional<MultipFormatter> _mpFormatterForXAxis;
    std::optional<MultipFormatter> _mpFormatterForYAxis;
    std::optional<ChartScaling> _scaling; ///< of the last repaint
};

} // namespace ridelog
