#pragma once

#include <QString>

namespace ridelog {

/// Why an update check has nothing to compare with.
struct UpdateFailure {
    enum class Kind {
        notLoaded,      ///< the description is not there, or did not come in time
        notADescription ///< what was there describes no application
    };
    Kind kind;
    QString reason; ///< in words for people, to go behind the address
};

} // namespace ridelog
