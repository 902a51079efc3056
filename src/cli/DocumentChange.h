#pragma once

#include "cli/Command.h"
#include "library/MyDocument.h"

#include <optional>

namespace ridelog {

// What the commands that change documents have in common. What goes wrong has been said on standard error
// already, and the command has to end with the status answered; none when nothing did.

/// Opens a document, which nobody else has open then.
std::optional<ExitStatus> openToChange(MyDocument& document, const QString& path, MyDocument::Missing missing,
                                       const QDateTime& now);
std::optional<ExitStatus> save(MyDocument& document);

} // namespace ridelog
