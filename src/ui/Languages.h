#pragma once

#include <QString>

namespace ridelog {

/// A language of the windows.
struct Language {
    QString code; ///< as QLocale has it
    QString name; ///< in itself: for who understands it
};

/// All there are: a translation is added here.
inline const Language languages[] = {
    {QStringLiteral("en"), QStringLiteral("English")},
};

} // namespace ridelog
