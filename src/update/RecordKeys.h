#pragma once

#include <QString>

/// The elements of an update's description, under whose names its record keeps their text.
namespace ridelog::RecordKeys {

inline const QString name = QStringLiteral("name");       ///< the identifier of the application
inline const QString version = QStringLiteral("version"); ///< its newest version
inline const QString url = QStringLiteral("url");         ///< where that is downloaded

} // namespace ridelog::RecordKeys
