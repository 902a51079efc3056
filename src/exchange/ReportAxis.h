#pragma once

#include "format/AxisTics.h"

#include <QString>

#include <vector>

namespace ridelog {

/// An axis of a report's chart, with tics at round values.
class ReportAxis {
public:
    struct Tic {
        double part; ///< of the axis, from its beginning
        QString label;
    };

    enum class End { atTic, atGreatest };

    /// From the last tic that no value is below, for values from `least` to `greatest`, both finite. Between
    /// the tics are `mostSteps` at most, or one more.
    ReportAxis(AxisValues values, double least, double greatest, int mostSteps, End end = End::atTic);

    /// From 0 to 1.
    double partOf(double value) const { return (value - _begin) / (_end - _begin); }
    std::vector<Tic> tics() const;

private:
    AxisValues _values;
    double _step;
    double _first; ///< tic, in steps from 0
    int _steps;
    double _begin;
    double _end;
};

} // namespace ridelog
