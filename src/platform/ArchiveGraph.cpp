#include "platform/ArchiveGraph.h"

namespace ridelog {
namespace {

// Numbers, most of which are small, lie in as few groups of 7 bits as hold them, the lowest first and all but
// the last with the 8th bit set; the sign is the lowest bit.

void addNumber(QByteArray& bytes, qint64 number)
{
    auto rest = static_cast<quint64>(number) << 1 ^ static_cast<quint64>(number >> 63);
    for (; rest >= 0x80; rest >>= 7)
        bytes += static_cast<char>(rest | 0x80);
    bytes += static_cast<char>(rest);
}

qint64 takeNumber(const QByteArray& bytes, std::uint32_t& place)
{
    const auto* data = bytes.constData();
    quint64 number = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<std::uint8_t>(data[place++]);
        number |= quint64{byte & 0x7FU} << shift;
        if (byte < 0x80)
            return static_cast<qint64>(number >> 1 ^ (0 - (number & 1)));
    }
}

bool hasBytes(ArchiveGraph::Tag tag)
{
    return tag == ArchiveGraph::Tag::text || tag == ArchiveGraph::Tag::block;
}

constexpr qint64 noClass = -1;

} // namespace

std::uint32_t ArchiveGraph::addObject()
{
    objects.emplace_back();
    return static_cast<std::uint32_t>(objects.size() - 1);
}

qsizetype ArchiveGraph::begin(std::uint32_t object, std::optional<std::uint32_t> classIndex)
{
    const auto before = bodies.size();
    objects[object].begin = static_cast<std::uint32_t>(before);
    addNumber(bodies, classIndex ? qint64{*classIndex} : noClass);
    return bodies.size() - before;
}

qsizetype ArchiveGraph::add(const Value& value)
{
    const auto before = bodies.size();
    bodies += static_cast<char>(value.tag);
    if (hasBytes(value.tag)) {
        addNumber(bodies, value.bytes.size());
        bodies += value.bytes;
    } else if (value.tag != Tag::nil) {
        addNumber(bodies, value.value);
    }
    return bodies.size() - before;
}

void ArchiveGraph::end(std::uint32_t object, std::uint32_t valueCount)
{
    objects[object].end = static_cast<std::uint32_t>(bodies.size());
    objects[object].valueCount = valueCount;
}

const ArchiveClass* ArchiveGraph::classOf(std::uint32_t object) const
{
    auto place = objects[object].begin;
    const auto index = takeNumber(bodies, place);
    return index == noClass ? nullptr : &classes[static_cast<std::size_t>(index)];
}

std::uint32_t ArchiveGraph::first(std::uint32_t object) const
{
    auto place = objects[object].begin;
    takeNumber(bodies, place);
    return place;
}

ArchiveGraph::Value ArchiveGraph::next(std::uint32_t& place) const
{
    const auto tag = static_cast<Tag>(bodies[place++]);
    if (tag == Tag::nil)
        return {tag};
    const auto number = takeNumber(bodies, place);
    if (tag == Tag::inner)
        place = objects[static_cast<std::size_t>(number)].end;
    if (!hasBytes(tag))
        return {tag, number};
    const auto bytes = QByteArrayView(bodies).sliced(place, number);
    place += static_cast<std::uint32_t>(number);
    return {tag, number, bytes};
}

} // namespace ridelog
