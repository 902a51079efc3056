#include "platform/Log.h"

#include <QLoggingCategory>
#include <QString>

namespace ridelog {

void setLogLevel(LogLevel level)
{
    qSetMessagePattern(QStringLiteral("%{message}"));
    switch (level) {
    case LogLevel::none:
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\n*.warning=false\n"
                                                        "*.critical=false"));
        break;
    case LogLevel::errors:
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
        break;
    case LogLevel::trace:
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\nridelog.*=true"));
        break;
    }
}

} // namespace ridelog
