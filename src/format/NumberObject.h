#pragma once

#include <QVariant>

#include <optional>

namespace ridelog {

/// The number in a value that is to be shown; none for a truth value, a character, a text, nothing.
std::optional<double> numberOf(const QVariant& object);

} // namespace ridelog
