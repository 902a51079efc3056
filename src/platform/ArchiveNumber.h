#pragma once

#include <QtGlobal>

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>

namespace ridelog {

/// A number object, with the type that it was stored with: the letter c, C, s, S, i, I, l, L, q, Q or B of an
/// integer, f or d of a real number. A boolean is a `c`.
class ArchiveNumber {
public:
    ArchiveNumber() = default;
    explicit ArchiveNumber(bool yes) : _type('c'), _integer(yes) {}
    explicit ArchiveNumber(float number) : ArchiveNumber('f', static_cast<double>(number)) {}
    explicit ArchiveNumber(double number) : ArchiveNumber('d', number) {}
    /// The letter of the narrowest type of a 32-bit program that holds `number`.
    explicit ArchiveNumber(std::signed_integral auto number)
        : ArchiveNumber(letterFor(number), qint64{number})
    {
    }
    ArchiveNumber(char type, qint64 integer) : _type(type), _integer(integer) {}
    ArchiveNumber(char type, double real) : _type(type), _real(real) {}

    char type() const { return _type; }
    bool isReal() const { return _type == 'f' || _type == 'd'; }
    bool toBool() const { return isReal() ? _real != 0 : _integer != 0; }
    /// An unsigned 64-bit number beyond the signed ones comes out right.
    double toDouble() const
    {
        if (isReal())
            return _real;
        return _type == 'Q' ? static_cast<double>(static_cast<quint64>(_integer))
                            : static_cast<double>(_integer);
    }
    /// The bits of an unsigned 64-bit number; of a real number, its whole part. None where that does not fit.
    std::optional<qint64> toInteger() const
    {
        constexpr double limit = 9223372036854775808.0;
        if (!isReal())
            return _integer;
        return _real >= -limit && _real < limit ? std::optional(static_cast<qint64>(_real)) : std::nullopt;
    }
    /// None where the number is not a whole one or does not fit.
    std::optional<std::int32_t> toInt32() const
    {
        using Limits = std::numeric_limits<std::int32_t>;
        const auto whole = toInteger();
        const bool exact = whole && (!isReal() || static_cast<double>(*whole) == _real);
        return exact && *whole >= Limits::min() && *whole <= Limits::max()
                   ? std::optional(static_cast<std::int32_t>(*whole))
                   : std::nullopt;
    }

    /// Same type and value.
    bool operator==(const ArchiveNumber&) const = default;

private:
    static constexpr char letterFor(qint64 number)
    {
        using Limits = std::numeric_limits<std::int32_t>;
        return number >= Limits::min() && number <= Limits::max() ? 'i' : 'q';
    }

    char _type = 'i';
    qint64 _integer = 0;
    double _real = 0;
};

} // namespace ridelog
