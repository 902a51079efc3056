#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace ridelog {

/// What can be seen of a long line: how far up and down it runs in each column of a picture. Columns are 1
/// wide; the first begins at 0. What lies beside them is left out.
class ColumnExtents {
public:
    /// The columns from `left` on; what lies beside them is left out.
    ColumnExtents(int left, int count) : _left(left), _extents(static_cast<std::size_t>(count)) {}

    struct Extent {
        float least = std::numeric_limits<float>::max();
        float most = std::numeric_limits<float>::lowest();

        bool isEmpty() const { return least > most; }
        void include(float y)
        {
            least = std::min(least, y);
            most = std::max(most, y);
        }
    };

    /// The next point begins another line.
    void beginLine() { _isBegun = false; }
    /// Leads the line on to a point that an int can hold.
    void add(float x, float y)
    {
        const Point point{x, y, columnAt(x)};
        if (!_isBegun || point.column == _last.column)
            include(point.column, y);
        else if (_last.column < point.column)
            cross(_last, point);
        else
            cross(point, _last);
        _last = point;
        _isBegun = true;
    }

    /// From left to right.
    const std::vector<Extent>& extents() const { return _extents; }

private:
    struct Point {
        float x;
        float y;
        int column;
    };

    static int columnAt(float x) { return static_cast<int>(x) - (x < 0 ? 1 : 0); }
    int end() const { return _left + static_cast<int>(_extents.size()); }
    void include(int column, float y)
    {
        if (column >= _left && column < end())
            _extents[static_cast<std::size_t>(column - _left)].include(y);
    }
    /// From column to column, from left to right: the line enters and leaves each at its edges.
    void cross(const Point& from, const Point& to)
    {
        const auto slope = (to.y - from.y) / (to.x - from.x);
        include(from.column, from.y);
        for (auto column = std::max(from.column, _left - 1); column < std::min(to.column, end()); ++column) {
            const auto edge = from.y + (static_cast<float>(column + 1) - from.x) * slope;
            include(column, edge);
            include(column + 1, edge);
        }
        include(to.column, to.y);
    }

    int _left;
    std::vector<Extent> _extents;
    Point _last{};
    bool _isBegun = false;
};

} // namespace ridelog
