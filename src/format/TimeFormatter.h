#pragma once

#include <QString>
#include <QVariant>

namespace ridelog {

/// Writes seconds as hours, minutes and seconds.
class TimeFormatter {
public:
    /// "0:01:15", "11:06:40", "-0:00:59".
    static QString text(int seconds);

    /// The text of the whole seconds. Null for what is not a number or lies outside 32 bits.
    QString stringForObjectValue(const QVariant& object) const;
};

} // namespace ridelog
