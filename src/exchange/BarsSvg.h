#pragma once

#include "exchange/StatQuantity.h"
#include "model/PeriodParts.h"

#include <QByteArray>

#include <vector>

namespace ridelog {

class Defaults;

/// The parts of a period as bars of one quantity, as a picture in a page.
QByteArray barsSvg(Period period, const std::vector<PeriodPart>& parts, StatQuantity quantity,
                   const Defaults& defaults);

} // namespace ridelog
