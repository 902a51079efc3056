// The reader's part that keeps objects structurally. Each object of an archive is kept once at most, however
// often it is referred to, so that this takes no more than the archive's size.

#include "platform/TypedStreamMarks.h"
#include "platform/TypedStreamReader.h"

namespace ridelog {

using Tag = ArchiveGraph::Tag;

ArchiveObject TypedStreamReader::readObject()
{
    const auto item = next();
    if (item.kind != Kind::object) {
        fail(QStringLiteral("an object expected"));
        return {};
    }
    consume(item);
    const auto group = _at;
    const auto found = takeObject();
    if (found.head == Head::nil)
        return {};
    const auto index = keep(found, 0);
    _at.types = group.types;
    _at.item = group.item;
    keepReferenced();
    return failed() ? ArchiveObject() : ArchiveObject(_graph, index);
}

ArchiveObject TypedStreamReader::readArchive()
{
    const auto index = addKept(nullptr);
    keepGroups(index, 0);
    if (!failed() && bytesLeft() > 0)
        fail(QStringLiteral("the end of an object that was not begun"));
    keepReferenced();
    return failed() ? ArchiveObject() : ArchiveObject(_graph, index);
}

std::uint32_t TypedStreamReader::addKept(const ArchiveClass* objectClass)
{
    _graph->objects.push_back({.objectClass = objectClass});
    _keptEnds.emplace_back();
    return static_cast<std::uint32_t>(_graph->objects.size() - 1);
}

/// Answers the index in the graph of the object found. A new one is read, one referred to noted for later.
std::uint32_t TypedStreamReader::keep(FoundObject found, std::size_t depth)
{
    const auto known = _kept.constFind(found.number);
    const bool isKnown = known != _kept.constEnd();
    const auto index = isKnown ? *known : addKept(nullptr);
    if (!isKnown)
        _kept.insert(found.number, index);
    if (found.head == Head::reference) {
        if (!isKnown)
            _toKeep.push_back(found.number);
    } else if (_keptEnds[index].position > 0) {
        _at = _keptEnds[index];
    } else if (mayNest(depth)) {
        _graph->objects[index].objectClass = goToBody(found);
        keepGroups(index, depth + 1);
        takeByte(); // the end mark
        _keptEnds[index] = _at;
    }
    return index;
}

/// What kept objects refer to is read where it stands, not inside of what refers to it: a chain of references
/// may be as long as the archive.
void TypedStreamReader::keepReferenced()
{
    const auto here = _at;
    while (!_toKeep.empty() && !failed()) {
        const auto number = _toKeep.back();
        _toKeep.pop_back();
        const auto index = _kept.value(number);
        if (_keptEnds[index].position > 0)
            continue;
        _graph->objects[index].objectClass = goToBody({Head::reference, number});
        keepGroups(index, 1);
        takeByte(); // the end mark
        _keptEnds[index] = _at;
    }
    _at = here;
}

/// Reads an object's groups up to its end mark, or the archive's up to its end. An object's values have to
/// lie in a row, so they wait in _keptValues until those of the objects inside are out of the way.
void TypedStreamReader::keepGroups(std::uint32_t kept, std::size_t depth)
{
    const auto firstGroup = _keptGroups.size();
    const auto firstValue = _keptValues.size();
    const bool isArchive = depth == 0;
    while (!failed() && !(isArchive && bytesLeft() == 0)) {
        std::optional<std::uint32_t> typeString;
        const auto types = takeGroup(typeString);
        if (types < 0)
            break;
        const auto before = _keptValues.size();
        for (std::uint32_t item = 0; item < _types[static_cast<std::size_t>(types)].size() && !failed();) {
            keepItem(types, item, depth);
            item += _types[static_cast<std::size_t>(types)][item].span;
        }
        _keptGroups.push_back(
            {keptString(*typeString), static_cast<std::uint32_t>(_keptValues.size() - before)});
    }
    const auto moveTail = [](auto& from, std::size_t first, auto& to) {
        const auto tail = from.begin() + static_cast<std::ptrdiff_t>(first);
        const auto index = static_cast<std::uint32_t>(to.size());
        to.insert(to.end(), tail, from.end());
        from.erase(tail, from.end());
        return index;
    };
    auto& object = _graph->objects[kept];
    object.groupCount = static_cast<std::uint32_t>(_keptGroups.size() - firstGroup);
    object.firstGroup = moveTail(_keptGroups, firstGroup, _graph->groups);
    object.firstValue = moveTail(_keptValues, firstValue, _graph->values);
}

void TypedStreamReader::keepItem(std::int32_t types, std::uint32_t item, std::size_t depth)
{
    const auto what = _types[static_cast<std::size_t>(types)][item];
    if (what.kind == Kind::array) {
        for (std::uint32_t element = 0; element < what.count && !failed(); ++element)
            keepItem(types, item + 1, depth);
    } else if (what.kind == Kind::structure) {
        for (auto field = item + 1; field < item + what.span && !failed();) {
            keepItem(types, field, depth);
            field += _types[static_cast<std::size_t>(types)][field].span;
        }
    } else {
        const auto value = keptValue(what, depth);
        _keptValues.push_back(value);
    }
}

ArchiveGraph::Value TypedStreamReader::keptValue(const Item& item, std::size_t depth)
{
    const auto orNil = [](Tag tag, std::optional<qint64> value) {
        return value ? ArchiveGraph::Value{tag, *value} : ArchiveGraph::Value{};
    };
    const auto ofString = [&](std::optional<std::uint32_t> string) {
        return string && !failed() ? std::optional<qint64>(keptString(*string)) : std::nullopt;
    };
    switch (item.kind) {
    case Kind::byte:
        return {Tag::byte,
                item.code == 'c' ? qint64{static_cast<std::int8_t>(takeByte())} : qint64{takeByte()}};
    case Kind::integer:
        return {Tag::integer, takeIntegerOfType(item.code)};
    case Kind::real:
        return takeReal(item.code);
    case Kind::object: {
        const auto found = takeObject();
        return found.head == Head::nil ? ArchiveGraph::Value{}
                                       : ArchiveGraph::Value{Tag::object, keep(found, depth)};
    }
    case Kind::classRef:
        return orNil(Tag::classRef, takeClass());
    case Kind::cString:
        return orNil(Tag::cString, ofString(takeCString()));
    case Kind::atom:
        return orNil(Tag::atom, ofString(takeSharedString()));
    case Kind::text: {
        const auto bytes = takeText();
        return bytes.isNull() ? ArchiveGraph::Value{}
                              : ArchiveGraph::Value{Tag::text, _graph->addBytes(bytes)};
    }
    case Kind::block:
        return {Tag::block, _graph->addBytes(takeBytes(item.count))};
    case Kind::none:
    case Kind::array:
    case Kind::structure:
        break;
    }
    return {};
}

} // namespace ridelog
