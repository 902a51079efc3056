#pragma once

#include <QByteArray>

namespace ridelog {

class Defaults;
class OdoTour;

/// The line above a tour's chart that tells the values of a sample, and the texts of all of them for the
/// page's script: an array for each value that the tour has, with a text for each entry of the series. Hidden
/// until the script shows it.
QByteArray readoutHtml(const OdoTour& tour, const Defaults& defaults);

} // namespace ridelog
