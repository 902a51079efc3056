#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

namespace ridelog {

/// What a type string announces, in the order of the values in the stream.
///
/// Whatever takes no bytes in the stream is bounded: it is left out, refused inside brackets, or, for arrays
/// of no elements, allowed a few times. So there are never many more values than bytes.
class ArchiveTypes {
public:
    enum class Kind : std::uint8_t {
        none,      ///< no further value
        byte,      ///< a char or a bool
        integer,   ///< any other integer
        real,      ///< float or double
        object,    ///< or nil
        classRef,  ///< a class, or nil
        cString,   ///< an entry of the object table, or nil
        text,      ///< the counted bytes of a string object, or nil
        atom,      ///< a shared string, or nil: unique C string, selector
        block,     ///< array of chars: `count` plain bytes
        array,     ///< `count` times the items that follow, up to `span`
        structure, ///< the items that follow, up to `span`
    };

    struct Item {
        Kind kind = Kind::none;
        char code = 0;           ///< the letter in the type string
        std::uint32_t count = 0; ///< of arrays
        std::uint32_t span = 1;  ///< items from this one to the next on the same level
    };

    /// Answers none for what is not a type string, or one of values that cannot be archived.
    static std::optional<ArchiveTypes> parse(QByteArrayView text);

    std::uint32_t size() const { return static_cast<std::uint32_t>(_items.size()); }
    /// Bytes that it takes on the heap.
    qsizetype memory() const { return qsizetype{sizeof(Item)} * static_cast<qsizetype>(_items.capacity()); }
    const Item& operator[](std::uint32_t item) const { return _items[item]; }

private:
    std::vector<Item> _items;
};

} // namespace ridelog
