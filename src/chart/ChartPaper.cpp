#include "chart/ChartPaper.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace ridelog {

QFont chartLabelFont()
{
    QFont font(
        QStringList{QStringLiteral("Helvetica"), QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(12);
    return font;
}

bool hasChartLabelFont()
{
    return QRawFont::fromFont(chartLabelFont()).supportsCharacter(u'0');
}

ChartScaling::LabelMeasure chartLabelMeasure()
{
    return [metrics = QFontMetricsF(chartLabelFont())](const QString& label) {
        return QSizeF(metrics.horizontalAdvance(label), metrics.height());
    };
}

QColor chartColor(const ColourComponents& colour)
{
    const auto component = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(component(colour.red), component(colour.green), component(colour.blue),
                            component(colour.alpha));
}

QColor colorByInterpolatingColor(const QColor& a, const QColor& withColor, int basedOnProgress,
                                 int outOfPossibleSteps)
{
    const auto part = static_cast<float>(basedOnProgress) / static_cast<float>(outOfPossibleSteps);
    const auto between = [part](float to, float from) { return from + (to - from) * part; };
    return QColor::fromRgbF(between(a.redF(), withColor.redF()), between(a.greenF(), withColor.greenF()),
                            between(a.blueF(), withColor.blueF()), between(a.alphaF(), withColor.alphaF()));
}

bool paintsPixels(const QPainter& painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster &&
           painter.deviceTransform().type() <= QTransform::TxScale;
}

void fillCrisp(QPainter& painter, const QRectF& rect, const QColor& color)
{
    const auto toDevice = painter.deviceTransform();
    const auto onDevice = toDevice.mapRect(rect);
    const auto length = [](double from, double to) { return std::max(std::round(to - from), 1.0); };
    const QRectF onGrid(std::round(onDevice.left()), std::round(onDevice.top()),
                        length(onDevice.left(), onDevice.right()), length(onDevice.top(), onDevice.bottom()));
    painter.fillRect(toDevice.inverted().mapRect(onGrid), color);
}

} // namespace ridelog
