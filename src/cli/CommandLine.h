#pragma once

#include "cli/Command.h"

#include <QStringList>

namespace ridelog {

/// Runs the command that the words of the command line name, the program's own name first.
ExitStatus runCommandLine(const QStringList& words);

} // namespace ridelog
