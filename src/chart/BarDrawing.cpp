#include "chart/BarDrawing.h"

#include "chart/ChartPaper.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace ridelog {
namespace {

const QColor gridColor(225, 225, 225);
const QColor markedColumn(235, 235, 235);

constexpr double ticLength = 5;
constexpr double labelGap = 4;

/// As it looks on the paper.
QColor onWhite(const QColor& color)
{
    auto opaque = color;
    opaque.setAlpha(255);
    return colorByInterpolatingColor(opaque, Qt::white, color.alpha(), 255);
}

/// Of areas as large as bars the colour of a line would glare.
QColor paler(const QColor& color)
{
    constexpr int white = 45; // per cent
    return colorByInterpolatingColor(Qt::white, color, white, 100);
}

class BarDrawing {
public:
    BarDrawing(QPainter& painter, const BarScaling& scaling)
        : _painter(painter), _scaling(scaling), _metrics(chartLabelFont())
    {
    }

    void draw(std::optional<int> marked)
    {
        _painter.save();
        _painter.setFont(chartLabelFont());
        _painter.setPen(chartLabelColor);
        _painter.fillRect(QRectF(QPointF(), _scaling.size()), Qt::white);
        drawTitle();
        if (!_scaling.plot().isEmpty()) {
            if (marked)
                fill(_scaling.columnOf(*marked), markedColumn);
            drawTics();
            for (int bar = 0; bar < _scaling.count(); ++bar)
                drawBar(bar, bar == marked);
            drawAxes();
            drawLabels();
            drawNote();
        }
        _painter.restore();
    }

private:
    void drawTitle()
    {
        const auto left = _scaling.plot().left();
        const QRectF place(left, _scaling.plot().top() - _metrics.height() - 2 * labelGap,
                           std::max(_scaling.plot().width(), 0.0), _metrics.height());
        _painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          _metrics.elidedText(_scaling.chart().title, Qt::ElideRight, place.width()));
    }

    void drawTics()
    {
        const auto& plot = _scaling.plot();
        for (const auto& [y, label] : _scaling.tics()) {
            if (y < plot.bottom())
                fillCrisp(_painter, QRectF(plot.left(), y - 0.5, plot.width(), 1), gridColor);
            fillCrisp(_painter, QRectF(plot.left() - ticLength, y - 0.5, ticLength, 1), chartAxisColor);
            const QRectF place(0, y - _metrics.height() / 2, plot.left() - ticLength - labelGap,
                               _metrics.height());
            _painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, label);
        }
    }

    void drawBar(int bar, bool marked)
    {
        const auto color = onWhite(_scaling.chart().color);
        const auto place = _scaling.barOf(bar);
        if (place.height() <= 0)
            return;
        fill(place, marked ? color : paler(color));
        fill(QRectF(place.topLeft(), QSizeF(place.width(), std::min(1.0, place.height()))), color);
    }

    void drawAxes()
    {
        const auto& plot = _scaling.plot();
        fillCrisp(_painter, QRectF(plot.left() - 0.5, plot.top(), 1, plot.height()), chartAxisColor);
        fillCrisp(_painter, QRectF(plot.left() - 0.5, plot.bottom() - 0.5, plot.width(), 1), chartAxisColor);
    }

    void drawLabels()
    {
        for (int bar = 0; bar < _scaling.count(); bar += _scaling.labelStep()) {
            const auto& label = _scaling.chart().bars[static_cast<std::size_t>(bar)].label;
            const auto width = _metrics.horizontalAdvance(label);
            // Centred under its bar, but inside the picture
            const auto left = std::clamp(_scaling.columnOf(bar).center().x() - width / 2, 0.0,
                                         std::max(_scaling.size().width() - width, 0.0));
            _painter.drawText(QPointF(left, _scaling.plot().bottom() + labelGap + _metrics.ascent()), label);
        }
    }

    void drawNote()
    {
        const auto& note = _scaling.chart().note;
        _painter.drawText(_scaling.plot(), Qt::AlignCenter | Qt::TextSingleLine,
                          _metrics.elidedText(note, Qt::ElideRight, _scaling.plot().width()));
    }

    void fill(const QRectF& rect, const QColor& color)
    {
        if (paintsPixels(_painter))
            fillCrisp(_painter, rect, color);
        else
            _painter.fillRect(rect, color);
    }

    QPainter& _painter;
    const BarScaling& _scaling;
    QFontMetricsF _metrics;
};

} // namespace

void drawBars(QPainter& painter, const BarScaling& scaling, std::optional<int> marked)
{
    BarDrawing(painter, scaling).draw(marked);
}

} // namespace ridelog
