#include "cli/TourSource.h"

#include "decode/OdoData.h"
#include "library/GeneralDataOrder.h"
#include "library/MyDocument.h"

namespace ridelog {
namespace {

TourSource readDocument(const QString& path, const QDateTime& now)
{
    MyDocument document;
    if (const auto error = document.openForReading(path, now))
        return {.kind = TourSource::Kind::document, .refusal = *error};
    return {.kind = TourSource::Kind::document,
            .generalData = inOrderOfTheDevice(document.generalData()),
            .tours = document.toursArray()};
}

TourSource readDump(const QString& path, const QDateTime& now)
{
    const auto dump = OdoData::initWithFile(path, now);
    return {.kind = TourSource::Kind::dump,
            .generalData = inOrderOfTheDevice(dump.generalDataDict()),
            .tours = dump.toursArray(),
            .refusal = dump.refusal()};
}

} // namespace

TourSource TourSource::read(const QString& path, const QDateTime& now)
{
    return MyDocument::isDocumentFile(path) ? readDocument(path, now) : readDump(path, now);
}

} // namespace ridelog
