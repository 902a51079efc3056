#include "exchange/SummaryCsvFormat.h"

#include "exchange/CsvWriter.h"
#include "exchange/RecordedValues.h"

#include <QCoreApplication>

#include <type_traits>

namespace ridelog {
namespace {

/// What the column of a summary value is called: its key, with its unit where it has one.
QString columnOf(QStringView key)
{
    static const QHash<QString, QString> units{
        {QStringLiteral("averagePulse"), QStringLiteral("_bpm")},
        {QStringLiteral("averageSpeed"), QStringLiteral("_kmh")},
        {QStringLiteral("averageMovingSpeed"), QStringLiteral("_kmh")},
        {QStringLiteral("averageTemp"), QStringLiteral("_C")},
        {QStringLiteral("maxPulse"), QStringLiteral("_bpm")},
        {QStringLiteral("maxSpeed"), QStringLiteral("_kmh")},
        {QStringLiteral("maxTemp"), QStringLiteral("_C")},
        {QStringLiteral("minTemp"), QStringLiteral("_C")},
        {QStringLiteral("elevationGain"), QStringLiteral("_m")},
        {QStringLiteral("maxClimbingDistance"), QStringLiteral("_km")},
        {QStringLiteral("avgClimbingDistance"), QStringLiteral("_km")},
        {QStringLiteral("maxDescendingDistance"), QStringLiteral("_km")},
        {QStringLiteral("maxClimbingAngle"), QStringLiteral("_deg")},
        {QStringLiteral("maxDecendingAngle"), QStringLiteral("_deg")},
    };
    return key.toString() + units.value(key.toString());
}

/// Values of pulses and temperatures that nobody has measured.
bool isMissing(QStringView key, float value, const OdoTour& tour)
{
    if (key.endsWith(u"Pulse"))
        return value == 0;
    return key.endsWith(u"Temp") && !hasTemperature(tour);
}

void writeHeader(CsvWriter& csv)
{
    for (const char* name :
         {"start", "end", "type", "title", "description", "removed", "samples", "duration_s",
          "totalDistance_km", "altitudeAtStart_m", "altitudeAtEnd_m", "maxPower_W", "avgPower_W"})
        csv.plainCell(name);
    forEachValue(CalculatedValues(), [&csv](QStringView key, const auto&) { csv.cell(columnOf(key)); });
    csv.endLine();
}

void writeTour(CsvWriter& csv, const OdoTour& tour)
{
    csv.plainCell(zonedText(tour.date()));
    csv.plainCell(zonedText(tour.endDate()));
    csv.cell(tour.type());
    csv.cell(tour.shownTitle());
    csv.cell(tour.shownDescription());
    csv.plainCell(tour.removed() ? "true" : "false");
    csv.cell(tour.tourData().size());
    csv.cell(tour.duration());
    csv.cell(tour.totalDistance());
    csv.cell(tour.altitudeAtStart());
    csv.cell(tour.altitudeAtEnd());
    csv.cell(tour.maxPower());
    csv.cell(tour.avgPower());
    forEachValue(tour.calculatedValues(), [&](QStringView key, const auto& value) {
        if (value && isMissing(key, static_cast<float>(*value), tour))
            csv.emptyCell();
        else
            csv.cell(value);
    });
    csv.endLine();
}

} // namespace

QString SummaryCsvFormat::name() const
{
    return QStringLiteral("csv-summary");
}

QString SummaryCsvFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "A table of the tours, a line for each (CSV)");
}

QString SummaryCsvFormat::ending() const
{
    return QStringLiteral("csv");
}

QString SummaryCsvFormat::suffix() const
{
    return QStringLiteral("-summary");
}

void SummaryCsvFormat::write(const Tours& tours, const ExportSource&, const ExportSink& sink) const
{
    CsvWriter csv;
    writeHeader(csv);
    for (const auto& tour : tours) {
        writeTour(csv, *tour);
        sink.write(csv.take());
        if (!sink.tourDone())
            return;
    }
}

} // namespace ridelog
