#include "ui/Languages.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QLocale>

#include <algorithm>

namespace ridelog {

void speakChosenLanguage(const Defaults& defaults)
{
    const auto code = defaults.textForKey(DefaultsKeys::language);
    if (!code || std::ranges::find(languages, *code, &Language::code) == std::end(languages))
        return;
    // What a country has of its own, such as the first day of its weeks, stays.
    QLocale::setDefault(QLocale(QLocale(*code).language(), QLocale::system().territory()));
}

} // namespace ridelog
