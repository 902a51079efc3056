#include "library/MyDocument.h"

#include "library/LibraryLog.h"
#include "platform/Defaults.h"
#include "platform/TypedStreamReader.h"
#include "platform/TypedStreamWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace ridelog {

Q_LOGGING_CATEGORY(lcLibrary, "ridelog.library")

namespace {

const QString generalDataKey = QStringLiteral("generalData");
const QString toursArrayKey = QStringLiteral("toursArray");

/// A document of five million samples need not stand in memory twice: it is passed on in such pieces.
constexpr qsizetype pieceSize = 1 << 20;

/// An entry that is kept goes to a growing list; a number goes to a map, which takes as much.
constexpr qint64 costOfEntry = TypedStreamReader::costOfGrowth * sizeof(std::pair<QString, ArchiveObject>);

void addTo(GeneralData& numbers, const QString& key, const ArchiveObject& value,
           std::vector<std::pair<QString, ArchiveObject>>& otherEntries)
{
    const auto number = value.toNumber();
    const auto whole = number ? number->toInt32() : std::nullopt;
    if (whole && !numbers.contains(key))
        numbers.insert(key, *whole);
    else
        otherEntries.emplace_back(key, value);
}

void writeEntries(TypedStreamWriter& writer, const std::vector<std::pair<QString, ArchiveObject>>& entries)
{
    for (const auto& [key, value] : entries) {
        writer.writeConstant(key);
        writer.writeObject(value);
    }
}

void encode(const std::shared_ptr<OdoTour>& tour, TypedStreamWriter& writer)
{
    tour->encodeWithCoder(writer);
}

void encode(const StoredTour& tour, TypedStreamWriter& writer)
{
    tour.encodeWithCoder(writer);
}

} // namespace

/// What a file holds, before a document takes it over.
struct MyDocument::Content {
    std::optional<Tours> tours;
    std::optional<StoredGeneralData> generalData;
    KeptEntries otherEntries;

    static std::optional<Tours> readTours(TypedStreamReader& reader, const QDateTime& now)
    {
        Tours tours;
        const bool isList = reader.readArray([&](qsizetype) {
            if (auto tour = OdoTour::initWithCoder(reader, now))
                tours.push_back(std::move(tour));
        });
        if (!isList)
            reader.fail(QCoreApplication::translate("MyDocument", "\"%1\" is no list").arg(toursArrayKey));
        return tours;
    }

    static std::optional<StoredGeneralData> readGeneralData(TypedStreamReader& reader)
    {
        StoredGeneralData generalData;
        const bool isDictionary = reader.readDictionary([&](const QString& key) {
            reader.charge(costOfEntry);
            addTo(generalData.numbers, key, reader.readObject(), generalData.otherEntries);
        });
        if (!isDictionary)
            reader.fail(
                QCoreApplication::translate("MyDocument", "\"%1\" is no dictionary").arg(generalDataKey));
        return generalData;
    }

    void read(TypedStreamReader& reader, const QDateTime& now)
    {
        const bool isDictionary = reader.readDictionary([&](const QString& key) {
            reader.charge(costOfEntry);
            if (key == toursArrayKey && !tours)
                tours = readTours(reader, now);
            else if (key == generalDataKey && !generalData)
                generalData = readGeneralData(reader);
            else
                otherEntries.emplace_back(key, reader.readObject());
        });
        if (!isDictionary)
            reader.fail(QCoreApplication::translate("MyDocument", "an archive, but not of a tour library"));
        for (const auto& [key, found] :
             {std::pair(toursArrayKey, tours.has_value()), {generalDataKey, generalData.has_value()}}) {
            if (!found)
                reader.fail(QCoreApplication::translate("MyDocument", "not a tour library: \"%1\" is missing")
                                .arg(key));
        }
    }
};

MyDocument::MyDocument(Defaults* defaults, QObject* parent) : QObject(parent), _defaults(defaults) {}

MyDocument::~MyDocument()
{
    if (_defaults)
        _defaults->synchronize();
}

