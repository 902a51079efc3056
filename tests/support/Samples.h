#pragma once

#include <QString>

namespace ridelog {

/// The path of a real recording, or an empty text where the folder with them is not there. Use with
/// SKIP_WITHOUT_SAMPLES first.
QString samplePath(const QString& name);

bool haveSamples();

} // namespace ridelog

#define SKIP_WITHOUT_SAMPLES()                                                                               \
    if (!ridelog::haveSamples())                                                                             \
    GTEST_SKIP() << "the folder with real recordings is not there (RIDELOG_SAMPLES)"
