#include "format/PreferenceAwareFormatter.h"

#include "format/NumberObject.h"
#include "platform/Defaults.h"

#include <QCoreApplication>

#include <cmath>
#include <optional>

namespace ridelog {
namespace {

/// A decimal point is understood everywhere, what the field itself shows in the user's locale as well.
std::optional<double> scannedNumber(const QString& string)
{
    bool isNumber = false;
    const double number = string.toDouble(&isNumber);
    if (isNumber)
        return number;
    QLocale locale;
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    const double localNumber = locale.toDouble(string, &isNumber);
    return isNumber ? std::optional(localNumber) : std::nullopt;
}

} // namespace

PreferenceAwareFormatter PreferenceAwareFormatter::initWithPreferencesPath(const Defaults& defaults,
                                                                           const QString& path)
{
    PreferenceAwareFormatter formatter(defaults);
    formatter.setAlternativeFormatString(QStringLiteral("####0.#;0 mi;-####0.#"));
    formatter.setPath(path);
    return formatter;
}

void PreferenceAwareFormatter::setPath(const QString& path)
{
    if (path == _path)
        return;
    _path = path;
    if (!path.isNull())
        _refreshCurrentMultiplicator();
}

void PreferenceAwareFormatter::_refreshCurrentMultiplicator()
{
    const bool alternative = _defaults->boolForKey(_path);
    _currentMultiplicator = alternative ? _alternativeMultiplicator : _multiplicator;
    _currentPattern = NumberPattern(alternative ? _alternativeFormatString : _formatString);
}

QString PreferenceAwareFormatter::stringForObjectValue(const QVariant& object)
{
    _refreshCurrentMultiplicator();
    const auto number = numberOf(object);
    if (!number)
        return {};
    return _currentPattern.text(static_cast<float>(*number) * _currentMultiplicator, QLocale());
}

bool PreferenceAwareFormatter::getObjectValue(QVariant* object, const QString& string,
                                              QString* errorDescription) const
{
    const auto number = scannedNumber(string);
    const auto value = number ? std::optional(*number / _currentMultiplicator) : std::nullopt;
    if (!value || !std::isfinite(*value)) {
        if (errorDescription)
            *errorDescription = QCoreApplication::translate("ridelog::PreferenceAwareFormatter",
                                                            "Couldn not convert  to float");
        return false;
    }
    if (object)
        *object = *value;
    return true;
}

} // namespace ridelog
