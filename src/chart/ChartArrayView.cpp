#include "chart/ChartArrayView.h"

#include "chart/ChartAccessibility.h"
#include "chart/ChartDrawing.h"
#include "chart/ChartLog.h"
#include "chart/FocusFrame.h"
#include "model/ChartProviders.h"
#include "platform/Defaults.h"

#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

namespace ridelog {

ChartArrayView::ChartArrayView(const Defaults& defaults, QWidget* parent)
    : QWidget(parent), _defaults(defaults)
{
    // Every repaint begins with white paper, in a dark theme as well.
    setAttribute(Qt::WA_OpaquePaintEvent);
    presentChartsAsSuch();
    setAccessibleName(tr("Chart"));
    setMouseTracking(true);
    _bindUsedPreferences();
}

ChartArrayView::~ChartArrayView() = default;

void ChartArrayView::_bindUsedPreferences()
{
    qCDebug(lcChart, "[_bindUsedPreferences]");
    _settings = ChartSettings::fromDefaults(_defaults);
    connect(&_defaults, &Defaults::changed, this, [this](const QString& key) {
        if (!ChartSettings::isKey(key))
            return;
        qCDebug(lcChart, "[observeValueForKeyPath:ofObject:change:context:]");
        _settings = ChartSettings::fromDefaults(_defaults);
        update();
    });
}

void ChartArrayView::setUseTimeFormatForX(bool useTime)
{
    qCDebug(lcChart, "[setUseTimeFormatForX:%d]", useTime);
    _useTimeFormatForX = useTime;
}

void ChartArrayView::showXIndicatorUsingValue(float x)
{
    updateXIndicator();
    _showXIndicator = true;
    _indicatorValue = x;
    updateXIndicator();
}

void ChartArrayView::hideXIndicator()
{
    updateXIndicator();
    _showXIndicator = false;
}

/// Where it stands in the picture that is on the screen.
void ChartArrayView::updateXIndicator()
{
    constexpr int reach = 3; // of a line two pixels wide, and more on a grid of pixels
    if (!_showXIndicator || !_scaling)
        return;
    const auto x = _scaling->calcRealXValueFrom(_indicatorValue);
    if (x > -reach && x < static_cast<float>(width() + reach))
        update(qFloor(x) - reach, 0, 2 * reach + 1, height());
}

std::optional<float> ChartArrayView::indicator() const
{
    return _showXIndicator ? std::optional(_indicatorValue) : std::nullopt;
}

ChartScaling::Chart ChartArrayView::chart(QSizeF size) const
{
    return {
        .dataProvider = _dataProvider.get(),
        .showNames = _showNames,
        .width = static_cast<float>(size.width()),
        .height = static_cast<float>(size.height()),
        .useTimeFormatForX = _useTimeFormatForX,
        .settings = _settings,
        .formatterForXAxis = _mpFormatterForXAxis ? &*_mpFormatterForXAxis : nullptr,
        .formatterForYAxis = _mpFormatterForYAxis ? &*_mpFormatterForYAxis : nullptr,
        .measure = chartLabelMeasure(),
    };
}

double ChartArrayView::calcXValueFromPoint(double x) const
{
    return _scaling ? _scaling->calcXValueFromPoint(x) : 0;
}

void ChartArrayView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    _scaling.emplace(ChartDrawing(painter, chart(size()), indicator()).draw());
    if (hasFocus())
        drawFocusFrame(painter, *this);
}

void ChartArrayView::mousePressEvent(QMouseEvent* event)
{
    if (_mouseDelegate && event->button() == Qt::LeftButton)
        _mouseDelegate->clickAtXValue(calcXValueFromPoint(event->position().x()));
}

void ChartArrayView::mouseMoveEvent(QMouseEvent* event)
{
    Q_EMIT hovered(calcXValueFromPoint(event->position().x()));
}

void ChartArrayView::leaveEvent(QEvent*)
{
    Q_EMIT hovered(std::nullopt);
}

} // namespace ridelog
