#pragma once

#include <QString>

namespace ridelog {

/// What an application says of itself.
struct ApplicationInfo {
    QString identifier;
    QString version;
    QString urlForUpdateCheck; ///< of the description of its newest version; empty: there is none
};

/// Of this build, as its settings say.
ApplicationInfo runningApplication();

} // namespace ridelog
