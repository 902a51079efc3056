#include "exchange/SamplesCsvFormat.h"

#include "exchange/CsvWriter.h"
#include "exchange/RecordedValues.h"

#include <QCoreApplication>

namespace ridelog {
namespace {

/// The columns; what a tour has not recorded of them is empty in all its lines.
void writeHeader(CsvWriter& csv)
{
    for (const char* name : {"tourStart", "date", "time_s", "altitude_m", "distance_km", "pulse_bpm",
                             "power_W", "speed_kmh", "climbingPercentage", "temperature_C", "cadence_rpm"})
        csv.plainCell(name);
    csv.endLine();
}

void writeSamples(CsvWriter& csv, const OdoTour& tour)
{
    const auto start = zonedText(tour.date());
    ZonedTexts dates(tour);
    const bool temperature = hasTemperature(tour);
    const bool cadence = hasCadence(tour);
    for (const auto& entry : tour.data()) {
        csv.plainCell(start);
        csv.plainCell(dates.textOf(entry));
        csv.cell(entry.time);
        csv.cell(entry.altitude);
        csv.cell(entry.distance);
        csv.cell(recordedPulse(entry.pulse));
        csv.cell(entry.power);
        csv.cell(entry.speed);
        csv.cell(entry.climbingPercentage);
        csv.cell(temperature ? std::optional(entry.temperature) : std::nullopt);
        csv.cell(cadence ? std::optional(entry.cadence) : std::nullopt);
        csv.endLine();
    }
}

} // namespace

QString SamplesCsvFormat::name() const
{
    return QStringLiteral("csv");
}

QString SamplesCsvFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "All samples as a table (CSV)");
}

QString SamplesCsvFormat::ending() const
{
    return QStringLiteral("csv");
}

void SamplesCsvFormat::write(const Tours& tours, const ExportSource&, const ExportSink& sink) const
{
    CsvWriter csv;
    writeHeader(csv);
    for (const auto& tour : tours) {
        writeSamples(csv, *tour);
        sink.write(csv.take());
        if (!sink.tourDone())
            return;
    }
}

} // namespace ridelog
