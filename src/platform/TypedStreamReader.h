#pragma once

#include "platform/ArchiveClass.h"
#include "platform/ArchiveGraph.h"
#include "platform/ArchiveNumber.h"
#include "platform/ArchiveObject.h"
#include "platform/ArchiveTypes.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QHash>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

namespace ridelog {

/// Why an archive was refused.
struct TypedStreamError {
    QString what;
    qsizetype offset = 0; ///< byte of the archive

    /// "157 bytes wanted, 120 left at byte 1,234".
    QString text() const;
};

/// Reads a typed stream, the platform's sequential archive. Values are pulled one after another, an object's
/// values between `openObject` and `closeObject`, whatever groups they were written in.
///
/// The first error stays: from then on every read answers an empty value, every list ends, and `failed` is
/// true. So class code reads top to bottom and asks once. An object may be a reference to an earlier one,
/// which is then read again from where it stands; class code does not notice. The total of what is read again
/// is bounded by the archive's size, and so is the memory that is taken (see `charge`), whatever the bytes
/// are.
class TypedStreamReader {
    Q_DECLARE_TR_FUNCTIONS(TypedStreamReader)

public:
    /// Reads `bytes`, which have to outlive the reader. Objects that `readObject` keeps outlive both.
    explicit TypedStreamReader(QByteArrayView bytes);
    explicit TypedStreamReader(QByteArray&&) = delete;

    /// Whether these are the first bytes (at least 13) of a typed stream, of either byte order.
    static bool isTypedStream(QByteArrayView firstBytes);
    /// Larger archives are refused.
    static constexpr qsizetype largestArchive = qsizetype{1} << 30;

    bool failed() const { return _error.has_value(); }
    const std::optional<TypedStreamError>& error() const { return _error; }
    /// Refuses the archive at the current position, for a reason of the class code's own.
    void fail(const QString& what);
    bool isBigEndian() const { return _bigEndian; }

    /// No further value in the open object, or in the archive if none is open; true after an error.
    bool atEnd() { return next().kind == Kind::none; }
    /// The type letter of the next value: '[' for an array, '{' for a structure, 0 at the end.
    char nextType() { return next().code; }
    /// The class of the object that comes next; none if that is nil or no object.
    const ArchiveClass* nextClass();

    // Values. A value of another kind than asked for is an error.

    /// An integer of any type, or a byte as a signed number. Unsigned 64-bit numbers come as their bits.
    qint64 readInteger();
    /// A number of any type.
    double readReal();
    /// An array of plain bytes, or the bytes of a text; null for nil.
    QByteArrayView readBytes();
    /// Null for nil.
    QByteArrayView readCString();
    /// Leaves one value of any kind out.
    void skip();

    /// Opens the object that comes next and answers its class. None, with nothing opened, for nil and on
    /// error; an object that contains itself is an error.
    const ArchiveClass* openObject();
    /// Closes the object opened last; values not read are left out.
    void closeObject();

    /// Keeps the object that comes next, of whatever class, with all it refers to. nil for nil and on error.
    ArchiveObject readObject();
    /// Keeps everything up to the archive's end, as one object without a class.
    ArchiveObject readArchive();

    // Memory. A few bytes may stand for much, and no archive takes more than a few times its size: each piece
    // is counted when it is taken, and the one that goes too far refuses the archive.

    /// Counts what class code makes of what it reads; texts and records were counted when they were read.
    void charge(qint64 bytes)
    {
        _mayTake -= bytes;
        if (_mayTake < 0)
            failForMemory();
    }
    /// What a block of its own on the heap takes beside its bytes.
    static constexpr qint64 costOfBlock = 32;
    /// How many times its elements a list takes while it grows, or a table while it is sparse.
    static constexpr qint64 costOfGrowth = 2;

    // Objects of well-known classes, and of those derived from them. Anything else, nil included, is left out
    // and answered with none; a layout that is not the class's own is an error.

