#pragma once

namespace ridelog {

class Defaults;

/// Makes windows that are opened from now on speak the language that the rider has chosen, with dates and
/// numbers in it; without a choice, or one that there is not, the system's own.
void speakChosenLanguage(const Defaults& defaults);

} // namespace ridelog
