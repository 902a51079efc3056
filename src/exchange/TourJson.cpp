#include "exchange/TourJson.h"

namespace ridelog {
namespace {

void writeDictionary(JsonWriter& json, const OdoTour& tour)
{
    static const TourDictionary none;
    const auto& dictionary = tour.tourDataDict() ? *tour.tourDataDict() : none;
    json.key(u"tourDataDict");
    json.beginObject();
    forEachEntry(dictionary, [&json](QStringView key, const auto& value) { json.entry(key, value); });
    json.endObject();
}

void writeCalculatedValues(JsonWriter& json, const OdoTour& tour)
{
    json.key(u"calculatedValues");
    json.beginObject();
    forEachValue(tour.calculatedValues(),
                 [&json](QStringView key, const auto& value) { json.entry(key, value); });
    json.endObject();
}

void writeSeries(JsonWriter& json, const OdoTour& tour)
{
    json.key(u"series");
    json.beginArray();
    for (const auto& entry : tour.data()) {
        json.beginObject();
        forEachField(entry, [&json](QStringView name, auto value) { json.entry(name, value); });
        json.endObject();
    }
    json.endArray();
}

void writeRecords(JsonWriter& json, const OdoTour& tour)
{
    json.key(u"tourData");
    json.beginArray();
    for (const auto& record : tour.tourData())
        json.value(QStringView(QString::fromLatin1(record.toHex())));
    json.endArray();
}

} // namespace

void writeTour(JsonWriter& json, const OdoTour& tour, int number, TourJsonParts parts)
{
    json.beginObject();
    json.entry(u"number", number);
    json.entry(u"type", tour.type());
    json.entry(u"title", tour.title());
    json.entry(u"description", tour.tourDescription().text());
    json.entry(u"removed", tour.removed());
    json.entry(u"date", tour.date());
    json.entry(u"endDate", tour.endDate());
    writeDictionary(json, tour);
    json.entry(u"samples", static_cast<qint64>(tour.tourData().size()));
    json.entry(u"duration", tour.duration());
    json.entry(u"hours", tour.hours());
    json.entry(u"minutes", tour.minutes());
    json.entry(u"totalDistance", tour.totalDistance());
    json.entry(u"altitudeAtEnd", tour.altitudeAtEnd());
    json.entry(u"maxPower", tour.maxPower());
    json.entry(u"avgPower", tour.avgPower());
    writeCalculatedValues(json, tour);
    if (parts.series)
        writeSeries(json, tour);
    if (parts.raw)
        writeRecords(json, tour);
    json.endObject();
}

void beginTourList(JsonWriter& json, const std::vector<std::pair<QString, std::int32_t>>& generalData)
{
    json.beginObject();
    json.key(u"generalData");
    json.beginObject();
    for (const auto& [name, number] : generalData)
        json.entry(name, number);
    json.endObject();
    json.key(u"tours");
    json.beginArray();
}

void endTourList(JsonWriter& json)
{
    json.endArray();
    json.endObject();
}

} // namespace ridelog
