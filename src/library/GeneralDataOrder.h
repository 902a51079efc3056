#pragma once

#include "decode/DumpLayout.h"

#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

namespace ridelog {

/// What the device says of itself, in the order in which it keeps that, then by name what it does not know.
std::vector<std::pair<QString, std::int32_t>> inOrderOfTheDevice(GeneralData numbers);

} // namespace ridelog
