#include "chart/LineClip.h"

#include <algorithm>
#include <optional>

namespace ridelog {
namespace {

/// The part of the way along a stretch, 0 its begin and 1 its end, that is inside.
struct Inside {
    double from = 0;
    double to = 1;

    /// Leaves only what is between the two edges: Liang and Barsky's way of clipping lines.
    bool keep(double start, double change, double low, double high)
    {
        if (change == 0)
            return start >= low && start <= high;
        const auto toLow = (low - start) / change;
        const auto toHigh = (high - start) / change;
        from = std::max(from, std::min(toLow, toHigh));
        to = std::min(to, std::max(toLow, toHigh));
        return from <= to;
    }
};

std::optional<Inside> insideOf(const QPointF& begin, const QPointF& end, const QRectF& rect)
{
    Inside inside;
    const auto change = end - begin;
    if (inside.keep(begin.x(), change.x(), rect.left(), rect.right()) &&
        inside.keep(begin.y(), change.y(), rect.top(), rect.bottom()))
        return inside;
    return std::nullopt;
}

} // namespace

QList<QPolygonF> clippedLine(const QPolygonF& line, const QRectF& to)
{
    const auto contains = [&to](const QPointF& point) {
        return point.x() >= to.left() && point.x() <= to.right() && point.y() >= to.top() &&
               point.y() <= to.bottom();
    };
    if (std::ranges::all_of(line, contains))
        return {line};
    QList<QPolygonF> parts;
    bool goesOn = false; // the last part ends at the point that the next stretch begins with
    for (qsizetype i = 0; i + 1 < line.size(); ++i) {
        const auto& begin = line[i];
        const auto& end = line[i + 1];
        if (goesOn && contains(end)) {
            parts.last().append(end);
            continue;
        }
        const auto inside = insideOf(begin, end, to);
        if (!inside) {
            goesOn = false;
            continue;
        }
        const auto at = [&](double part) { return begin + (end - begin) * part; };
        if (!goesOn || inside->from > 0)
            parts.append(QPolygonF{at(inside->from)});
        parts.last().append(inside->to < 1 ? at(inside->to) : end);
        goesOn = inside->to >= 1;
    }
    return parts;
}

} // namespace ridelog
