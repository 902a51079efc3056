#pragma once

#include "platform/ArchiveClass.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>

#include <bit>
#include <cstdint>
#include <deque>
#include <optional>

namespace ridelog {

/// Where a reader puts the objects that it keeps structurally, and the classes of its archive. Objects name
/// each other by index, so that chains and rings of any length are freed, and compared, without recursion.
/// What is in them lies in one row of bytes, hardly longer than in the stream. See ArchiveObject.
struct ArchiveGraph {
    enum class Tag : std::uint8_t {
        group, ///< no value: a group of this type string begins; the index in `strings`
        nil,
        byte,     ///< one plain byte
        integer,  ///< a tagged integer, also where a real number is due
        float32,  ///< the value is its bits
        float64,  ///< the value is its bits
        inner,    ///< an object that stands here, its index in `objects`
        object,   ///< one that stands elsewhere, its index in `objects`
        classRef, ///< the value is its index in `classes`
        cString,  ///< the value is the index of its text in `strings`
        text,     ///< counted bytes
        atom,     ///< a shared string; the value is its index in `strings`
        block,    ///< plain bytes
    };
    struct Value {
        Tag tag = Tag::nil;
        qint64 value = 0;
        QByteArrayView bytes = {}; ///< of texts and blocks
    };
    /// Where in `bodies` its class, groups and values are, those of objects inside among them.
    struct Object {
        std::uint32_t begin = 0;
        std::uint32_t end = 0; ///< 0 until all of it is kept
        std::uint32_t valueCount = 0;
    };

    // Keeping

    std::uint32_t addObject();
    /// What is added from here to `end` is the object's, but for what is between those of an object inside.
    /// Answers how many bytes it took, as `add` does.
    qsizetype begin(std::uint32_t object, std::optional<std::uint32_t> classIndex);
    qsizetype add(const Value& value);
    void end(std::uint32_t object, std::uint32_t valueCount);
    bool isKept(std::uint32_t object) const { return objects[object].end > 0; }

    // Looking

    /// None for an archive as a whole.
    const ArchiveClass* classOf(std::uint32_t object) const;
    /// The place of an object's first group; from there `next` takes one item after another, up to the end.
    std::uint32_t first(std::uint32_t object) const;
    Value next(std::uint32_t& place) const;
    const QByteArray& string(qint64 index) const { return strings[static_cast<std::size_t>(index)]; }
    /// Of a number, whatever its form.
    static double realOf(const Value& value)
    {
        if (value.tag == Tag::float32)
            return static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(value.value)));
        return value.tag == Tag::float64 ? std::bit_cast<double>(value.value)
                                         : static_cast<double>(value.value);
    }

    std::deque<ArchiveClass> classes; ///< a deque: classes stay where they are
    std::deque<QByteArray> strings;
    std::deque<Object> objects;
    QByteArray bodies;

    // Any number of objects may refer to a long one, which is looked through once. By index in `objects`.

    mutable QHash<std::uint32_t, QString> longTexts; ///< decoded
    mutable QSet<std::uint32_t> soundStyledTexts;    ///< whose runs are in order
};

} // namespace ridelog
