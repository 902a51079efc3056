// Any bytes as a raw dump: they decode or are refused, every summary value can be asked for, and nothing is
// read beyond them. The first byte says what the others are: a whole file, or the start of the record area of
// a dump that is just long enough or longer, so that the fuzzer need not invent the 81,930 bytes around it.

#include "decode/OdoData.h"
#include "exchange/TourJson.h"
#include "platform/Log.h"

#include <QBuffer>

#include <cstdlib>

using namespace ridelog;

namespace {

QByteArray dumpOf(const QByteArray& input)
{
    const auto kind = input.isEmpty() ? 0 : input.front() % 3;
    const auto bytes = input.mid(1);
    if (kind == 0)
        return bytes;
    QByteArray dump(kind == 1 ? DumpLayout::dumpSize : DumpLayout::dumpSize + DumpLayout::recordSize, 'F');
    dump.replace(0, 4, DumpLayout::signature);
    return dump.replace(DumpLayout::recordAreaOffset, bytes.size(), bytes).left(dump.size());
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
    // Every record that stores samples takes its 40 characters; a longer dump may hold one record more.
    if (samples > std::size_t{DumpLayout::recordSlots + 1} * DumpLayout::samplesPerRecord)
        std::abort();
    return 0;
}
