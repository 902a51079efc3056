#pragma once

#include <QByteArrayView>

#include <cstdint>

/// The bytes that a typed stream gives a meaning of their own. They stand where an integer could stand.
namespace ridelog::TypedStream {

enum Mark : std::uint8_t {
    int16Follows = 0x81,
    int32Follows = 0x82,
    realFollows = 0x83,
    isNew = 0x84,
    isNil = 0x85,
    endOfObject = 0x86,
    int64Follows = 0x87,
    firstOneByteNegative = 0x92,
};

/// An integer in one byte is at least this, and so is a reference: that to the first entry of a table.
inline constexpr int leastOneByteInteger = -110;
inline constexpr int firstReference = leastOneByteInteger;

inline constexpr std::uint8_t streamerVersion = 4;
inline constexpr int systemVersion = 1000;
inline constexpr QByteArrayView littleEndianSignature = "streamtyped";
inline constexpr QByteArrayView bigEndianSignature = "typedstream";

} // namespace ridelog::TypedStream
