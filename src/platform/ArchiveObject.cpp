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
ArchiveValue valueOf(const std::shared_ptr<const ArchiveGraph>& graph, ArchiveGraph::Value value)
{
    switch (value.tag) {
    case Tag::nil:
        break;
    case Tag::byte:
    case Tag::integer:
        return value.value;
    case Tag::float32:
    case Tag::float64:
        return ArchiveGraph::realOf(value);
    case Tag::object:
        return ArchiveObject(graph, static_cast<std::uint32_t>(value.value));
    case Tag::classRef:
        return &graph->classes[static_cast<std::size_t>(value.value)];
    case Tag::cString:
    case Tag::atom:
        return graph->string(value.value);
    case Tag::text:
    case Tag::block:
        return graph->bytes(value).toByteArray();
    }
    return std::monostate();
}

std::optional<double> realOf(const ArchiveValue& value)
{
    if (const auto* whole = std::get_if<qint64>(&value))
        return static_cast<double>(*whole);
    const auto* real = std::get_if<double>(&value);
    return real ? std::optional(*real) : std::nullopt;
}

std::optional<qint64> integerAt(const std::vector<ArchiveValue>& values, std::size_t index)
{
    const auto* integer = index < values.size() ? std::get_if<qint64>(&values[index]) : nullptr;
    return integer ? std::optional(*integer) : std::nullopt;
}

ArchiveObject objectAt(const std::vector<ArchiveValue>& values, std::size_t index)
{
    const auto* object = index < values.size() ? std::get_if<ArchiveObject>(&values[index]) : nullptr;
    return object ? *object : ArchiveObject();
}

/// Texts of so many bytes are decoded once, for any number of objects may refer to one.
constexpr qsizetype longText = 1024;

/// The zone of a date's values: that of the first zone object among them, if its name is known.
QTimeZone zoneIn(const std::vector<ArchiveValue>& values)
{
    for (const auto& value : values) {
        const auto* object = std::get_if<ArchiveObject>(&value);
        if (!object || !object->objectClass() ||
            !(object->isKindOf("NSTimeZone") || object->objectClass()->name.endsWith("TimeZone")))
            continue;
        if (object->isKindOf("NSLocalTimeZone"))
            break;
        for (const auto& inZone : object->values()) {
            const auto* name = std::get_if<ArchiveObject>(&inZone);
            if (const auto text = name ? name->toText() : std::nullopt) {
                const auto zone = archivedTimeZone(*text);
                return zone.isValid() ? zone : CalendarDate::localTimeZone();
            }
        }
        break;
    }
    return CalendarDate::localTimeZone();
}

} // namespace

const ArchiveClass* ArchiveObject::objectClass() const
{
    return _graph ? _graph->objects[_index].objectClass : nullptr;
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
    const auto& object = _graph->objects[_index];
    for (std::uint32_t group = 0; group < object.groupCount; ++group)
        all.push_back(_graph->string(_graph->groups[object.firstGroup + group].types));
    return all;
}

std::vector<ArchiveValue> ArchiveObject::values() const
{
    std::vector<ArchiveValue> all;
    if (isNil())
        return all;
    const auto& object = _graph->objects[_index];
    std::size_t end = object.firstValue;
    for (std::uint32_t group = 0; group < object.groupCount; ++group)
        end += _graph->groups[object.firstGroup + group].valueCount;
    all.reserve(end - object.firstValue);
    for (std::size_t value = object.firstValue; value < end; ++value)
        all.push_back(valueOf(_graph, _graph->values[value]));
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
        if (left.isNil() || right.isNil() || left.typeStrings() != right.typeStrings())
            return false;
        const auto* leftClass = left.objectClass();
        const auto* rightClass = right.objectClass();
        if (!leftClass != !rightClass || (leftClass && !(*leftClass == *rightClass)))
            return false;
        const auto leftValues = left.values();
        const auto rightValues = right.values();
        const auto areEqual = [&](const ArchiveValue& one, const ArchiveValue& two) {
            if (one.index() != two.index())
                return false;
            if (const auto* object = std::get_if<ArchiveObject>(&one)) {
                pairs.emplace_back(*object, std::get<ArchiveObject>(two));
                return true;
            }
            if (const auto* namedClass = std::get_if<const ArchiveClass*>(&one))
                return **namedClass == *std::get<const ArchiveClass*>(two);
            if (const auto* real = std::get_if<double>(&one))
                return std::bit_cast<qint64>(*real) == std::bit_cast<qint64>(std::get<double>(two));
            return one == two;
        };
        if (!std::equal(leftValues.begin(), leftValues.end(), rightValues.begin(), rightValues.end(),
                        areEqual))
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
    const auto all = values();
    const auto* bytes = all.empty() ? nullptr : std::get_if<QByteArray>(&all.front());
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
    const auto types = typeStrings();
    const auto all = values();
    if (all.size() < 2 || types.size() < 2 || types[1].size() != 1)
        return std::nullopt;
    const char type = types[1].front();
    const bool isReal = type == 'f' || type == 'd';
    if (const auto real = realOf(all[1]); real && isReal)
        return ArchiveNumber(type, *real);
    const auto integer = integerAt(all, 1);
    return integer ? std::optional(ArchiveNumber(type, *integer)) : std::nullopt;
}

