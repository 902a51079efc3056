#pragma once

#include "platform/NumberPattern.h"

#include <QString>
#include <QVariant>

namespace ridelog {

class Defaults;

/// Writes numbers with one of two pairs of factor and pattern, as a choice of the user has it, and reads them
/// back. It asks for the choice at each conversion to text.
class PreferenceAwareFormatter {
public:
    /// Without a key, which counts as false. `defaults` have to outlive the formatter.
    explicit PreferenceAwareFormatter(const Defaults& defaults) : _defaults(&defaults) {}
    static PreferenceAwareFormatter initWithPreferencesPath(const Defaults& defaults, const QString& path);

    /// The key of a bool: whether the alternatives count.
    const QString& path() const { return _path; }
    void setPath(const QString& path);

    // What is set here counts from the next conversion to text on.

    float multiplicator() const { return _multiplicator; }
    void setMultiplicator(float multiplicator) { _multiplicator = multiplicator; }
    float alternativeMultiplicator() const { return _alternativeMultiplicator; }
    void setAlternativeMultiplicator(float multiplicator) { _alternativeMultiplicator = multiplicator; }
    const QString& formatString() const { return _formatString; }
    void setFormatString(const QString& pattern) { _formatString = pattern; }
    const QString& alternativeFormatString() const { return _alternativeFormatString; }
    void setAlternativeFormatString(const QString& pattern) { _alternativeFormatString = pattern; }

    /// In the user's locale. Null for what is not a number, an infinity or NaN.
    QString stringForObjectValue(const QVariant& object);
    /// The number in `string`, divided by the factor of the last conversion to text, into `object`; blanks
    /// around it do not matter. What is not one number is refused with a reason. Either may be null.
    bool getObjectValue(QVariant* object, const QString& string, QString* errorDescription) const;

private:
    void _refreshCurrentMultiplicator();

    const Defaults* _defaults;
    QString _path;
    float _currentMultiplicator = 1;
    float _multiplicator = 1;
    float _alternativeMultiplicator = 2;
    QString _formatString = QStringLiteral("####0.#;0;-####0.#");
    QString _alternativeFormatString = _formatString;
    NumberPattern _currentPattern{_formatString};
};

} // namespace ridelog
