#pragma once

#include <QString>

/// The key of the user's choice of units, which the formatters follow.
namespace ridelog::UnitsKeys {

inline const QString useMiles = QStringLiteral("useMiles"); ///< bool: show miles, mph and feet

} // namespace ridelog::UnitsKeys
