#include "platform/TypedStreamWriter.h"

#include "platform/ArchiveGraph.h"
#include "platform/TypedStreamMarks.h"

#include <QTimeZone>
#include <QtEndian>

#include <cmath>
#include <cstring>
#include <limits>

namespace ridelog {

namespace ArchiveClasses {
const ArchiveClass object{"NSObject", 0, nullptr};
const ArchiveClass string{"NSString", 1, &object};
const ArchiveClass value{"NSValue", 0, &object};
const ArchiveClass number{"NSNumber", 0, &value};
const ArchiveClass data{"NSData", 0, &object};
const ArchiveClass array{"NSArray", 0, &object};
const ArchiveClass mutableArray{"NSMutableArray", 0, &array};
const ArchiveClass dictionary{"NSDictionary", 0, &object};
const ArchiveClass mutableDictionary{"NSMutableDictionary", 0, &dictionary};
const ArchiveClass date{"NSDate", 0, &object};
const ArchiveClass calendarDate{"NSCalendarDate", 0, &date};
const ArchiveClass timeZone{"NSTimeZone", 0, &object};
const ArchiveClass attributedString{"NSAttributedString", 0, &object};
const ArchiveClass colour{"NSColor", 0, &object};
const ArchiveClass url{"NSURL", 0, &object};
} // namespace ArchiveClasses

namespace {

using namespace TypedStream;
using Tag = ArchiveGraph::Tag;

constexpr std::size_t deepestNesting = 200;

/// The integer that stands for the number in the stream, if there is one.
std::optional<std::int32_t> asInteger(float number)
{
    constexpr float limit = 2147483648.0F;
    const bool fits = number >= -limit && number < limit && std::trunc(number) == number;
    const bool isNegativeZero = number == 0 && std::signbit(number);
    return fits && !isNegativeZero ? std::optional(static_cast<std::int32_t>(number)) : std::nullopt;
}

/// The name that other systems know the zone by: that of the zone database, or an offset from GMT.
QString nameOf(const QDateTime& date)
{
    const auto id = date.timeZone().id();
    if (!id.startsWith("UTC") && QTimeZone::isTimeZoneIdAvailable(id))
        return QString::fromLatin1(id);
    const int minutes = date.offsetFromUtc() / 60;
    if (minutes == 0)
        return QStringLiteral("GMT");
    return QString::asprintf("GMT%c%02d%02d", minutes < 0 ? '-' : '+', qAbs(minutes) / 60,
                             qAbs(minutes) % 60);
}

} // namespace

TypedStreamWriter::TypedStreamWriter(std::endian byteOrder) : _bigEndian(byteOrder == std::endian::big)
{
    const auto signature = _bigEndian ? bigEndianSignature : littleEndianSignature;
    putByte(static_cast<char>(streamerVersion));
    putByte(static_cast<char>(signature.size()));
    putBytes(signature);
    putInteger(systemVersion);
}

template <typename Number>
void TypedStreamWriter::putPlain(Number number)
{
    const auto ordered = _bigEndian ? qToBigEndian(number) : qToLittleEndian(number);
    _bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

void TypedStreamWriter::putInteger(qint64 number)
{
    const auto fits = [number](auto type) {
        using Limits = std::numeric_limits<decltype(type)>;
        return number >= Limits::min() && number <= Limits::max();
    };
    if (number >= leastOneByteInteger && number <= std::numeric_limits<std::int8_t>::max()) {
        putByte(static_cast<char>(number));
    } else if (fits(std::int16_t{})) {
        putByte(static_cast<char>(int16Follows));
        putPlain(static_cast<std::int16_t>(number));
    } else if (fits(std::int32_t{})) {
        putByte(static_cast<char>(int32Follows));
        putPlain(static_cast<std::int32_t>(number));
    } else {
        putByte(static_cast<char>(int64Follows));
        putPlain(number);
    }
}

void TypedStreamWriter::putFloat(float number)
{
    if (const auto whole = asInteger(number))
        putInteger(*whole);
    else
        putReal(std::bit_cast<std::uint32_t>(number));
}

void TypedStreamWriter::putDouble(double number)
{
    const bool isSingle = static_cast<double>(static_cast<float>(number)) == number;
    const auto whole = isSingle ? asInteger(static_cast<float>(number)) : std::nullopt;
    if (whole)
        putInteger(*whole);
    else
        putReal(std::bit_cast<quint64>(number));
}

void TypedStreamWriter::putReal(std::uint32_t bits)
{
    putByte(static_cast<char>(realFollows));
    putPlain(bits);
}

void TypedStreamWriter::putReal(quint64 bits)
{
    putByte(static_cast<char>(realFollows));
    putPlain(bits);
}

void TypedStreamWriter::putTableReference(std::uint32_t index)
{
    putInteger(qint64{index} + firstReference);
}

void TypedStreamWriter::putShared(QByteArrayView text)
{
    const auto known = _strings.constFind(QByteArray::fromRawData(text.data(), text.size()));
    if (known != _strings.constEnd())
        return putTableReference(*known);
    _strings.insert(text.toByteArray(), static_cast<std::uint32_t>(_strings.size()));
    putByte(static_cast<char>(isNew));
    putText(text);
}

void TypedStreamWriter::putCString(QByteArrayView text)
{
    const auto known = _cStrings.constFind(QByteArray::fromRawData(text.data(), text.size()));
    if (known != _cStrings.constEnd())
        return putTableReference(*known);
    _cStrings.insert(text.toByteArray(), _objectCount++);
    putByte(static_cast<char>(isNew));
    putShared(text);
}

void TypedStreamWriter::putText(QByteArrayView bytes)
{
    putInteger(bytes.size());
    putBytes(bytes);
}

void TypedStreamWriter::putNil()
{
    putByte(static_cast<char>(isNil));
}

/// Classes of the same names and versions all the way up are one class, whoever describes them.
int TypedStreamWriter::indexOf(const ArchiveClass* objectClass)
{
    if (!objectClass)
        return -1;
    if (const auto known = _classes.constFind(objectClass); known != _classes.constEnd())
        return *known;
    const ClassKey key(objectClass->name, objectClass->version, indexOf(objectClass->superclass));
    const auto [entry, isNewClass] = _classesByKey.try_emplace(key, static_cast<int>(_classNumbers.size()));
    if (isNewClass)
        _classNumbers.emplace_back();
    _classes.insert(objectClass, entry->second);
    return entry->second;
}

void TypedStreamWriter::putClass(const ArchiveClass* objectClass)
{
    for (; objectClass; objectClass = objectClass->superclass) {
        auto& number = _classNumbers[static_cast<std::size_t>(indexOf(objectClass))];
        if (number)
            return putTableReference(*number);
        number = _objectCount++;
        putByte(static_cast<char>(isNew));
        putShared(objectClass->name);
        putInteger(objectClass->version);
    }
    putNil();
}

std::uint32_t TypedStreamWriter::putObject(const ArchiveClass& objectClass)
{
    putByte(static_cast<char>(isNew));
    const auto number = _objectCount++;
    ++_openObjects;
    putClass(&objectClass);
    return number;
}

void TypedStreamWriter::endObject()
{
    putByte(static_cast<char>(TypedStream::endOfObject));
    --_openObjects;
}

void TypedStreamWriter::putReference(std::uint32_t object)
{
    putTableReference(object);
}

// Kept objects

void TypedStreamWriter::putObject(const ArchiveObject& object)
{
    if (object.isNil())
        putNil();
    else
        putKept(object.graph(), object.index());
}

void TypedStreamWriter::putKept(const GraphPointer& graph, std::uint32_t index)
{
    auto& numbers = _kept[graph];
    if (const auto known = numbers.constFind(index); known != numbers.constEnd())
        return putReference(*known);
    if (_openObjects >= deepestNesting)
        return putNil();
    numbers.insert(index, _objectCount);
    putObject(*graph->classOf(index));
    putKeptGroups(graph, index);
    endObject();
}

void TypedStreamWriter::putKeptGroups(const GraphPointer& graph, std::uint32_t index)
{
    const auto end = graph->objects[index].end;
    for (auto place = graph->first(index); place < end;) {
        const auto item = graph->next(place);
        switch (item.tag) {
        case Tag::group:
            group(graph->string(item.value));
            break;
        case Tag::nil:
            putNil();
            break;
        case Tag::byte:
            putByte(static_cast<char>(item.value));
            break;
        case Tag::integer:
            putInteger(item.value);
            break;
        case Tag::float32:
            putReal(static_cast<std::uint32_t>(item.value));
            break;
        case Tag::float64:
            putReal(static_cast<quint64>(item.value));
            break;
        case Tag::inner:
        case Tag::object:
            putKept(graph, static_cast<std::uint32_t>(item.value));
            break;
        case Tag::classRef:
            putClass(&graph->classes[static_cast<std::size_t>(item.value)]);
            break;
        case Tag::cString:
            putCString(graph->string(item.value));
            break;
        case Tag::atom:
            putShared(graph->string(item.value));
            break;
        case Tag::text:
            putText(item.bytes);
            break;
        case Tag::block:
            putBytes(item.bytes);
            break;
        }
    }
}

void TypedStreamWriter::writeArchive(const ArchiveObject& archive)
{
    if (!archive.isNil())
        putKeptGroups(archive.graph(), archive.index());
}

// A group of one object each

void TypedStreamWriter::writeNil()
{
    group("@");
    putNil();
}

void TypedStreamWriter::writeReference(std::uint32_t object)
{
    group("@");
    putReference(object);
}

std::uint32_t TypedStreamWriter::beginObject(const ArchiveClass& objectClass)
{
    group("@");
    return putObject(objectClass);
}

void TypedStreamWriter::writeObject(const ArchiveObject& object)
{
    group("@");
    putObject(object);
}

std::uint32_t TypedStreamWriter::writeString(QStringView text)
{
    const auto number = beginObject(ArchiveClasses::string);
    group("+");
    putText(text.toUtf8());
    endObject();
    return number;
}

void TypedStreamWriter::writeConstant(const QString& text)
{
    if (const auto known = _constants.constFind(text); known != _constants.constEnd())
        writeReference(*known);
    else
        _constants.insert(text, writeString(text));
}

void TypedStreamWriter::writeNumber(const ArchiveNumber& number)
{
    const char type = number.type();
    beginObject(ArchiveClasses::number);
    group("*");
    putCString({&type, 1});
    group({&type, 1});
    if (type == 'f')
        putFloat(static_cast<float>(number.toDouble()));
    else if (type == 'd')
        putDouble(number.toDouble());
    else if (type == 'c' || type == 'C' || type == 'B')
        putByte(static_cast<char>(*number.toInteger()));
    else
        putInteger(*number.toInteger());
    endObject();
}

void TypedStreamWriter::writeData(QByteArrayView bytes)
{
    beginObject(ArchiveClasses::data);
    group("i");
    putInteger(bytes.size());
    group('[' + QByteArray::number(bytes.size()) + "c]");
    putBytes(bytes);
    endObject();
}

void TypedStreamWriter::writeDate(const QDateTime& date)
{
    static const auto reference = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    beginObject(ArchiveClasses::calendarDate);
    group("d");
    putDouble(static_cast<double>(date.toMSecsSinceEpoch() - reference) / 1000.0);
    const auto zone = nameOf(date);
    if (const auto known = _zones.constFind(zone); known != _zones.constEnd()) {
        writeReference(*known);
    } else {
        _zones.insert(zone, beginObject(ArchiveClasses::timeZone));
        writeString(zone);
        endObject();
    }
    writeConstant(QStringLiteral("%Y-%m-%d %H:%M:%S %z"));
    endObject();
}

void TypedStreamWriter::beginArray(qsizetype count, const ArchiveClass& listClass)
{
    beginObject(listClass);
    group("i");
    putInteger(count);
}

void TypedStreamWriter::beginDictionary(qsizetype count, const ArchiveClass& dictionaryClass)
{
    beginArray(count, dictionaryClass);
}

/// The blocks of a list differ in nothing but their contents once their class and types are in the tables:
/// the bytes around the contents are then copied from one block to the next.
void TypedStreamWriter::writeBlocks(const char* blocks, qsizetype blockSize, qsizetype count)
{
    beginArray(count);
    for (qsizetype done = 0; done < count; ++done) {
        const auto start = _bytes.size();
        const auto objects = _objectCount;
        const auto strings = _strings.size();
        writeData({blocks + done * blockSize, blockSize});
        if (_objectCount != objects + 1 || _strings.size() != strings)
            continue;
        const auto length = _bytes.size() - start;
        const auto before = length - blockSize - 1;
        const auto alike = count - done - 1;
        _bytes.resize(_bytes.size() + alike * length);
        const auto* pattern = _bytes.constData() + start;
        auto* block = _bytes.data() + start;
        for (qsizetype copy = 1; copy <= alike; ++copy) {
            block += length;
            std::memcpy(block, pattern, static_cast<std::size_t>(before));
            std::memcpy(block + before, blocks + (done + copy) * blockSize,
                        static_cast<std::size_t>(blockSize));
            block[length - 1] = static_cast<char>(TypedStream::endOfObject);
        }
        _objectCount += static_cast<std::uint32_t>(alike);
        break;
    }
    endObject();
}

} // namespace ridelog
