#pragma once

#include <QByteArray>

namespace ridelog {

class Defaults;
class OdoTour;

/// A tour's altitude, speed and pulse as a picture in a page: each on an axis of its own, one below the
/// other, over the distance, or over the time of a tour that went nowhere. The lines have all entries of the
/// series. `attributes` come with the picture. For a tour with samples.
QByteArray seriesSvg(const OdoTour& tour, const Defaults& defaults, const char* attributes = "");

} // namespace ridelog
