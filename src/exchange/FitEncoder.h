#pragma once

#include "exchange/FitProfile.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

namespace ridelog {

/// A field of a message and its value, in the field's unit; without one the field says "not recorded".
struct FitValue {
    Fit::Field field;
    std::optional<double> value;
};
using FitValues = std::vector<FitValue>;

/// The check of the protocol: CRC-16 with the polynomial x¹⁶ + x¹⁵ + x² + 1, the lowest bit first, from 0.
std::uint16_t fitChecksum(QByteArrayView bytes);

/// Makes the bytes of a FIT file, message after message.
class FitEncoder {
public:
    FitEncoder();

    /// Adds a message, after its definition if the message before was not made of the same fields. A value
    /// that its field has no room for counts as not recorded.
    void write(std::uint16_t message, const FitValues& values);
    /// The whole file. Nothing can be added afterwards.
    QByteArray finish() &&;

private:
    void define(std::uint16_t message, const FitValues& values);

    QByteArray _bytes;
    // What is defined: messages of this kind with these fields can follow.
    std::optional<std::uint16_t> _message;
    std::vector<std::uint8_t> _fields;
};

} // namespace ridelog