    std::optional<QString> readString();
    std::optional<ArchiveNumber> readNumber();
    /// The view is into the archive's bytes.
    std::optional<QByteArrayView> readData();
    /// Calls `visit(index)` for every element. What it does not read is left out.
    template <typename Visit>
    bool readArray(Visit&& visit);
    /// Calls `visit(key)` for every entry, with the entry's value next to be read; what it does not read is
    /// left out. Entries whose key is no text are left out as well.
    template <typename Visit>
    bool readDictionary(Visit&& visit);
    /// A list of data blocks, each of them the bytes of one record.
    template <typename Record>
    requires std::is_trivially_copyable_v<Record> std::optional<std::vector<Record>> readRecords();

private:
    using Kind = ArchiveTypes::Kind;
    using Item = ArchiveTypes::Item;

    /// A place in the archive, and how many entries the two tables have there.
    struct Cursor {
        std::uint32_t position = 0;
        std::uint32_t objects = 0;
        std::uint32_t strings = 0;
        std::int32_t types = -1; ///< of the group that is being read, in _types; -1 between two groups
        std::uint32_t item = 0;  ///< the next value in it
    };

    struct SharedString {
        std::uint32_t offset;
        std::uint32_t length;
        std::int32_t types = -1; ///< index in _types, once it was used as a type string
        std::int32_t kept = -1;  ///< index in the graph's strings, once it was kept
    };

    enum class Entry : std::uint32_t { object, keptObject, classEntry, cString };
    /// Four bytes, for there are millions of objects.
    class TableEntry {
    public:
        TableEntry(std::uint32_t place, Entry entry) : _bits(place << 2 | static_cast<std::uint32_t>(entry))
        {
        }
        Entry entry() const { return static_cast<Entry>(_bits & 3); }
        /// For an object, where its class stands; for one that was kept, its index in the graph, as for a
        /// class; for a C string, that of its text. Archives are not large enough for more than 30 bits.
        std::uint32_t place() const { return _bits >> 2; }
        /// A class whose superclasses are still being read has no place.
        static constexpr std::uint32_t unfinished = 0x3FFFFFFF;
        bool isFinishedClass() const { return entry() == Entry::classEntry && place() != unfinished; }

    private:
        std::uint32_t _bits;
    };

    enum class Head { nil, isNew, reference };
    /// What stands where an object is due. Of a new object the class is still to be read.
    struct FoundObject {
        Head head = Head::nil;
        std::uint32_t number = 0;
    };

    struct OpenObject {
        Cursor parent; ///< where to go on: for a reference, behind it
        std::uint32_t number = 0;
        std::uint32_t start = 0; ///< byte
        bool isReference = false;
    };

    // Bytes and integers
    void failAt(qsizetype offset, const QString& what);
    void failForMemory();
    bool need(quint64 bytes);
    bool isNextByte(std::uint8_t byte) const;
    std::uint8_t takeByte();
    template <typename Number>
    Number takePlain();
    qint64 takeInteger();
    qint64 takeInteger(std::uint8_t tag);
    qint64 takeIntegerOfType(char code);
    ArchiveGraph::Value takeReal(char code);
    QByteArrayView takeText();
    QByteArrayView takeBytes(qint64 count);
    Head takeHead(std::uint32_t tableSize, std::uint32_t& number);

    // The two tables
    std::uint32_t addEntry(TableEntry entry);
    bool isObject(std::uint32_t number) const;
    std::uint32_t startOf(std::uint32_t object) const;
    std::optional<std::uint32_t> takeSharedString();
    std::optional<std::uint32_t> takeCString();
    std::optional<std::uint32_t> takeClass();
    std::uint32_t addClass(std::uint32_t name, int version, const ArchiveClass* superclass);
    QByteArrayView stringAt(std::uint32_t index) const;

