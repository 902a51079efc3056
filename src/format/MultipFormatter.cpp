#include "format/MultipFormatter.h"

#include "format/NumberObject.h"
#include "format/UnitsKeys.h"
#include "platform/Defaults.h"

namespace ridelog {

QString MultipFormatter::stringForObjectValue(const QVariant& object) const
{
    const auto number = numberOf(object);
    if (!number)
        return {};
    if (_defaults->boolForKey(UnitsKeys::useMiles))
        return _pattern.text(static_cast<float>(*number) * _multiplicator, QLocale());
    return _pattern.text(*number, QLocale());
}

} // namespace ridelog