std::optional<QByteArray> ArchiveObject::toData() const
{
    const auto all = isKindOf("NSData") ? values() : std::vector<ArchiveValue>();
    const auto count = integerAt(all, 0);
    if (!count)
        return std::nullopt;
    const auto* bytes = all.size() > 1 ? std::get_if<QByteArray>(&all[1]) : nullptr;
    const auto data = bytes ? *bytes : QByteArray("");
    return data.size() == *count ? std::optional(data) : std::nullopt;
}

std::optional<std::vector<ArchiveObject>> ArchiveObject::toItems() const
{
    const auto all = isKindOf("NSArray") || isKindOf("NSSet") ? values() : std::vector<ArchiveValue>();
    const auto count = integerAt(all, 0);
    if (!count || *count != static_cast<qint64>(all.size()) - 1)
        return std::nullopt;
    std::vector<ArchiveObject> items;
    for (std::size_t index = 1; index < all.size(); ++index)
        items.push_back(objectAt(all, index));
    return items;
}

std::optional<std::vector<ArchiveObject::Entry>> ArchiveObject::toEntries() const
{
    const auto all = isKindOf("NSDictionary") ? values() : std::vector<ArchiveValue>();
    const auto count = integerAt(all, 0);
    if (!count || all.size() % 2 == 0 || *count != static_cast<qint64>(all.size() / 2))
        return std::nullopt;
    std::vector<Entry> entries;
    for (std::size_t index = 1; index < all.size(); index += 2)
        entries.emplace_back(objectAt(all, index), objectAt(all, index + 1));
    return entries;
}

ArchiveObject ArchiveObject::valueForKey(QStringView key) const
{
    const auto entries = toEntries();
    if (!entries)
        return {};
    const auto found = std::find_if(entries->begin(), entries->end(),
                                    [&](const Entry& entry) { return entry.first.toText() == key; });
    return found == entries->end() ? ArchiveObject() : found->second;
}

std::optional<QDateTime> ArchiveObject::toDate() const
{
    if (!isKindOf("NSDate"))
        return std::nullopt;
    const auto all = values();
    const auto seconds = all.empty() ? std::nullopt : realOf(all.front());
    // From the year 1 to the year 9999: anything else is damage.
    if (!seconds || !(*seconds > -63'113'904'000.0 && *seconds < 252'423'993'600.0))
        return std::nullopt;
    static const auto reference = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    return QDateTime::fromMSecsSinceEpoch(reference + std::llround(*seconds * 1000), zoneIn(all));
}

std::optional<QString> ArchiveObject::toUrl() const
{
    // A base may have a base in turn; no sensible address goes far there.
    constexpr int furthest = 8;
    QUrl url;
    auto part = *this;
    for (int step = 0; step < furthest && part.isKindOf("NSURL"); ++step) {
        const auto all = part.values();
        const auto hasBase = integerAt(all, 0);
        const auto text = objectAt(all, hasBase && *hasBase != 0 ? 2 : 1).toText();
        if (!text)
            return std::nullopt;
        url = step == 0 ? QUrl(*text) : QUrl(*text).resolved(url);
        if (*hasBase == 0)
            return step == 0 ? *text : url.toString();
        part = objectAt(all, 1);
    }
    return std::nullopt;
}

std::optional<ArchivedColour> ArchiveObject::toColour() const
{
    const auto all = isKindOf("NSColor") ? values() : std::vector<ArchiveValue>();
    const auto kind = integerAt(all, 0);
    std::vector<float> parts;
    for (std::size_t index = 1; index < all.size(); ++index) {
        const auto part = realOf(all[index]);
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

} // namespace ridelog
