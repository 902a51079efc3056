#pragma once

#include "ui/ValuesArea.h"

#include <memory>
#include <vector>

namespace ridelog {

class Defaults;
class OdoTour;

/// All summary values of a tour, in groups, in the units that the user has chosen.
class TourSummaryView : public ValuesArea {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    TourSummaryView(std::shared_ptr<const OdoTour> tour, const Defaults& defaults, QWidget* parent = nullptr);

    /// Shows the values as they are now, in the units chosen now.
    void refresh();

private:
    std::shared_ptr<const OdoTour> _tour;
    const Defaults& _defaults;
    std::vector<ValueRow> _rows; ///< in the order of the values
};

} // namespace ridelog