    // Groups and objects
    void readHeader();
    std::int32_t takeGroup(std::optional<std::uint32_t>& typeString);
    Item next();
    void consume(const Item& item);
    FoundObject takeObject();
    std::optional<std::uint32_t> takeObjectClass();
    void goTo(FoundObject found);
    const ArchiveClass* goToBody(FoundObject found);
    const ArchiveClass* open(FoundObject found, Cursor value);
    bool openKindOf(QByteArrayView className);
    bool mayNest(std::size_t depth);
    void skipItem(std::int32_t types, std::uint32_t item, std::size_t depth);
    void skipObject(std::size_t depth);
    void skipBody(std::size_t depth);
    void readAgain(qint64 bytes);

    // Well-known classes
    std::optional<qsizetype> openCounted(QByteArrayView className);
    bool hasElement(qsizetype index, qsizetype count);
    void readBlocks(char* out, qsizetype blockSize, qsizetype count);
    qsizetype copyBlocksLike(const Cursor& first, char* out, qsizetype blockSize, qsizetype count);
    qsizetype bytesLeft() const { return _bytes.size() - _at.position; }

    // Keeping
    std::uint32_t keptIndex(FoundObject found);
    void keep(std::uint32_t index, FoundObject found, std::size_t depth);
    void keepBody(std::uint32_t index, FoundObject found, std::size_t depth);
    std::uint32_t keepGroups(std::size_t depth);
    std::uint32_t keepItem(std::int32_t types, std::uint32_t item, std::size_t depth);
    void keepObject(std::size_t depth);
    ArchiveGraph::Value takeValue(const Item& item);
    void keepValue(const ArchiveGraph::Value& value);
    void keepReferenced();
    std::uint32_t keptString(std::uint32_t string);

    QByteArrayView _bytes;
    std::optional<TypedStreamError> _error;
    bool _bigEndian = false;
    Cursor _at;
    std::vector<OpenObject> _open;
    std::deque<SharedString> _strings;
    std::vector<TableEntry> _objects;
    std::vector<ArchiveTypes> _types;
    qint64 _mayReadAgain = 0;             ///< bytes, for references
    qint64 _mayTake = 0;                  ///< bytes of memory
    QHash<std::uint32_t, QString> _texts; ///< of string objects that were referred to, by number

    std::shared_ptr<ArchiveGraph> _graph;
    std::deque<std::uint32_t> _keptStarts; ///< by index in the graph: where the object's class stands
    std::vector<std::uint32_t> _toKeep;    ///< numbers of objects that kept ones refer to
};

template <typename Visit>
bool TypedStreamReader::readArray(Visit&& visit)
{
    const auto count = openCounted("NSArray");
    if (!count)
        return false;
    for (qsizetype index = 0; index < *count && hasElement(index, *count); ++index) {
        const auto element = _at.position;
        visit(index);
        if (_at.position == element)
            skip();
    }
    closeObject();
    return !failed();
}

template <typename Visit>
bool TypedStreamReader::readDictionary(Visit&& visit)
{
    const auto count = openCounted("NSDictionary");
    if (!count)
        return false;
    for (qsizetype index = 0; index < *count && hasElement(index, *count); ++index) {
        const auto key = readString();
        if (!hasElement(index, *count))
            break;
        const auto value = _at.position;
        if (key)
            visit(*key);
        if (_at.position == value)
            skip();
    }
    closeObject();
    return !failed();
}

template <typename Record>
requires std::is_trivially_copyable_v<Record> std::optional<std::vector<Record>>
TypedStreamReader::readRecords()
{
    constexpr qsizetype size = sizeof(Record);
    const auto count = openCounted("NSArray");
    if (!count)
        return std::nullopt;
    // Blocks may be references, which are shorter than a record: no memory is taken on the count's word
    // alone.
    std::vector<Record> records;
    records.reserve(static_cast<std::size_t>(std::min(*count, bytesLeft() / size)));
    for (qsizetype left = *count; left > 0 && !failed();) {
        const auto step = std::min<qsizetype>(left, 4096);
        const auto before = records.size();
        charge(step * size);
        records.resize(before + static_cast<std::size_t>(step));
        readBlocks(reinterpret_cast<char*>(records.data() + before), size, step);
        left -= step;
    }
    closeObject();
    return failed() ? std::nullopt : std::optional(std::move(records));
}

} // namespace ridelog
