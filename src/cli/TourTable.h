#pragma once

#include "format/ReadableUnits.h"
#include "model/OdoTour.h"

#include <QString>

namespace ridelog {

/// The tours for people, a line each, numbered from 1, and notes on what the table cannot say.
QString tourTable(const Tours& tours, const ReadableUnits& units);

/// What to say of a tour whose values are not yet made of all of its samples; empty for any other.
QString noteOn(const OdoTour& tour);
/// The same of several tours, a line for each that needs one.
QString notesOn(const Tours& tours);

} // namespace ridelog
