#include "platform/TypedStreamReader.h"

#include "platform/Languages.h"
#include "platform/TypedStreamMarks.h"

#include <QLocale>
#include <QtEndian>

#include <array>
#include <bit>
#include <limits>

namespace ridelog {
namespace {

using namespace TypedStream;

/// Of an object: that there is a new one, a reference to its class, its end.
constexpr qsizetype fewestBytesPerObject = 3;
constexpr std::size_t deepestNesting = 200;
constexpr std::size_t longestClassChain = 64;
constexpr std::size_t mostClasses = 65536;
constexpr qsizetype longestName = 4096;
/// References may multiply what an archive says; this many times its size is read again and no more.
constexpr qint64 readAgainFactor = 8;
constexpr qint64 readAgainAtLeast = 1 << 16;
/// What a reference costs beside the bytes it stands for.
constexpr qint64 costOfReference = 16;

/// Beside its bytes an archive takes so many times its size in memory at most, a small one so much, of which
/// this is left to what nobody counts.
constexpr qint64 memoryFactor = 4;
constexpr qint64 memoryAtLeast = 64 << 20;
constexpr qint64 memoryNotCounted = 8 << 20;

QString otherKind()
{
    return TypedStreamReader::tr("reference to an entry of another kind");
}

constexpr qsizetype headerSize = 2 + littleEndianSignature.size();

bool hasSignature(QByteArrayView bytes, QByteArrayView signature)
{
    return bytes.size() >= headerSize && bytes[1] == signature.size() &&
           bytes.sliced(2, signature.size()) == signature;
}

qint64 memoryFor(qsizetype archive)
{
    return std::max(memoryFactor * archive, memoryAtLeast) - memoryNotCounted;
}

} // namespace

QString TypedStreamError::text() const
{
    return TypedStreamReader::tr("%1 at byte %2").arg(what, messageLocale().toString(offset));
}

TypedStreamReader::TypedStreamReader(QByteArrayView bytes)
    : _bytes(bytes),
      _mayReadAgain(readAgainFactor * bytes.size() + readAgainAtLeast),
      _mayTake(memoryFor(bytes.size())),
      _graph(std::make_shared<ArchiveGraph>())
{
    // The table grows to millions of entries: what is not used of this costs nothing.
    _objects.reserve(static_cast<std::size_t>(bytes.size() / fewestBytesPerObject));
    readHeader();
}

bool TypedStreamReader::isTypedStream(QByteArrayView firstBytes)
{
    return hasSignature(firstBytes, littleEndianSignature) || hasSignature(firstBytes, bigEndianSignature);
}

void TypedStreamReader::readHeader()
{
    if (_bytes.size() > largestArchive)
        return failAt(0, tr("archives of more than 1 GiB are not read"));
    if (!isTypedStream(_bytes))
        return failAt(0, tr("no typed stream"));
    _bigEndian = hasSignature(_bytes, bigEndianSignature);
    if (_bytes[0] != streamerVersion)
        return failAt(0, tr("typed stream of unknown version %1").arg(int{_bytes[0]}));
    _at.position = headerSize;
    takeInteger(); // the system's version, of which nothing depends
}

void TypedStreamReader::fail(const QString& what)
{
    failAt(_at.position, what);
}

void TypedStreamReader::failAt(qsizetype offset, const QString& what)
{
    if (!_error)
        _error = TypedStreamError{what, offset};
}

void TypedStreamReader::failForMemory()
{
    fail(tr("what it holds takes more than %1 MiB of memory").arg(memoryFor(_bytes.size()) >> 20));
}

// Bytes and integers

bool TypedStreamReader::need(quint64 bytes)
{
    if (failed())
        return false;
    if (bytes <= static_cast<quint64>(bytesLeft()))
        return true;
    fail(tr("%1 bytes wanted, %2 left").arg(bytes).arg(bytesLeft()));
    return false;
}

bool TypedStreamReader::isNextByte(std::uint8_t byte) const
{
    return bytesLeft() > 0 && static_cast<std::uint8_t>(_bytes[_at.position]) == byte;
}

std::uint8_t TypedStreamReader::takeByte()
{
    return need(1) ? static_cast<std::uint8_t>(_bytes[_at.position++]) : std::uint8_t{0};
}

template <typename Number>
Number TypedStreamReader::takePlain()
{
    if (!need(sizeof(Number)))
        return 0;
    const auto* place = _bytes.data() + _at.position;
    _at.position += sizeof(Number);
    return _bigEndian ? qFromBigEndian<Number>(place) : qFromLittleEndian<Number>(place);
}

qint64 TypedStreamReader::takeInteger()
{
    return takeInteger(takeByte());
}

qint64 TypedStreamReader::takeInteger(std::uint8_t tag)
{
    switch (tag) {
    case int16Follows:
        return takePlain<std::int16_t>();
    case int32Follows:
        return takePlain<std::int32_t>();
    case int64Follows:
        return takePlain<qint64>();
    default:
        if (tag < 0x80 || tag >= firstOneByteNegative)
            return static_cast<std::int8_t>(tag);
        failAt(_at.position - 1, tr("an integer expected, not the mark 0x%1").arg(tag, 2, 16));
        return 0;
    }
}

qint64 TypedStreamReader::takeIntegerOfType(char code)
{
    const auto start = _at.position;
    const auto value = takeInteger();
    // An unsigned number may be stored by its sign-extended bits.
    const auto fits = [&](auto ofSigned, auto ofUnsigned) {
        using Signed = std::numeric_limits<decltype(ofSigned)>;
        using Unsigned = std::numeric_limits<decltype(ofUnsigned)>;
        return value >= Signed::min() && value <= (code < 'a' ? qint64{Unsigned::max()} : Signed::max());
    };
    const bool isShort = code == 's' || code == 'S';
    const bool isLongLong = code == 'q' || code == 'Q';
    if (!isLongLong &&
        !(isShort ? fits(std::int16_t{}, std::uint16_t{}) : fits(std::int32_t{}, std::uint32_t{})))
        failAt(start, tr("the integer %1 does not fit its type").arg(value));
    return value;
}

QByteArrayView TypedStreamReader::takeBytes(qint64 count)
{
    if (count < 0)
        fail(tr("negative length %1").arg(count));
    if (!need(static_cast<quint64>(count)))
        return {};
    const auto bytes = _bytes.sliced(_at.position, count);
    _at.position += static_cast<std::uint32_t>(count);
    return bytes;
}

TypedStreamReader::Head TypedStreamReader::takeHead(std::uint32_t tableSize, std::uint32_t& number)
{
    const auto start = _at.position;
    const auto tag = takeByte();
    if (tag == isNil)
        return Head::nil;
    if (tag == isNew)
        return Head::isNew;
    const auto value = takeInteger(tag);
    if (failed())
        return Head::nil;
    if (value < firstReference || value >= qint64{tableSize} + firstReference) {
        failAt(start, tr("reference to an entry that is not there"));
        return Head::nil;
    }
    number = static_cast<std::uint32_t>(value - firstReference);
    return Head::reference;
}

// The two tables. What is read again finds its entries there already.

std::uint32_t TypedStreamReader::addEntry(TableEntry entry)
{
    const auto number = _at.objects++;
    if (number == _objects.size()) {
        _objects.push_back(entry);
        charge(sizeof entry);
    }
    return number;
}

bool TypedStreamReader::isObject(std::uint32_t number) const
{
    const auto entry = _objects[number].entry();
    return entry == Entry::object || entry == Entry::keptObject;
}

/// Where an object's class stands.
std::uint32_t TypedStreamReader::startOf(std::uint32_t object) const
{
    const auto entry = _objects[object];
    return entry.entry() == Entry::keptObject ? _keptStarts[entry.place()] : entry.place();
}

std::optional<std::uint32_t> TypedStreamReader::takeSharedString()
{
    std::uint32_t index = 0;
    switch (takeHead(_at.strings, index)) {
    case Head::nil:
        return std::nullopt;
    case Head::reference:
        return index;
    case Head::isNew:
        break;
    }
    const auto length = takeInteger();
    const auto offset = _at.position;
    takeBytes(length);
    if (failed())
        return std::nullopt;
    index = _at.strings++;
    if (index == _strings.size()) {
        _strings.push_back({offset, static_cast<std::uint32_t>(length)});
        charge(sizeof(SharedString));
    }
    return index;
}

std::optional<std::uint32_t> TypedStreamReader::takeCString()
{
    std::uint32_t number = 0;
    switch (takeHead(_at.objects, number)) {
    case Head::nil:
        return std::nullopt;
    case Head::reference:
        if (_objects[number].entry() == Entry::cString)
            return _objects[number].place();
        fail(otherKind());
        return std::nullopt;
    case Head::isNew:
        break;
    }
    number = addEntry({0, Entry::cString});
    const auto text = takeSharedString();
    if (!text)
        fail(tr("a text expected"));
    else
        _objects[number] = {*text, Entry::cString};
    return text;
}

QByteArrayView TypedStreamReader::stringAt(std::uint32_t index) const
{
    return _bytes.sliced(_strings[index].offset, _strings[index].length);
}

std::optional<std::uint32_t> TypedStreamReader::takeClass()
{
    struct Unfinished {
        std::uint32_t number;
        std::uint32_t name;
        int version;
    };
    std::array<Unfinished, longestClassChain> chain;
    std::size_t length = 0;
    std::optional<std::uint32_t> found;
    for (bool goesOn = true; goesOn && !failed();) {
        std::uint32_t number = 0;
        switch (takeHead(_at.objects, number)) {
        case Head::nil:
            goesOn = false;
            break;
        case Head::reference:
            goesOn = false;
            if (_objects[number].isFinishedClass())
                found = _objects[number].place();
            else
                fail(otherKind());
            break;
        case Head::isNew:
            if (length == longestClassChain) {
                fail(tr("a chain of more than 64 classes"));
                break;
            }
            number = addEntry({TableEntry::unfinished, Entry::classEntry});
            const auto name = takeSharedString();
            if (!name || _strings[*name].length == 0 || _strings[*name].length > longestName)
                fail(tr("no class name"));
            else
                chain[length++] = {number, *name, static_cast<int>(takeIntegerOfType('i'))};
            break;
        }
    }
    while (length > 0 && !failed()) {
        const auto& unfinished = chain[--length];
        auto& entry = _objects[unfinished.number];
        if (!entry.isFinishedClass()) {
            const auto* superclass = found ? &_graph->classes[*found] : nullptr;
            entry = {addClass(unfinished.name, unfinished.version, superclass), Entry::classEntry};
        }
        found = entry.place();
    }
    return failed() ? std::nullopt : found;
}

std::uint32_t TypedStreamReader::addClass(std::uint32_t name, int version, const ArchiveClass* superclass)
{
    std::size_t chain = 1;
    for (const auto* above = superclass; above; above = above->superclass)
        ++chain;
    if (chain > longestClassChain)
        fail(tr("a chain of more than 64 classes"));
    if (_graph->classes.size() == mostClasses)
        fail(tr("more than 65,536 classes"));
    charge(sizeof(ArchiveClass));
    _graph->classes.push_back({_graph->string(keptString(name)), version, superclass});
    return static_cast<std::uint32_t>(_graph->classes.size() - 1);
}

std::uint32_t TypedStreamReader::keptString(std::uint32_t string)
{
    auto& shared = _strings[string];
    if (shared.kept < 0) {
        shared.kept = static_cast<std::int32_t>(_graph->strings.size());
        _graph->strings.push_back(stringAt(string).toByteArray());
        charge(qint64{sizeof(QByteArray)} + costOfBlock + shared.length);
    }
    return static_cast<std::uint32_t>(shared.kept);
}

// Groups and objects

/// Reads a type string and answers its index in _types, -1 at an object's end.
std::int32_t TypedStreamReader::takeGroup(std::optional<std::uint32_t>& typeString)
{
    if (failed() || isNextByte(endOfObject))
        return -1;
    const auto start = _at.position;
    typeString = takeSharedString();
    if (failed())
        return -1;
    if (typeString && _strings[*typeString].types < 0) {
        if (auto types = ArchiveTypes::parse(stringAt(*typeString))) {
            _strings[*typeString].types = static_cast<std::int32_t>(_types.size());
            charge(costOfBlock + costOfGrowth * (qint64{sizeof(ArchiveTypes)} + types->memory()));
            _types.push_back(std::move(*types));
        }
    }
    if (!typeString || _strings[*typeString].types < 0) {
        failAt(start, tr("no type string of values that can be read"));
        return -1;
    }
    return _strings[*typeString].types;
}

TypedStreamReader::Item TypedStreamReader::next()
{
    while (_at.types < 0) {
        if (failed() || (_open.empty() && bytesLeft() == 0))
            return {};
        if (_open.empty() && isNextByte(endOfObject))
            fail(tr("the end of an object that was not begun"));
        std::optional<std::uint32_t> typeString;
        const auto types = takeGroup(typeString);
        if (types < 0)
            return {};
        // A group of nothing is not entered.
        if (_types[static_cast<std::size_t>(types)].size() > 0) {
            _at.types = types;
            _at.item = 0;
        }
    }
    return failed() ? Item{} : _types[static_cast<std::size_t>(_at.types)][_at.item];
}

void TypedStreamReader::consume(const Item& item)
{
    _at.item += item.span;
    if (_at.item == _types[static_cast<std::size_t>(_at.types)].size())
        _at.types = -1;
}

TypedStreamReader::FoundObject TypedStreamReader::takeObject()
{
    FoundObject found;
    const auto start = _at.position;
    found.head = takeHead(_at.objects, found.number);
    if (found.head == Head::isNew)
        found.number = addEntry({_at.position, Entry::object});
    else if (found.head == Head::reference && !isObject(found.number))
        failAt(start, otherKind());
    return failed() ? FoundObject{} : found;
}

std::optional<std::uint32_t> TypedStreamReader::takeObjectClass()
{
    const auto index = takeClass();
    if (!index)
        fail(tr("an object without a class"));
    return index;
}

/// Goes from behind an object's head to its class, for a reference to where it stands.
void TypedStreamReader::goTo(FoundObject found)
{
    _at.types = -1;
    if (found.head != Head::reference)
        return;
    _at.position = startOf(found.number);
    _at.objects = found.number + 1;
    const auto behind = std::partition_point(
        _strings.begin(), _strings.end(), [&](const auto& string) { return string.offset < _at.position; });
    _at.strings = static_cast<std::uint32_t>(behind - _strings.begin());
}

/// The same, and past the class to the object's groups.
const ArchiveClass* TypedStreamReader::goToBody(FoundObject found)
{
    goTo(found);
    const auto index = takeObjectClass();
    return index ? &_graph->classes[*index] : nullptr;
}

bool TypedStreamReader::mayNest(std::size_t depth)
{
    if (_open.size() + depth < deepestNesting)
        return !failed();
    fail(tr("objects nested more than 200 deep"));
    return false;
}

const ArchiveClass* TypedStreamReader::open(FoundObject found, Cursor value)
{
    const bool isReference = found.head == Head::reference;
    if (failed() || found.head == Head::nil || !mayNest(0))
        return nullptr;
    if (isReference && std::any_of(_open.begin(), _open.end(),
                                   [&](const auto& outer) { return outer.number == found.number; })) {
        failAt(value.position, tr("an object that contains itself"));
        return nullptr;
    }
    const auto parent = _at;
    const auto* objectClass = goToBody(found);
    if (!objectClass)
        return nullptr;
    _open.push_back({parent, found.number, startOf(found.number), isReference});
    return objectClass;
}

const ArchiveClass* TypedStreamReader::openObject()
{
    const auto item = next();
    if (item.kind != Kind::object) {
        fail(tr("an object expected"));
        return nullptr;
    }
    const auto value = _at;
    consume(item);
    return open(takeObject(), value);
}

const ArchiveClass* TypedStreamReader::nextClass()
{
    if (next().kind != Kind::object)
        return nullptr;
    const auto value = _at;
    const auto found = takeObject();
    const auto* objectClass = found.head == Head::nil ? nullptr : goToBody(found);
    _at = value;
    return failed() ? nullptr : objectClass;
}

/// Opens the next value if it is an object of this class, and leaves it out if not.
bool TypedStreamReader::openKindOf(QByteArrayView className)
{
    const auto item = next();
    if (item.kind == Kind::none)
        return false;
    const auto value = _at;
    if (item.kind == Kind::object) {
        consume(item);
        const auto* objectClass = open(takeObject(), value);
        if (objectClass && objectClass->isKindOf(className))
            return true;
        if (objectClass)
            closeObject();
        return false;
    }
    skip();
    return false;
}

void TypedStreamReader::closeObject()
{
    const auto object = _open.back();
    if (object.isReference) {
        readAgain(qint64{_at.position} - object.start);
        _open.pop_back();
        _at = object.parent;
        return;
    }
    while (next().kind != Kind::none)
        skip();
    if (!failed())
        takeByte(); // the end mark
    _open.pop_back();
    _at.types = object.parent.types;
    _at.item = object.parent.item;
}

void TypedStreamReader::skip()
{
    const auto item = next();
    if (item.kind == Kind::none)
        return fail(tr("a value expected"));
    const auto value = _at;
    skipItem(value.types, value.item, 0);
    consume(item);
}

void TypedStreamReader::skipItem(std::int32_t types, std::uint32_t item, std::size_t depth)
{
    const auto what = _types[static_cast<std::size_t>(types)][item];
    switch (what.kind) {
    case Kind::object:
        return skipObject(depth);
    case Kind::array:
        for (std::uint32_t element = 0; element < what.count && !failed(); ++element)
            skipItem(types, item + 1, depth);
        return;
    case Kind::structure:
        for (auto field = item + 1; field < item + what.span && !failed();) {
            skipItem(types, field, depth);
            field += _types[static_cast<std::size_t>(types)][field].span;
        }
        return;
    case Kind::none:
        return;
    case Kind::byte:
        takeByte();
        return;
    case Kind::integer:
        takeIntegerOfType(what.code);
        return;
    case Kind::real:
        takeReal(what.code);
        return;
    case Kind::classRef:
        takeClass();
        return;
    case Kind::cString:
        takeCString();
        return;
    case Kind::atom:
        takeSharedString();
        return;
    case Kind::text:
        takeText();
        return;
    case Kind::block:
        takeBytes(what.count);
        return;
    }
}

void TypedStreamReader::skipObject(std::size_t depth)
{
    if (takeObject().head == Head::isNew)
        skipBody(depth);
}

void TypedStreamReader::skipBody(std::size_t depth)
{
    if (!mayNest(depth) || !takeObjectClass())
        return;
    std::optional<std::uint32_t> typeString;
    for (auto types = takeGroup(typeString); types >= 0; types = takeGroup(typeString)) {
        for (std::uint32_t item = 0; item < _types[static_cast<std::size_t>(types)].size() && !failed();) {
            skipItem(types, item, depth + 1);
            item += _types[static_cast<std::size_t>(types)][item].span;
        }
    }
    takeByte(); // the end mark
}

/// Counts what a reference makes to be gone through once more.
void TypedStreamReader::readAgain(qint64 bytes)
{
    _mayReadAgain -= costOfReference + bytes;
    if (_mayReadAgain < 0)
        fail(tr("references to the same objects over and over again"));
}

// Values

/// The bits as they are stand for themselves, so that a number that is kept is written again to the last one.
ArchiveGraph::Value TypedStreamReader::takeReal(char code)
{
    using Tag = ArchiveGraph::Tag;
    const auto tag = takeByte();
    if (tag != realFollows)
        return {Tag::integer, takeInteger(tag)};
    if (code == 'f')
        return {Tag::float32, takePlain<std::uint32_t>()};
    return {Tag::float64, takePlain<qint64>()};
}

/// Counted bytes, null for nil.
QByteArrayView TypedStreamReader::takeText()
{
    const auto tag = takeByte();
    if (tag == isNil)
        return {};
    return takeBytes(takeInteger(tag));
}

qint64 TypedStreamReader::readInteger()
{
    const auto item = next();
    qint64 value = 0;
    if (item.kind == Kind::byte)
        value = item.code == 'c' ? qint64{static_cast<std::int8_t>(takeByte())} : qint64{takeByte()};
    else if (item.kind == Kind::integer)
        value = takeIntegerOfType(item.code);
    else
        fail(tr("an integer expected"));
    if (failed())
        return 0;
    consume(item);
    return value;
}

double TypedStreamReader::readReal()
{
    const auto item = next();
    if (item.kind != Kind::real) {
        const auto integer = readInteger();
        return item.code == 'Q' ? static_cast<double>(static_cast<quint64>(integer))
                                : static_cast<double>(integer);
    }
    const auto value = takeReal(item.code);
    if (failed())
        return 0;
    consume(item);
    return ArchiveGraph::realOf(value);
}

QByteArrayView TypedStreamReader::readBytes()
{
    const auto item = next();
    QByteArrayView bytes;
    if (item.kind == Kind::block)
        bytes = takeBytes(item.count);
    else if (item.kind == Kind::text)
        bytes = takeText();
    else
        fail(tr("bytes expected"));
    if (failed())
        return {};
    consume(item);
    return bytes;
}

QByteArrayView TypedStreamReader::readCString()
{
    const auto item = next();
    std::optional<std::uint32_t> string;
    if (item.kind == Kind::cString)
        string = takeCString();
    else if (item.kind == Kind::atom)
        string = takeSharedString();
    else
        fail(tr("a C string expected"));
    if (failed())
        return {};
    consume(item);
    return string ? stringAt(*string) : QByteArrayView();
}

} // namespace ridelog
