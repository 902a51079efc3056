#pragma once

#include "format/MultipFormatter.h"
#include "model/OdoTour.h"

#include <QString>

namespace ridelog {

class Defaults;

/// The columns of a table of tours, in the units that the user wants when this is made.
class TourColumns {
public:
    explicit TourColumns(const Defaults& defaults);

    static int count();
    /// The column's key, a TourKey.
    static QString keyOf(int column);
    /// -1 for a key that is no column's.
    static int columnWithKey(const QString& key);
    /// Whether it is there before the user asks for it.
    static bool isShownAtFirst(int column);
    static bool isNumber(int column);

    /// What it is called, with the unit where the values do not say it.
    QString header(int column) const;
    /// Empty where the tour has no such value.
    QString text(int column, const OdoTour& tour) const;

private:
    friend struct TourColumn;

    MultipFormatter _distance;
    MultipFormatter _speed;
    MultipFormatter _altitude;
    QString _altitudeUnit;
};

} // namespace ridelog
