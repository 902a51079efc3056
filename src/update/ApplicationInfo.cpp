#include "update/ApplicationInfo.h"

namespace ridelog {

ApplicationInfo runningApplication()
{
    return {.identifier = QStringLiteral("ridelog"),
            .version = QStringLiteral(RIDELOG_VERSION),
            .urlForUpdateCheck = QStringLiteral(RIDELOG_UPDATE_URL)};
}

} // namespace ridelog
