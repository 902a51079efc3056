#pragma once

#include <QString>

namespace ridelog {

/// Whether a file holds tours: as a document, be it a damaged one, or as a raw dump. What is no recording is
/// not to take its place.
bool holdsTours(const QString& path);

} // namespace ridelog
