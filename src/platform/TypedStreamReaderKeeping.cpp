// The reader's part that keeps objects structurally. Each object of an archive is kept once at most, however
// often it is referred to.

#include "platform/TypedStreamMarks.h"
#include "platform/TypedStreamReader.h"

namespace ridelog {

using Tag = ArchiveGraph::Tag;

ArchiveObject TypedStreamReader::readObject()
{
    const auto item = next();
    if (item.kind != Kind::object) {
        fail(tr("an object expected"));
        return {};
    }
    consume(item);
    const auto group = _at;
    const auto found = takeObject();
    if (found.head == Head::nil)
        return {};
    const auto index = keptIndex(found);
    keep(index, found, 0);
    _at.types = group.types;
    _at.item = group.item;
    keepReferenced();
    return failed() ? ArchiveObject() : ArchiveObject(_graph, index);
}

ArchiveObject TypedStreamReader::readArchive()
{
    const auto index = _graph->addObject();
    _keptStarts.push_back(_at.position);
    _graph->begin(index, std::nullopt);
    _graph->end(index, keepGroups(0));
    if (!failed() && bytesLeft() > 0)
        fail(tr("the end of an object that was not begun"));
    keepReferenced();
    return failed() ? ArchiveObject() : ArchiveObject(_graph, index);
}

/// The index in the graph. An object that is new there and only referred to is noted for later.
std::uint32_t TypedStreamReader::keptIndex(FoundObject found)
{
    auto& entry = _objects[found.number];
    if (entry.entry() != Entry::keptObject) {
        _keptStarts.push_back(entry.place());
        entry = {_graph->addObject(), Entry::keptObject};
        charge(sizeof(ArchiveGraph::Object) + sizeof entry.place());
        if (found.head == Head::reference) {
            _toKeep.push_back(found.number);
            charge(costOfGrowth * qint64{sizeof found.number});
        }
    }
    return entry.place();
}

/// Reads a new object, or passes over one that was kept before because something refers to it.
void TypedStreamReader::keep(std::uint32_t index, FoundObject found, std::size_t depth)
{
    if (found.head == Head::reference)
        return;
    if (!_graph->isKept(index))
        return keepBody(index, found, depth);
    const auto start = _at.position;
    skipBody(depth);
    readAgain(qint64{_at.position} - start);
}

void TypedStreamReader::keepBody(std::uint32_t index, FoundObject found, std::size_t depth)
{
    if (!mayNest(depth))
        return;
    goTo(found);
    charge(_graph->begin(index, takeObjectClass()));
    _graph->end(index, keepGroups(depth + 1));
    takeByte(); // the end mark
}

/// What kept objects refer to is read where it stands, not inside of what refers to it: a chain of references
/// may be as long as the archive.
void TypedStreamReader::keepReferenced()
{
    const auto here = _at;
    while (!_toKeep.empty() && !failed()) {
        const auto number = _toKeep.back();
        _toKeep.pop_back();
        if (const auto index = _objects[number].place(); !_graph->isKept(index))
            keepBody(index, {Head::reference, number}, 0);
    }
    _at = here;
}

/// Keeps an object's groups up to its end mark, or the archive's up to its end, and answers how many values
/// are in them.
std::uint32_t TypedStreamReader::keepGroups(std::size_t depth)
{
    std::uint32_t values = 0;
    const bool isArchive = depth == 0;
    while (!failed() && !(isArchive && bytesLeft() == 0)) {
        std::optional<std::uint32_t> typeString;
        const auto types = takeGroup(typeString);
        if (types < 0)
            break;
        keepValue({Tag::group, keptString(*typeString)});
        for (std::uint32_t item = 0; item < _types[static_cast<std::size_t>(types)].size() && !failed();) {
            values += keepItem(types, item, depth);
            item += _types[static_cast<std::size_t>(types)][item].span;
        }
    }
    return values;
}

/// Answers how many values it kept, those of objects inside not counted.
std::uint32_t TypedStreamReader::keepItem(std::int32_t types, std::uint32_t item, std::size_t depth)
{
    const auto what = _types[static_cast<std::size_t>(types)][item];
    std::uint32_t values = 0;
    if (what.kind == Kind::array) {
        for (std::uint32_t element = 0; element < what.count && !failed(); ++element)
            values += keepItem(types, item + 1, depth);
        return values;
    }
    if (what.kind == Kind::structure) {
        for (auto field = item + 1; field < item + what.span && !failed();) {
            values += keepItem(types, field, depth);
            field += _types[static_cast<std::size_t>(types)][field].span;
        }
        return values;
    }
    if (what.kind == Kind::object)
        keepObject(depth);
    else
        keepValue(takeValue(what));
    return 1;
}

void TypedStreamReader::keepObject(std::size_t depth)
{
    const auto found = takeObject();
    if (found.head == Head::nil)
        return keepValue({});
    const auto index = keptIndex(found);
    const bool standsHere = found.head == Head::isNew && !_graph->isKept(index);
    keepValue({standsHere ? Tag::inner : Tag::object, index});
    keep(index, found, depth);
}

void TypedStreamReader::keepValue(const ArchiveGraph::Value& value)
{
    charge(_graph->add(value));
    if (value.tag == Tag::text) // is counted decoded as well
        charge(qint64{sizeof(QChar)} * value.bytes.size());
}

/// Reads a value that is no object.
ArchiveGraph::Value TypedStreamReader::takeValue(const Item& item)
{
    const auto orNil = [](Tag tag, std::optional<std::uint32_t> index) {
        return index ? ArchiveGraph::Value{tag, *index} : ArchiveGraph::Value{};
    };
    const auto ofString = [&](std::optional<std::uint32_t> string) {
        return string && !failed() ? std::optional(keptString(*string)) : std::nullopt;
    };
    switch (item.kind) {
    case Kind::byte:
        return {Tag::byte,
                item.code == 'c' ? qint64{static_cast<std::int8_t>(takeByte())} : qint64{takeByte()}};
    case Kind::integer:
        return {Tag::integer, takeIntegerOfType(item.code)};
    case Kind::real:
        return takeReal(item.code);
    case Kind::classRef:
        return orNil(Tag::classRef, takeClass());
    case Kind::cString:
        return orNil(Tag::cString, ofString(takeCString()));
    case Kind::atom:
        return orNil(Tag::atom, ofString(takeSharedString()));
    case Kind::text: {
        const auto bytes = takeText();
        return bytes.isNull() ? ArchiveGraph::Value{} : ArchiveGraph::Value{Tag::text, 0, bytes};
    }
    case Kind::block:
        return {Tag::block, 0, takeBytes(item.count)};
    case Kind::none:
    case Kind::object:
    case Kind::array:
    case Kind::structure:
        break;
    }
    return {};
}

} // namespace ridelog
