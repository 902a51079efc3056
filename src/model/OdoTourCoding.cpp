#include "model/OdoTour.h"
#include "model/TourLog.h"
#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"

#include <QCoreApplication>

#include <algorithm>

namespace ridelog {
namespace {

constexpr int storedVersion = 6;
constexpr char tourClassName[] = "OdoTour";
/// A tour takes itself and what was recorded, its place in lists, and small blocks: the first entry of its
/// series, date, texts.
constexpr qint64 costOfTour =
    sizeof(OdoTour) + sizeof(std::optional<TourDictionary>) + 13 * TypedStreamReader::costOfBlock;
const QString samplesKey = QStringLiteral("tourData");

const ArchiveClass& tourClass()
{
    static const ArchiveClass stored{tourClassName, storedVersion, &ArchiveClasses::object};
    return stored;
}

bool isNext(TypedStreamReader& reader, const char* className)
{
    const auto* next = reader.nextClass();
    return next && next->isKindOf(className);
}

/// Refuses the archive unless an object of the class comes next, or nil: what is taken for another thing, or
/// for nothing, would be lost when the tour is stored again.
void expect(TypedStreamReader& reader, const char* className, const char* problem)
{
    const auto* next = reader.nextClass();
    if (reader.nextType() != '@' || (next && !next->isKindOf(className)))
        reader.fail(QCoreApplication::translate("OdoTour", problem));
}

bool readField(TypedStreamReader& reader, std::optional<QString>& field)
{
    if (field || !isNext(reader, "NSString"))
        return false;
    field = reader.readString();
    return true;
}

bool readField(TypedStreamReader& reader, std::optional<std::int32_t>& field)
{
    if (field || !isNext(reader, "NSNumber"))
        return false;
    if (const auto number = reader.readNumber()) {
        field = number->toInt32();
        if (!field)
            reader.fail(QCoreApplication::translate("OdoTour",
                                                    "a start value of a tour is no whole number of 32 bits"));
    }
    return true;
}

std::optional<TourDictionary> readDictionary(TypedStreamReader& reader)
{
    TourDictionary dictionary;
    const bool isDictionary = reader.readDictionary([&](const QString& key) {
        if (key == samplesKey && dictionary.tourData.empty() && isNext(reader, "NSArray")) {
            dictionary.tourData = reader.readRecords<DataRect>().value_or(std::vector<DataRect>());
            reader.charge(qint64{sizeof(SeriesEntry)} * static_cast<qint64>(dictionary.tourData.size()));
            return;
        }
        bool taken = false;
        forEachEntry(dictionary, [&](QStringView name, auto& field) {
            if (name == key)
                taken = readField(reader, field);
        });
        if (!taken) {
            reader.charge(TypedStreamReader::costOfGrowth * sizeof dictionary.otherEntries.back());
            dictionary.otherEntries.emplace_back(key, reader.readObject());
        }
    });
    return isDictionary ? std::optional(std::move(dictionary)) : std::nullopt;
}

void write(TypedStreamWriter& writer, const QString& text)
{
    writer.writeConstant(text);
}

void write(TypedStreamWriter& writer, std::int32_t number)
{
    writer.writeNumber(ArchiveNumber(number));
}

void writeDictionary(TypedStreamWriter& writer, const TourDictionary& dictionary)
{
    auto count = static_cast<qsizetype>(dictionary.otherEntries.size()) + 1;
    forEachEntry(dictionary, [&count](QStringView, const auto& value) { count += value.has_value(); });
    writer.beginDictionary(count);
    forEachEntry(dictionary, [&writer](QStringView name, const auto& value) {
        if (!value)
            return;
        writer.writeConstant(name.toString());
        write(writer, *value);
    });
    writer.writeConstant(samplesKey);
    writer.writeRecords(std::span<const DataRect>(dictionary.tourData));
    for (const auto& [key, value] : dictionary.otherEntries) {
        writer.writeConstant(key);
        writer.writeObject(value);
    }
    writer.endObject();
}

} // namespace

std::shared_ptr<OdoTour> OdoTour::initWithCoder(TypedStreamReader& reader, const QDateTime& now)
{
    const auto* storedClass = reader.openObject();
    const auto version = storedClass ? storedClass->versionOf(tourClassName) : std::nullopt;
    if (!version) {
        reader.fail(QCoreApplication::translate("OdoTour", "a tour is missing"));
        return nullptr;
    }
    qCDebug(lcTour, "Version %d", *version);
    if (*version < 0 || *version == 5 || *version > storedVersion) {
        reader.fail(QCoreApplication::translate(
                        "OdoTour", "a tour is stored in version %1, which this program does not know")
                        .arg(*version));
        return nullptr;
    }

    reader.charge(costOfTour);
    auto tour = make();
    tour->_title = untitled();
    tour->_description = StyledText(untitled());
    tour->_dataIsBigEndian = true;
    expect(reader, "NSDictionary",
           QT_TRANSLATE_NOOP("OdoTour", "the recording of a tour is missing or damaged"));
    auto tourDict = readDictionary(reader);
    if (*version >= 2) {
        expect(reader, "NSString", QT_TRANSLATE_NOOP("OdoTour", "the title of a tour is missing or damaged"));
        tour->_title = reader.readString().value_or(untitled());
        if (const auto description = StyledText::fromArchive(reader.readObject()))
            tour->_description = *description;
        else
            reader.fail(
                QCoreApplication::translate("OdoTour", "the description of a tour is missing or damaged"));
    }
    if (*version >= 3) {
        expect(reader, "NSData",
               QT_TRANSLATE_NOOP("OdoTour", "the removed mark of a tour is missing or damaged"));
        const auto mark = reader.readData().value_or(QByteArrayView());
        tour->_removed = !mark.isEmpty() && mark.front() != 0;
    }
    if (*version >= 4) {
        expect(reader, "NSDate", QT_TRANSLATE_NOOP("OdoTour", "the start of a tour is missing or damaged"));
        tour->_date = reader.readObject().toDate().value_or(QDateTime());
    }
    if (*version >= 6) {
        if (const auto isBigEndian = reader.readNumber())
            tour->_dataIsBigEndian = isBigEndian->toBool();
        else
            reader.fail(
                QCoreApplication::translate("OdoTour", "the byte order of a tour is missing or damaged"));
    }
    reader.closeObject();
    if (reader.failed())
        return nullptr;

    tour->_convertDataFromBigEndian(tourDict);
    tour->setTourDataDict(std::move(tourDict));
    tour->calculateAllValues(now);
    return tour;
}

void OdoTour::_convertDataFromBigEndian(std::optional<TourDictionary>& tourDict)
{
    if (_dataIsBigEndian && tourDict)
        convertFromBigEndian(tourDict->tourData);
    _dataIsBigEndian = false;
}

void OdoTour::encodeWithCoder(TypedStreamWriter& writer) const
{
    static int encodings = 0;
    qCDebug(lcTour, "encode %d for version %d", ++encodings, storedVersion);
    stored().encodeWithCoder(writer);
}

StoredTour OdoTour::stored() const
{
    return {.tourDataDict = _tourDataDict,
            .title = _title,
            .description = _description,
            .removed = _removed,
            .date = _date,
            .dataIsBigEndian = _dataIsBigEndian};
}

void StoredTour::encodeWithCoder(TypedStreamWriter& writer) const
{
    writer.beginObject(tourClass());
    if (*tourDataDict)
        writeDictionary(writer, **tourDataDict);
    else
        writer.writeNil();
    writer.writeString(title);
    description.write(writer);
    const char mark = removed ? 1 : 0;
    writer.writeData(QByteArrayView(&mark, 1));
    writer.writeDate(date);
    writer.writeNumber(ArchiveNumber(dataIsBigEndian));
    writer.endObject();
}

} // namespace ridelog
