#pragma once

#include <QString>

/// The keys of the user's choices that the update check follows. They stand here because neither it nor the
/// library, which registers their values, may see the other.
namespace ridelog::UpdateKeys {

inline const QString checkForUpdateAfterDays = QStringLiteral("checkForUpdateAfterDays"); ///< integer: days
inline const QString checkedForUpdateOn = QStringLiteral("checkedForUpdateOn"); ///< date of the last check

} // namespace ridelog::UpdateKeys
