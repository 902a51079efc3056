#pragma once

#include <QString>

namespace ridelog {

class Defaults;

/// A language of the windows.
struct Language {
    QString code; ///< as QLocale has it
    QString name; ///< in itself: for who understands it
};

/// All there are: a translation is added here.
inline const Language languages[] = {
    {QStringLiteral("en"), QStringLiteral("English")},
};

/// Makes windows that are opened from now on speak the language that the rider has chosen, with dates and
/// numbers in it; without a choice, or one that there is not, the system's own.
void speakChosenLanguage(const Defaults& defaults);

} // namespace ridelog
