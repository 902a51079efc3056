#pragma once

#include <QLocale>
#include <QString>

#include <string>

namespace ridelog {

/// How a number is written: "####0.##km;0 km;-####0.##km".
///
/// Up to three sections with ";" between them: for positive values, for zero and for negative values. Two are
/// for positive and for negative values. Zero without a section of its own is written by the first, a
/// negative value without one by the first behind a minus sign.
///
/// In a section the first run of "#", an optional digit, and "0", a required one, is the number. There are as
/// many integer digits as the number needs and at least one; behind a "." there are at most as many fraction
/// digits as places, and no decimal separator without any. Whatever else stands in a section is copied.
class NumberPattern {
public:
    explicit NumberPattern(const QString& pattern);

    /// The value, rounded half to even, with the digits and the decimal separator of the locale. A negative
    /// value that is rounded to zero is written as zero. Null for an infinity or NaN.
    QString text(double value, const QLocale& locale) const;

private:
    struct Section {
        explicit Section(const QString& pattern);
        std::string digits(double value) const; ///< without sign, as in the C locale
        QString text(const std::string& digits, const QLocale& locale) const;

        QString before;
        QString after;
        bool hasNumber = false;
        int leastIntegerDigits = 1;
        int leastFractionDigits = 0;
        int mostFractionDigits = 0;
    };

    Section _positive;
    Section _zero;
    Section _negative;
};

} // namespace ridelog
