// Any bytes as a document: they are refused, and then nothing was kept of them, or opened; then the document
// is stored, comes back and is stored as the same again, and every value of its tours can be asked for.

#include "library/MyDocument.h"
#include "platform/Log.h"

#include <cstdlib>

using namespace ridelog;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    setLogLevel(LogLevel::none);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const auto now = CalendarDate::fromFields(2007, 12, 31, 12, 0, 0, QTimeZone("Europe/Berlin"));
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    MyDocument document;
    if (!document.loadDataRepresentation(input, MyDocument::typeName, now)) {
        if (!document.toursArray().empty() || document.refusal().isEmpty())
            std::abort();
        return 0;
    }
    for (const auto& tour : document.toursArray()) {
        tour->calculatedValues();
        tour->description();
        tour->endDate();
    }
    const auto stored = document.dataRepresentationOfType(MyDocument::typeName);
    MyDocument again;
    if (!again.loadDataRepresentation(stored, MyDocument::typeName, now) ||
        again.dataRepresentationOfType(MyDocument::typeName) != stored)
        std::abort();
    MyDocument merged;
    merged.addNewToursFromArray(document.toursArray());
    if (merged.addNewToursFromArray(again.toursArray()) != 0)
        std::abort();
    return 0;
}
