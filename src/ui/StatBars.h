#pragma once

#include "chart/BarScaling.h"
#include "exchange/StatQuantity.h"
#include "model/PeriodParts.h"

#include <optional>
#include <vector>

namespace ridelog {

class Defaults;

/// The parts of a period as bars of one quantity, in the units and the colours that the user has chosen.
class StatBars {
public:
    StatBars() = default; ///< of nothing
    /// Of the tours as they are now. `defaults` have to outlive it.
    StatBars(Period period, const OdoStat& stat, StatQuantity quantity, const Defaults& defaults);

    BarChart chart() const;
    /// What the bar says, in words: "March 2007: 312.4 km".
    QString textOf(int bar) const;
    /// What a file of the chart may be called, without an ending.
    QString pictureName() const;
    QDate firstDayOf(int bar) const;
    /// The bar of the part that the chosen day lies in.
    std::optional<int> chosenBar() const;

private:
    const PeriodPart& part(int bar) const { return _parts[static_cast<std::size_t>(bar)]; }

    Period _period = Period::all;
    QDate _chosen;
    QString _periodTitle;
    StatQuantity _quantity = StatQuantity::distance;
    const Defaults* _defaults = nullptr;
    std::vector<PeriodPart> _parts;
};

} // namespace ridelog
