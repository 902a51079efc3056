#pragma once

#include "platform/NumberPattern.h"

#include <QString>
#include <QVariant>

namespace ridelog {

class Defaults;

/// Writes numbers by a pattern, and multiplies them before while the user wants miles. The pattern stays as
/// it is when the user changes the units.
class MultipFormatter {
public:
    /// Asks `defaults` for the units at each conversion; they have to outlive the formatter.
    explicit MultipFormatter(const Defaults& defaults) : _defaults(&defaults) {}

    float multiplicator() const { return _multiplicator; }
    void setMultiplicator(float multiplicator) { _multiplicator = multiplicator; }
    void setFormat(const QString& pattern) { _pattern = NumberPattern(pattern); }

    /// In the user's locale. Null for what is not a number, an infinity or NaN.
    QString stringForObjectValue(const QVariant& object) const;

private:
    const Defaults* _defaults;
    float _multiplicator = 1;
    NumberPattern _pattern{QStringLiteral("0.###")};
};

} // namespace ridelog
