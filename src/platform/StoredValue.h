#pragma once

#include "platform/ColourComponents.h"

#include <QDateTime>
#include <QList>
#include <QStringList>
#include <QVariant>

#include <optional>

/// The plain forms in which values stand in the defaults file, so that a person can read and change them, and
/// so that a value is the same before and after it went through the file.
namespace ridelog::StoredValue {

/// The stored form: bools "true" and "false", numbers decimal (the shortest text that reads back to the same
/// number), dates ISO 8601 with the offset of their zone, colours "r,g,b,a", a list the list of its entries'
/// forms and, with one entry, that entry. An invalid date becomes no value. All else stays as it is.
QVariant of(const QVariant& value);

// Reading back: none if the value cannot be read as that type. Texts are read without regard to blanks
// around them, except as texts.

/// "true", "yes", "false", "no" in any case, or a number: 0 is false.
std::optional<bool> toBool(const QVariant& stored);
/// A number within the range of an int; what follows the decimal point is dropped.
std::optional<int> toInteger(const QVariant& stored);
std::optional<double> toDouble(const QVariant& stored); ///< finite
std::optional<float> toFloat(const QVariant& stored);   ///< finite
std::optional<QString> toText(const QVariant& stored);
std::optional<QStringList> toTextList(const QVariant& stored);
std::optional<QList<int>> toIntegerList(const QVariant& stored);
/// ISO 8601; the time zone has the fixed offset that is stored, or is the local one if there is none.
std::optional<QDateTime> toDate(const QVariant& stored);
/// Of a text, or of the archive in which the older application kept a colour.
std::optional<ColourComponents> toColour(const QVariant& stored);

} // namespace ridelog::StoredValue
