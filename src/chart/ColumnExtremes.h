#pragma once

#include <QPolygonF>

#include <cmath>

namespace ridelog {

/// Thins a line to what can be seen of it: of all points in a row that fall into the same column of pixels
/// the first, the lowest, the highest and the last, in the order in which they came.
class ColumnExtremes {
public:
    explicit ColumnExtremes(float columnsPerUnit) : _columnsPerUnit(columnsPerUnit) {}

    /// A point that is no place is left out.
    void add(float x, float y)
    {
        if (!std::isfinite(x) || !std::isfinite(y))
            return;
        const auto column = std::floor(x * _columnsPerUnit);
        if (_count == 0 || column != _column)
            begin(column, x, y);
        else
            extend(x, y);
    }

    const QPolygonF& points()
    {
        flush();
        return _points;
    }

private:
    struct Point {
        float x;
        float y;
    };

    void begin(float column, float x, float y)
    {
        flush();
        _column = column;
        _first = _lowest = _highest = _last = {x, y};
        _lowestAt = _highestAt = 0;
        _count = 1;
    }
    void extend(float x, float y)
    {
        _last = {x, y};
        if (y < _lowest.y) {
            _lowest = _last;
            _lowestAt = _count;
        } else if (y > _highest.y) {
            _highest = _last;
            _highestAt = _count;
        }
        ++_count;
    }
    void flush()
    {
        if (_count == 0)
            return;
        const auto append = [this](Point point) { _points.append({point.x, point.y}); };
        const bool lowestComesFirst = _lowestAt < _highestAt;
        append(_first);
        if (_count > 2) {
            append(lowestComesFirst ? _lowest : _highest);
            append(lowestComesFirst ? _highest : _lowest);
        }
        if (_count > 1)
            append(_last);
        _count = 0;
    }

    float _columnsPerUnit;
    float _column = 0;
    Point _first{}, _lowest{}, _highest{}, _last{};
    std::size_t _lowestAt = 0;
    std::size_t _highestAt = 0;
    std::size_t _count = 0;
    QPolygonF _points;
};

} // namespace ridelog
