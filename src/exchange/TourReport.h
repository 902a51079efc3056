#pragma once

#include "exchange/HtmlPage.h"
#include "model/OdoTour.h"

#include <QByteArray>
#include <QString>

namespace ridelog {

class Defaults;

/// What a report calls a tour: its title, or else its type.
QString reportHeading(const OdoTour& tour);

/// All about a tour but its heading: when it was, its chart, its summary, its description.
QByteArray tourReport(const OdoTour& tour, const Defaults& defaults, Readouts readouts);

} // namespace ridelog
