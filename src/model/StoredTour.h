#pragma once

#include "model/TourDictionary.h"
#include "platform/StyledText.h"

#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

namespace ridelog {

class TypedStreamWriter;

/// What is stored of a tour, as it was when this was taken. The recording, which makes up nearly all of it,
/// is shared with the tour, so that thousands are taken in a moment; any thread may write it.
struct StoredTour {
    std::shared_ptr<const std::optional<TourDictionary>> tourDataDict;
    QString title;
    StyledText description;
    bool removed;
    QDateTime date;
    bool dataIsBigEndian;

    /// Writes the stored form, as one object.
    void encodeWithCoder(TypedStreamWriter& writer) const;
};

} // namespace ridelog