void MyDocument::setToursArray(Tours tours)
{
    qCDebug(lcLibrary, "setToursArray");
    for (const auto& tour : _toursArray)
        detach(*tour);
    _toursArray = std::move(tours);
    qCDebug(lcLibrary, "undoManager %p", static_cast<void*>(&_undoManager));
    for (const auto& tour : _toursArray)
        attach(*tour);
    Q_EMIT toursArrayChanged();
}

void MyDocument::attach(OdoTour& tour)
{
    tour.setUndo(&_undoManager);
    tour.setChanges(&_tourChanges);
}

void MyDocument::detach(OdoTour& tour)
{
    tour.setUndo(nullptr);
    tour.setChanges(nullptr);
}

void MyDocument::setGeneralData(const GeneralData& generalData)
{
    setStoredGeneralData({generalData, {}});
}

void MyDocument::setStoredGeneralData(StoredGeneralData generalData)
{
    qCDebug(lcLibrary, "setGeneralData");
    _generalData = std::move(generalData);
}

bool MyDocument::isDocument(QByteArrayView firstBytes)
{
    return TypedStreamReader::isTypedStream(firstBytes);
}

bool MyDocument::isDocumentFile(const QString& path)
{
    constexpr qint64 enoughToTell = 64;
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isDocument(file.read(enoughToTell));
}

QByteArray MyDocument::dataRepresentationOfType(const QString& /*type*/) const
{
    QByteArray all;
    write([&all](QByteArrayView bytes) { all += bytes; });
    return all;
}

void MyDocument::write(const ByteSink& sink) const
{
    write(sink, _generalData, _toursArray, _otherEntries);
}

ByteSource MyDocument::storedForm() const
{
    std::vector<StoredTour> tours;
    tours.reserve(_toursArray.size());
    for (const auto& tour : _toursArray)
        tours.push_back(tour->stored());
    return [generalData = _generalData, otherEntries = _otherEntries,
            tours = std::make_shared<const std::vector<StoredTour>>(std::move(tours))](const ByteSink& sink) {
        write(sink, generalData, *tours, otherEntries);
    };
}

template <typename Tour>
void MyDocument::write(const ByteSink& sink, const StoredGeneralData& generalData,
                       const std::vector<Tour>& tours, const KeptEntries& otherEntries)
{
    TypedStreamWriter writer;
    writer.beginDictionary(2 + static_cast<qsizetype>(otherEntries.size()));

    writer.writeConstant(generalDataKey);
    const auto& numbers = generalData.numbers;
    writer.beginDictionary(numbers.size() + static_cast<qsizetype>(generalData.otherEntries.size()));
    for (auto entry = numbers.begin(); entry != numbers.end(); ++entry) {
        writer.writeConstant(entry.key());
        writer.writeNumber(ArchiveNumber(*entry));
    }
    writeEntries(writer, generalData.otherEntries);
    writer.endObject();

    writer.writeConstant(toursArrayKey);
    writer.beginArray(static_cast<qsizetype>(tours.size()));
    for (const auto& tour : tours) {
        encode(tour, writer);
        if (writer.bytes().size() < pieceSize)
            continue;
        sink(writer.bytes());
        writer.forgetBytes();
    }
    writer.endObject();

    writeEntries(writer, otherEntries);
    writer.endObject();
    sink(writer.bytes());
}

bool MyDocument::loadDataRepresentation(const QByteArray& data, const QString& ofType, const QDateTime& now)
{
    qCDebug(lcLibrary, "About to read data of type: %s", qUtf8Printable(ofType));
    TypedStreamReader reader(data);
    Content content;
    content.read(reader, now);
    if (reader.failed()) {
        _refusal = QCoreApplication::translate("MyDocument", "not a readable document: %1")
                       .arg(reader.error()->text());
        return false;
    }
    _refusal.clear();
    setToursArray(*std::move(content.tours));
    setStoredGeneralData(*std::move(content.generalData));
    _otherEntries = std::move(content.otherEntries);
    return true;
}

} // namespace ridelog
