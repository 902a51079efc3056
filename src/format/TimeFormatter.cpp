#include "format/TimeFormatter.h"

#include "format/NumberObject.h"

#include <cstdio>
#include <limits>

namespace ridelog {

QString TimeFormatter::text(int seconds)
{
    const auto absolute = qAbs(qint64{seconds});
    // The toolkit's form of this takes several times as long, and tables have thousands of times.
    char digits[32];
    const auto length = std::snprintf(digits, sizeof digits, "%s%lld:%02lld:%02lld", seconds < 0 ? "-" : "",
                                      absolute / 3600, absolute / 60 % 60, absolute % 60);
    return QString::fromLatin1(digits, length);
}

QString TimeFormatter::stringForObjectValue(const QVariant& object) const
{
    using Limits = std::numeric_limits<int>;
    const auto number = numberOf(object);
    if (!number || !(*number > Limits::min() - 1.0) || !(*number < Limits::max() + 1.0))
        return {};
    return text(static_cast<int>(*number));
}

} // namespace ridelog
