#include "platform/ArchiveObject.h"

#include "platform/ArchiveGraph.h"
#include "platform/ArchivedTimeZone.h"
#include "platform/CalendarDate.h"

#include <QTimeZone>
#include <QUrl>

#include <algorithm>
#include <bit>
#include <cmath>
#include <set>
#include <tuple>

namespace ridelog {
namespace {

using Tag = ArchiveGraph::Tag;

/// What a value of the graph is to those who look into an object.
ArchiveValue valueOf(const std::shared_ptr<const ArchiveGraph>& graph, const ArchiveGraph::Value& value)
{
    switch (value.tag) {
    case Tag::group:
    case Tag::nil:
        break;
    case Tag::byte:
    case Tag::integer:
        return value.value;
    case Tag::float32:
    case Tag::float64:
        return ArchiveGraph::realOf(value);
    case Tag::inner:
    case Tag::object:
        return ArchiveObject(graph, static_cast<std::uint32_t>(value.value));
    case Tag::classRef:
        return &graph->classes[static_cast<std::size_t>(value.value)];
    case Tag::cString:
    case Tag::atom:
        return graph->string(value.value);
    case Tag::text:
    case Tag::block:
        return value.bytes.toByteArray();
    }
    return std::monostate();
}

std::optional<double> realOf(const std::optional<ArchiveValue>& value)
{
    if (const auto* whole = value ? std::get_if<qint64>(&*value) : nullptr)
        return static_cast<double>(*whole);
    const auto* real = value ? std::get_if<double>(&*value) : nullptr;
    return real ? std::optional(*real) : std::nullopt;
}

/// Texts of so many bytes are decoded once.
constexpr qsizetype longText = 32;

/// A zone's name is among its first values, if it has one.
constexpr int mostBeforeName = 8;

/// The zone of a date's values: that of the first zone object among them, if its name is known.
QTimeZone zoneIn(ArchiveValues values)
{
    while (!values.atEnd()) {
        const auto object = values.nextObject();
        if (!object.objectClass() ||
            !(object.isKindOf("NSTimeZone") || object.objectClass()->name.endsWith("TimeZone")))
            continue;
        if (object.isKindOf("NSLocalTimeZone"))
            break;
        ArchiveValues inZone(object);
        for (int value = 0; value < mostBeforeName; ++value) {
            if (const auto text = inZone.nextObject().toText()) {
                const auto zone = archivedTimeZone(*text);
                return zone.isValid() ? zone : CalendarDate::localTimeZone();
            }
        }
        break;
    }
    return CalendarDate::localTimeZone();
}

/// Whether two values, or the beginnings of two groups, are alike; what objects hold is left to the caller.
bool areAlike(const ArchiveGraph& left, const ArchiveGraph::Value& one, const ArchiveGraph& right,
              const ArchiveGraph::Value& two)
{
    switch (one.tag) {
    case Tag::group:
    case Tag::cString:
    case Tag::atom:
        return one.tag == two.tag && left.string(one.value) == right.string(two.value);
    case Tag::classRef:
        return one.tag == two.tag && left.classes[static_cast<std::size_t>(one.value)] ==
                                         right.classes[static_cast<std::size_t>(two.value)];
    case Tag::inner:
    case Tag::object:
        return two.tag == Tag::inner || two.tag == Tag::object;
    case Tag::nil:
    case Tag::byte:
    case Tag::integer:
    case Tag::float32:
    case Tag::float64:
    case Tag::text:
    case Tag::block:
        break;
    }
    return one.tag == two.tag && one.value == two.value && one.bytes == two.bytes;
}

} // namespace

const ArchiveClass* ArchiveObject::objectClass() const
{
    return _graph ? _graph->classOf(_index) : nullptr;
}

bool ArchiveObject::isKindOf(QByteArrayView className) const
{
    const auto* own = objectClass();
    return own && own->isKindOf(className);
}

std::vector<QByteArray> ArchiveObject::typeStrings() const
{
    std::vector<QByteArray> all;
    if (isNil())
        return all;
    const auto end = _graph->objects[_index].end;
    for (auto place = _graph->first(_index); place < end;) {
        if (const auto item = _graph->next(place); item.tag == Tag::group)
            all.push_back(_graph->string(item.value));
    }
    return all;
}

std::vector<ArchiveValue> ArchiveObject::values() const
{
    std::vector<ArchiveValue> all;
    ArchiveValues values(*this);
    while (auto value = values.next())
        all.push_back(std::move(*value));
    return all;
}

bool ArchiveObject::areEqual(std::vector<std::pair<ArchiveObject, ArchiveObject>> pairs)
{
    // Objects that are being compared, or have been: rings and shared objects end there.
    std::set<std::tuple<const ArchiveGraph*, std::uint32_t, const ArchiveGraph*, std::uint32_t>> seen;
    while (!pairs.empty()) {
        const auto [left, right] = std::move(pairs.back());
        pairs.pop_back();
        if (left.isSameObject(right) ||
            !seen.emplace(left._graph.get(), left._index, right._graph.get(), right._index).second)
            continue;
        const auto* leftClass = left.objectClass();
        const auto* rightClass = right.objectClass();
        if (left.isNil() || right.isNil() || !leftClass != !rightClass ||
            (leftClass && !(*leftClass == *rightClass)))
            return false;
        const auto leftEnd = left._graph->objects[left._index].end;
        const auto rightEnd = right._graph->objects[right._index].end;
        auto leftPlace = left._graph->first(left._index);
        auto rightPlace = right._graph->first(right._index);
        while (leftPlace < leftEnd && rightPlace < rightEnd) {
            const auto one = left._graph->next(leftPlace);
            const auto two = right._graph->next(rightPlace);
            if (!areAlike(*left._graph, one, *right._graph, two))
                return false;
            if (one.tag == Tag::inner || one.tag == Tag::object)
                pairs.emplace_back(ArchiveObject(left._graph, static_cast<std::uint32_t>(one.value)),
                                   ArchiveObject(right._graph, static_cast<std::uint32_t>(two.value)));
        }
        if (leftPlace < leftEnd || rightPlace < rightEnd)
            return false;
    }
    return true;
}

std::optional<QString> ArchiveObject::toText() const
{
    if (!isKindOf("NSString"))
        return std::nullopt;
    if (const auto known = _graph->longTexts.constFind(_index); known != _graph->longTexts.constEnd())
        return *known;
    const auto bytes = ArchiveValues(*this).nextBytes();
    if (!bytes)
        return std::nullopt;
    const auto text = QString::fromUtf8(*bytes);
    if (bytes->size() >= longText)
        _graph->longTexts.insert(_index, text);
    return text;
}

std::optional<ArchiveNumber> ArchiveObject::toNumber() const
{
    if (!isKindOf("NSNumber"))
        return std::nullopt;
    // The type as a C string, then the number in a group of its own type.
    const auto end = _graph->objects[_index].end;
    QByteArray type;
    int values = 0;
    for (auto place = _graph->first(_index); place < end && values < 2;) {
        const auto item = _graph->next(place);
        if (item.tag == Tag::group)
            type = _graph->string(item.value);
        else if (++values == 2 && type.size() == 1) {
            const auto value = valueOf(_graph, item);
            const bool isReal = type == "f" || type == "d";
            if (const auto real = realOf(value); real && isReal)
                return ArchiveNumber(type.front(), *real);
            if (const auto* integer = std::get_if<qint64>(&value))
                return ArchiveNumber(type.front(), *integer);
        }
    }
    return std::nullopt;
}

std::optional<QByteArray> ArchiveObject::toData() const
{
    if (!isKindOf("NSData"))
        return std::nullopt;
    ArchiveValues values(*this);
    const auto count = values.nextInteger();
    const auto data = values.nextBytes().value_or(QByteArray(""));
    return data.size() == count ? std::optional(data) : std::nullopt;
}

std::optional<std::vector<ArchiveObject>> ArchiveObject::toItems() const
{
    if (!isKindOf("NSArray") && !isKindOf("NSSet"))
        return std::nullopt;
    ArchiveValues values(*this);
    if (values.nextInteger() != qint64{_graph->objects[_index].valueCount} - 1)
        return std::nullopt;
    std::vector<ArchiveObject> items;
    while (!values.atEnd())
        items.push_back(values.nextObject());
    return items;
}

std::optional<qsizetype> ArchiveObject::entryCount() const
{
    if (!isKindOf("NSDictionary"))
        return std::nullopt;
    const auto count = ArchiveValues(*this).nextInteger();
    const qint64 values = _graph->objects[_index].valueCount;
    return count && values % 2 == 1 && *count == values / 2 ? count : std::nullopt;
}

std::optional<std::vector<ArchiveObject::Entry>> ArchiveObject::toEntries() const
{
    if (!entryCount())
        return std::nullopt;
    std::vector<Entry> entries;
    ArchiveValues values(*this);
    for (values.next(); !values.atEnd();) {
        auto key = values.nextObject();
        entries.emplace_back(std::move(key), values.nextObject());
    }
    return entries;
}

ArchiveObject ArchiveObject::valueForKey(QStringView key) const
{
    if (!entryCount())
        return {};
    ArchiveValues values(*this);
    for (values.next(); !values.atEnd();) {
        const auto found = values.nextObject();
        auto value = values.nextObject();
        if (found.toText() == key)
            return value;
    }
    return {};
}

std::optional<QDateTime> ArchiveObject::toDate() const
{
    if (!isKindOf("NSDate"))
        return std::nullopt;
    ArchiveValues values(*this);
    const auto seconds = realOf(values.next());
    // From the year 1 to the year 9999: anything else is damage.
    if (!seconds || !(*seconds > -63'113'904'000.0 && *seconds < 252'423'993'600.0))
        return std::nullopt;
    static const auto reference = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    return QDateTime::fromMSecsSinceEpoch(reference + std::llround(*seconds * 1000),
                                          zoneIn(std::move(values)));
}

std::optional<QString> ArchiveObject::toUrl() const
{
    // A base may have a base in turn; no sensible address goes far there.
    constexpr int furthest = 8;
    QUrl url;
    auto part = *this;
    for (int step = 0; step < furthest && part.isKindOf("NSURL"); ++step) {
        ArchiveValues values(part);
        const auto hasBase = values.nextInteger().value_or(0) != 0;
        auto base = hasBase ? values.nextObject() : ArchiveObject();
        const auto text = values.nextObject().toText();
        if (!text)
            return std::nullopt;
        url = step == 0 ? QUrl(*text) : QUrl(*text).resolved(url);
        if (!hasBase)
            return step == 0 ? *text : url.toString();
        part = std::move(base);
    }
    return std::nullopt;
}

std::optional<ArchivedColour> ArchiveObject::toColour() const
{
    constexpr std::size_t mostParts = 5;
    if (!isKindOf("NSColor"))
        return std::nullopt;
    ArchiveValues values(*this);
    const auto kind = values.nextInteger();
    std::vector<float> parts;
    while (!values.atEnd() && parts.size() <= mostParts) {
        const auto part = realOf(values.next());
        if (part && !std::isnan(*part))
            parts.push_back(static_cast<float>(std::clamp(*part, 0.0, 1.0)));
    }
    if ((kind == 1 || kind == 2) && parts.size() == 4)
        return ArchivedColour{parts[0], parts[1], parts[2], parts[3]};
    if ((kind == 3 || kind == 4) && parts.size() == 2)
        return ArchivedColour{parts[0], parts[0], parts[0], parts[1]};
    if (kind == 5 && parts.size() == 5) {
        const auto mixed = [&](float ink) { return (1 - ink) * (1 - parts[3]); };
        return ArchivedColour{mixed(parts[0]), mixed(parts[1]), mixed(parts[2]), parts[4]};
    }
    return std::nullopt;
}

ArchiveValues::ArchiveValues(ArchiveObject object) : _object(std::move(object))
{
    if (_object.isNil())
        return;
    _place = _object.graph()->first(_object.index());
    _left = _object.graph()->objects[_object.index()].valueCount;
}

std::optional<ArchiveValue> ArchiveValues::next()
{
    if (atEnd())
        return std::nullopt;
    --_left;
    auto item = _object.graph()->next(_place);
    while (item.tag == Tag::group)
        item = _object.graph()->next(_place);
    return valueOf(_object.graph(), item);
}

std::optional<qint64> ArchiveValues::nextInteger()
{
    const auto value = next();
    const auto* integer = value ? std::get_if<qint64>(&*value) : nullptr;
    return integer ? std::optional(*integer) : std::nullopt;
}

std::optional<QByteArray> ArchiveValues::nextBytes()
{
    const auto value = next();
    const auto* bytes = value ? std::get_if<QByteArray>(&*value) : nullptr;
    return bytes ? std::optional(*bytes) : std::nullopt;
}

ArchiveObject ArchiveValues::nextObject()
{
    const auto value = next();
    const auto* object = value ? std::get_if<ArchiveObject>(&*value) : nullptr;
    return object ? *object : ArchiveObject();
}

} // namespace ridelog
