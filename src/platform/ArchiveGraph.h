#pragma once

#include "platform/ArchiveClass.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <bit>
#include <cstdint>
#include <deque>
#include <vector>

namespace ridelog {

/// Where a reader puts the objects that it keeps structurally, and the classes of its archive. Objects lie in
/// one flat array and name each other by index, so that chains and rings of any length are freed, and
/// compared, without recursion. An object takes a few times its bytes in the stream. See ArchiveObject.
struct ArchiveGraph {
    enum class Tag : std::uint8_t {
        nil,
        byte,     ///< one plain byte
        integer,  ///< a tagged integer, also where a real number is due
        float32,  ///< the value is its bits
        float64,  ///< the value is its bits
        object,   ///< the value is its index in `objects`
        classRef, ///< the value is its index in `classes`
        cString,  ///< the value is the index of its text in `strings`
        text,     ///< counted bytes; the value tells where they are, see `bytes`
        atom,     ///< a shared string; the value is its index in `strings`
        block,    ///< plain bytes, as for text
    };
    struct Value {
        Tag tag = Tag::nil;
        qint64 value = 0;
        bool operator==(const Value&) const = default;
    };
    struct Group {
        std::uint32_t types; ///< index in `strings`
        std::uint32_t valueCount;
    };
    struct Object {
        const ArchiveClass* objectClass = nullptr; ///< none for an archive as a whole
        std::uint32_t firstGroup = 0;              ///< its groups and values lie in a row
        std::uint32_t firstValue = 0;
        std::uint32_t groupCount = 0;
    };

    /// Adds bytes and answers the value that tells where they are: offset and length, 32 bits each.
    qint64 addBytes(QByteArrayView bytes)
    {
        const auto offset = contents.size();
        contents += bytes;
        return (offset << 32) + bytes.size();
    }
    QByteArrayView bytes(Value value) const
    {
        return QByteArrayView(contents).sliced(value.value >> 32, value.value & 0xFFFFFFFF);
    }
    /// Of a number, whatever its form.
    static double realOf(Value value)
    {
        if (value.tag == Tag::float32)
            return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(value.value)));
        return value.tag == Tag::float64 ? std::bit_cast<double>(value.value)
                                         : static_cast<double>(value.value);
    }
    const QByteArray& string(qint64 index) const { return strings[static_cast<std::size_t>(index)]; }

    std::deque<ArchiveClass> classes; ///< a deque: classes stay where they are
    std::vector<QByteArray> strings;
    std::vector<Object> objects;
    std::vector<Group> groups;
    std::vector<Value> values;
    QByteArray contents;
    mutable QHash<std::uint32_t, QString> longTexts; ///< decoded once and shared, by index in `objects`
};

} // namespace ridelog
