#pragma once

#include "platform/ArchiveClass.h"
#include "platform/ArchiveNumber.h"
#include "platform/ArchiveObject.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QHash>
#include <QString>

#include <bit>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace ridelog {

/// Classes that the writer knows, with the versions and superclasses that the platform gives them.
namespace ArchiveClasses {
extern const ArchiveClass object;
extern const ArchiveClass string;
extern const ArchiveClass value;
extern const ArchiveClass number;
extern const ArchiveClass data;
extern const ArchiveClass array;
extern const ArchiveClass mutableArray;
extern const ArchiveClass dictionary;
extern const ArchiveClass mutableDictionary;
extern const ArchiveClass date;
extern const ArchiveClass calendarDate;
extern const ArchiveClass timeZone;
extern const ArchiveClass attributedString;
extern const ArchiveClass colour;
extern const ArchiveClass url;
} // namespace ArchiveClasses

/// Writes a typed stream into one growing buffer, in the shortest form, as the platform's own archiver does:
/// classes, type strings and C strings once, later by reference. An object is written once for every call
/// unless the call says otherwise.
///
/// A group is `group` and one put… for every type in its type string; `putObject` with its groups and
/// `endObject` is one value. The write… functions are a group of one object each. Counts come before what is
/// counted. Class descriptions handed over have to outlive the writer.
class TypedStreamWriter {
public:
    explicit TypedStreamWriter(std::endian byteOrder = std::endian::little);

    /// Takes memory for an archive of about so many bytes.
    void reserve(qsizetype bytes) { _bytes.reserve(bytes); }
    const QByteArray& bytes() const& { return _bytes; }
    QByteArray bytes() && { return std::move(_bytes); }
    /// Begins anew behind `bytes()`, which the caller has passed on: so an archive that is on its way to a
    /// file never stands in memory as a whole. Only between objects of a list or dictionary, or their groups.
    void forgetBytes() { _bytes.resize(0); }

    // Groups and values

    void group(QByteArrayView typeString) { putShared(typeString); }
    void putByte(char byte) { _bytes += byte; }
    void putInteger(qint64 number);
    /// Numbers that are whole, and stay the same in single precision, are written as integers.
    void putFloat(float number);
    void putDouble(double number);
    void putCString(QByteArrayView text);
    /// Counted bytes, the contents of a string object.
    void putText(QByteArrayView bytes);
    /// The contents of an array of chars.
    void putBytes(QByteArrayView bytes) { _bytes += bytes; }
    void putNil();
    /// Begins an object, whose groups follow, and answers the number that `putReference` takes.
    std::uint32_t putObject(const ArchiveClass& objectClass);
    void endObject();
    void putReference(std::uint32_t object);
    /// An object that was kept, with all it refers to; the second time, a reference. What would be nested
    /// deeper than 200 objects, which no reader has to follow, becomes nil.
    void putObject(const ArchiveObject& object);

    // A group of one object each

    void writeNil();
    void writeReference(std::uint32_t object);
    std::uint32_t writeString(QStringView text);
    /// A text that many objects share, such as a key: written once, then referred to.
    void writeConstant(const QString& text);
    void writeNumber(const ArchiveNumber& number);
    void writeData(QByteArrayView bytes);
    /// A calendar date with its zone. Dates of one zone share it.
    void writeDate(const QDateTime& date);
    /// `count` groups of an object follow, then `endObject`.
    void beginArray(qsizetype count, const ArchiveClass& listClass = ArchiveClasses::mutableArray);
    /// `count` times a key and a value follow, then `endObject`.
    void beginDictionary(qsizetype count,
                         const ArchiveClass& dictionaryClass = ArchiveClasses::mutableDictionary);
    std::uint32_t beginObject(const ArchiveClass& objectClass);
    void writeObject(const ArchiveObject& object);
    /// The groups of an archive that was kept as a whole (TypedStreamReader::readArchive).
    void writeArchive(const ArchiveObject& archive);
    /// A list of data blocks, each of them the bytes of one record.
    template <typename Record>
    requires std::is_trivially_copyable_v<Record>
    void writeRecords(std::span<const Record> records)
    {
        writeBlocks(reinterpret_cast<const char*>(records.data()), sizeof(Record),
                    static_cast<qsizetype>(records.size()));
    }

private:
    using GraphPointer = std::shared_ptr<const ArchiveGraph>;
    /// Name, version, and the superclass's index in _classNumbers or -1.
    using ClassKey = std::tuple<QByteArray, int, int>;

    template <typename Number>
    void putPlain(Number number);
    void putShared(QByteArrayView text);
    void putTableReference(std::uint32_t index);
    void putClass(const ArchiveClass* objectClass);
    int indexOf(const ArchiveClass* objectClass);
    void putReal(std::uint32_t bits);
    void putReal(quint64 bits);
    void putKept(const GraphPointer& graph, std::uint32_t index);
    void putKeptGroups(const GraphPointer& graph, std::uint32_t index);
    void writeBlocks(const char* blocks, qsizetype blockSize, qsizetype count);

    QByteArray _bytes;
    bool _bigEndian;
    std::size_t _openObjects = 0;
    std::uint32_t _objectCount = 0; ///< objects, classes and C strings in one numbering
    QHash<QByteArray, std::uint32_t> _strings;
    QHash<QByteArray, std::uint32_t> _cStrings;
    QHash<const ArchiveClass*, int> _classes; ///< index in _classNumbers
    std::map<ClassKey, int> _classesByKey;
    std::vector<std::optional<std::uint32_t>> _classNumbers; ///< none until written
    QHash<QString, std::uint32_t> _constants;
    QHash<QString, std::uint32_t> _zones;
    /// Numbers of kept objects, by their index in their graph. A graph is held, so that no other can be taken
    /// for it.
    std::map<GraphPointer, QHash<std::uint32_t, std::uint32_t>> _kept;
};

} // namespace ridelog
