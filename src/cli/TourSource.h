#pragma once

#include "model/OdoTour.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

namespace ridelog {

/// What a file of tours holds, be it a raw dump or a document.
struct TourSource {
    enum class Kind { dump, document };

    Kind kind = Kind::dump;
    /// In the order in which the device keeps them, then by name those that it does not know.
    std::vector<std::pair<QString, std::int32_t>> generalData = {};
    Tours tours = {};     ///< as the file has them, removed ones included
    QString refusal = {}; ///< why the file cannot be read as either; empty if it was

    /// Reads a file; its content tells what it is. A document may be open elsewhere meanwhile. Tours that
    /// have no year get it from `now`.
    static TourSource read(const QString& path, const QDateTime& now);
};

} // namespace ridelog
