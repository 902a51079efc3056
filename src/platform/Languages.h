#pragma once

#include <QLocale>
#include <QString>

namespace ridelog {

/// A language that the program's texts are translated to.
struct Language {
    QString code; ///< as QLocale has it
    QString name; ///< in itself: for who understands it
};

/// All there are. Each has its texts in resources/translations; those of English are in the sources, and its
/// file there has no more than the plural forms.
inline const Language languages[] = {
    {QStringLiteral("en"), QStringLiteral("English")},
    {QStringLiteral("de"), QStringLiteral("Deutsch")},
    {QStringLiteral("fr"), QStringLiteral("Français")},
};

/// Makes texts that are looked up from now on those of the first of the locale's languages that there is, the
/// toolkit's own among them; English where there is none. There has to be an application.
void speakLanguageOf(const QLocale& locale);

/// For numbers inside sentences: the locale of today, with groups of digits also where it is that of
/// programs.
QLocale messageLocale();

} // namespace ridelog
