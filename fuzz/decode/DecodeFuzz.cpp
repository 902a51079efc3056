// Any bytes as a raw dump: they decode or are refused, every summary value can be asked for, and nothing is read
// beyond them. Short inputs are taken for the start of the record area, so that the fuzzer need not invent the
// 81,930 bytes around it.

#include "decode/OdoData.h"
#include "exchange/TourJson.h"
#include "platform/Log.h"

#include <QBuffer>

#include <cstdlib>

using namespace ridelog;

namespace {

QByteArray dumpOf(const QByteArray& bytes)
{
    if (bytes.size() >= DumpLayout::dumpSize)
        return bytes;
    QByteArray dump(DumpLayout::dumpSize, 'F');
    dump.replace(0, 4, DumpLayout::signature);
    return dump.replace(DumpLayout::recordAreaOffset, bytes.size(), bytes).left(DumpLayout::dumpSize);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    setLogLevel(LogLevel::none);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const auto now = CalendarDate::fromFields(2007, 12, 31, 12, 0, 0, QTimeZone("Europe/Berlin"));
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const auto decoded = OdoData::initWithData(dumpOf(input), now);

    QBuffer sink;
    sink.open(QIODevice::WriteOnly);
    JsonWriter json(sink);
    std::size_t samples = 0;
    for (const auto& tour : decoded.toursArray()) {
        writeTour(json, *tour, 1, {.series = tour->data().size() < 100});
        samples += tour->tourData().size();
    }
    // Two refusals in a row can make two records of 42 characters, never one record more.
    if (samples > std::size_t{DumpLayout::recordSlots + 1} * DumpLayout::samplesPerRecord)
        std::abort();
    return 0;
}
