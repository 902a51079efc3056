#include "simulator/Fault.h"

#include "decode/DumpLayout.h"

#include <QRandomGenerator>

#include <algorithm>

namespace ridelog {
namespace {

constexpr quint32 seed = 9600;
constexpr qsizetype longSize = 90'000;
constexpr qsizetype garbageSize = 100;
constexpr qsizetype bytesPerFlip = 1000;

QByteArray garbage()
{
    QRandomGenerator random(seed);
    QByteArray bytes;
    while (bytes.size() < garbageSize)
        bytes += static_cast<char>(random.bounded(0x100));
    return bytes;
}

/// The signature stays, so that the dump is not refused at once.
QByteArray withFlippedBits(QByteArray dump)
{
    QRandomGenerator random(seed);
    const auto signatureSize = static_cast<qsizetype>(sizeof(DumpLayout::signature)) - 1;
    for (auto start = signatureSize; start < dump.size(); start += bytesPerFlip) {
        const auto place = start + random.bounded(std::min(bytesPerFlip, dump.size() - start));
        dump[place] = static_cast<char>(dump[place] ^ (1 << random.bounded(8)));
    }
    return dump;
}

QByteArray withErasedMemory(QByteArray dump)
{
    while (dump.size() < longSize)
        dump += QByteArray("FFFF ").left(longSize - dump.size());
    return dump;
}

} // namespace

std::optional<Fault> faultNamed(QStringView name)
{
    const auto* found = std::ranges::find(faultNames, name, &FaultName::name);
    return found == faultNames.end() ? std::nullopt : std::optional(found->fault);
}

QByteArray faultyDump(const QByteArray& dump, std::optional<Fault> fault)
{
    if (!fault)
        return dump;
    switch (*fault) {
    case Fault::silence:
    case Fault::cut:
        return dump.left(dump.size() / 2);
    case Fault::shortDump:
        return dump.left(DumpLayout::dumpSize - 1);
    case Fault::longDump:
        return withErasedMemory(dump);
    case Fault::garbage:
        return garbage() + dump;
    case Fault::noise:
        return withFlippedBits(dump);
    case Fault::twice:
        return dump + dump;
    case Fault::trickle:
    case Fault::late:
        break;
    }
    return dump;
}

} // namespace ridelog
