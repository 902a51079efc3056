#include "exchange/FitEncoder.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

namespace ridelog {
namespace {

constexpr int headerSize = 14;
constexpr int protocolVersion = 0x10; // 1.0, which every reader takes
constexpr int profileVersion = 2132;  // 21.32

/// The remainders of all bytes.
constexpr auto checksumTable = [] {
    std::array<std::uint16_t, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        unsigned remainder = byte;
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder >> 1) ^ ((remainder & 1) != 0 ? 0xA001 : 0);
        table[byte] = static_cast<std::uint16_t>(remainder);
    }
    return table;
}();

/// Adds the lowest bytes of a number, the lowest first.
void append(QByteArray& bytes, std::int64_t number, int size)
{
    const auto littleEndian = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&littleEndian), size);
}

QByteArray header(qint64 dataSize)
{
    QByteArray bytes;
    append(bytes, headerSize, 1);
    append(bytes, protocolVersion, 1);
    append(bytes, profileVersion, 2);
    append(bytes, dataSize, 4);
    bytes += ".FIT";
    append(bytes, fitChecksum(bytes), 2);
    return bytes;
}

/// What the head of a message says. One kind is open at a time, so all have the number 0.
constexpr int definitionHead = 0x40;
constexpr int dataHead = 0x00;

std::uint8_t numberOf(const FitValue& value)
{
    return value.field.number;
}

} // namespace

std::uint16_t fitChecksum(QByteArrayView bytes)
{
    unsigned remainder = 0;
    for (const char byte : bytes)
        remainder = (remainder >> 8) ^ checksumTable[(remainder ^ static_cast<unsigned char>(byte)) & 0xFF];
    return static_cast<std::uint16_t>(remainder);
}

FitEncoder::FitEncoder() : _bytes(headerSize, '\0') {}

void FitEncoder::define(std::uint16_t message, const FitValues& values)
{
    _message = message;
    _fields.clear();
    append(_bytes, definitionHead, 1);
    append(_bytes, 0, 1); // reserved
    append(_bytes, 0, 1); // numbers are little-endian
    append(_bytes, message, 2);
    append(_bytes, static_cast<std::int64_t>(values.size()), 1);
    for (const auto& [field, value] : values) {
        append(_bytes, field.number, 1);
        append(_bytes, field.type.size, 1);
        append(_bytes, field.type.code, 1);
        _fields.push_back(field.number);
    }
}

void FitEncoder::write(std::uint16_t message, const FitValues& values)
{
    if (message != _message || !std::ranges::equal(values, _fields, {}, numberOf))
        define(message, values);
    append(_bytes, dataHead, 1);
    for (const auto& [field, value] : values) {
        const auto stored = value ? field.stored(*value) : std::nullopt;
        append(_bytes, stored.value_or(field.type.invalid()), field.type.size);
    }
}

QByteArray FitEncoder::finish() &&
{
    _bytes.replace(0, headerSize, header(_bytes.size() - headerSize));
    append(_bytes, fitChecksum(_bytes), 2);
    return std::move(_bytes);
}

} // namespace ridelog
