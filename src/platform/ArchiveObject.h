#pragma once

#include "platform/ArchiveClass.h"
#include "platform/ArchiveNumber.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace ridelog {

struct ArchiveGraph;
class ArchiveObject;

/// nil; an integer of any type, also a real number that was stored as one; a real number; the bytes of a
/// text, a block or a C string; an object; a class.
using ArchiveValue =
    std::variant<std::monostate, qint64, double, QByteArray, ArchiveObject, const ArchiveClass*>;

/// A colour: red, green, blue, alpha from 0 to 1.
struct ArchivedColour {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;
    bool operator==(const ArchivedColour&) const = default;
};

/// An object of an archive as it stands there, of whatever class: it can be kept, looked into, and written
/// again, and then gives the same bytes. Immutable and cheap to copy. All objects kept from one archive share
/// one store, which lives as long as any of them, so two that refer to the same object still do.
///
/// Objects may refer to each other in rings: whoever follows references has to count on it.
class ArchiveObject {
public:
    /// nil.
    ArchiveObject() = default;
    ArchiveObject(std::shared_ptr<const ArchiveGraph> graph, std::uint32_t index)
        : _graph(std::move(graph)), _index(index)
    {
    }

    bool isNil() const { return _graph == nullptr; }
    /// None for nil and for an archive as a whole. It lives as long as the object's store.
    const ArchiveClass* objectClass() const;
    bool isKindOf(QByteArrayView className) const;
    /// The very same object, not only an equal one.
    bool isSameObject(const ArchiveObject& other) const
    {
        return _graph == other._graph && _index == other._index;
    }
    /// Same classes, types and values, references followed.
    bool operator==(const ArchiveObject& other) const { return areEqual({{*this, other}}); }
    /// The same of many pairs. What several of them refer to is compared once.
    static bool areEqual(std::vector<std::pair<ArchiveObject, ArchiveObject>> pairs);

    /// One for every group of values, in order.
    std::vector<QByteArray> typeStrings() const;
    /// All values in order, whatever group they stand in; the elements of arrays and structures one by one.
    std::vector<ArchiveValue> values() const;

    // What objects of well-known classes, and of those derived from them, stand for. None for nil, for other
    // classes and for a layout that is not the class's own.

    std::optional<QString> toText() const;
    std::optional<ArchiveNumber> toNumber() const;
    std::optional<QByteArray> toData() const;
    /// Of a list or a set.
    std::optional<std::vector<ArchiveObject>> toItems() const;
    using Entry = std::pair<ArchiveObject, ArchiveObject>;
    /// Of a dictionary, keys and values in the order of the archive.
    std::optional<std::vector<Entry>> toEntries() const;
    /// How many there are, without a look at them.
    std::optional<qsizetype> entryCount() const;
    /// The value of a dictionary's first entry with this key; nil if there is none.
    ArchiveObject valueForKey(QStringView key) const;
    /// A date. One without a zone, or with one that nobody knows, is in the local time zone.
    std::optional<QDateTime> toDate() const;
    /// The text of a URL, its base resolved.
    std::optional<QString> toUrl() const;
    /// Of the kinds whose colour space is known; components are clipped to their range.
    std::optional<ArchivedColour> toColour() const;

    // For the writer.
    const std::shared_ptr<const ArchiveGraph>& graph() const { return _graph; }
    std::uint32_t index() const { return _index; }

private:
    std::shared_ptr<const ArchiveGraph> _graph;
    std::uint32_t _index = 0;
};

/// Goes through what `ArchiveObject::values` would answer, one value after another: there may be millions.
class ArchiveValues {
public:
    explicit ArchiveValues(ArchiveObject object);

    bool atEnd() const { return _left == 0; }
    /// None at the end.
    std::optional<ArchiveValue> next();
    /// None for values of other kinds as well.
    std::optional<qint64> nextInteger();
    std::optional<QByteArray> nextBytes();
    /// nil for values of other kinds as well.
    ArchiveObject nextObject();

private:
    ArchiveObject _object;
    std::uint32_t _place = 0;
    std::uint32_t _left = 0;
};

} // namespace ridelog
