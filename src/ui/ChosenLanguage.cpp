#include "ui/ChosenLanguage.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "platform/Languages.h"

#include <algorithm>
#include <iterator>

namespace ridelog {

void speakChosenLanguage(const Defaults& defaults)
{
    const auto code = defaults.textForKey(DefaultsKeys::language);
    // What a country has of its own, such as the first day of its weeks, stays.
    if (code && std::ranges::find(languages, *code, &Language::code) != std::end(languages))
        QLocale::setDefault(QLocale(QLocale(*code).language(), QLocale::system().territory()));
    speakLanguageOf(QLocale());
}

} // namespace ridelog
