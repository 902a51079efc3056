#include "cli/InspectCommand.h"

#include "cli/TextTable.h"
#include "decode/OdoData.h"
#include "exchange/TourJson.h"
#include "format/ReadableUnits.h"

#include <QCommandLineParser>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace ridelog {
namespace {

const QString jsonName = QStringLiteral("json");
const QString seriesName = QStringLiteral("series");
const QString rawName = QStringLiteral("raw");

ExitStatus printJson(const OdoData& dump, TourJsonParts parts)
{
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return fail(QStringLiteral("standard output"), output.errorString());
    JsonWriter json(output);
    json.beginObject();
    json.key(u"generalData");
    json.beginObject();
    for (const auto& field : DumpLayout::generalDataFields)
        json.entry(field.name, dump.generalDataDict().value(field.name.toString()));
    json.endObject();
    json.key(u"tours");
    json.beginArray();
    int number = 0;
    for (const auto& tour : dump.toursArray())
        writeTour(json, *tour, ++number, parts);
    json.endArray();
    json.endObject();
    if (!json.finish() || !output.flush())
        return fail(QStringLiteral("standard output"), output.errorString());
    return ExitStatus::done;
}

/// The general data in two columns, down the first and then down the second.
QString generalDataText(const GeneralData& generalData)
{
    const auto& fields = DumpLayout::generalDataFields;
    const auto rows = (fields.size() + 1) / 2;
    TextTable table({{.align = TextTable::Align::left},
                     {.align = TextTable::Align::right},
                     {.align = TextTable::Align::left},
                     {.align = TextTable::Align::right}});
    for (std::size_t row = 0; row < rows; ++row) {
        QStringList cells;
        for (auto field = row; field < fields.size(); field += rows) {
            const auto name = fields[field].name.toString();
            cells << name << QString::number(generalData.value(name));
        }
        table.addRow(cells);
    }
    return table.text();
}

/// A tour that goes on at the front of the ring holds more samples than its values are made of yet.
bool isStitched(const OdoTour& tour)
{
    return tour.data().size() <= tour.tourDataDict()->tourData.size();
}

QString toursText(const OdoData& dump, const ReadableUnits& units)
{
    using Column = TextTable::Column;
    constexpr auto left = TextTable::Align::left;
    TextTable table({Column{QStringLiteral("#")}, Column{QStringLiteral("Date"), left},
                     Column{QStringLiteral("Type"), left}, Column{QStringLiteral("Samples")},
                     Column{units.distanceUnit()}, Column{QStringLiteral("h:min")},
                     Column{QStringLiteral("Gain ") + units.altitudeUnit()}, Column{QStringLiteral("Climbs")},
                     Column{QStringLiteral("Avg ") + units.speedUnit()},
                     Column{QStringLiteral("Max ") + units.speedUnit()}, Column{QStringLiteral("Avg pulse")},
                     Column{QStringLiteral("Max pulse")}, Column{QStringLiteral("Avg W")}});
    int number = 0;
    for (const auto& tour : dump.toursArray()) {
        table.addRow(
            {QString::number(++number), tour->date().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
             tour->type().value_or(QStringLiteral("?")),
             QString::number(tour->tourDataDict()->tourData.size()) +
                 (isStitched(*tour) ? QStringLiteral("*") : QString()),
             QString::number(units.distance(tour->totalDistance()), 'f', 2),
             QStringLiteral("%1:%2").arg(tour->hours()).arg(tour->minutes(), 2, 10, QLatin1Char('0')),
             QString::number(units.altitude(tour->elevationGain()), 'f', 0),
             QString::number(tour->climbingCount()), QString::number(units.speed(tour->avgSpeed()), 'f', 1),
             QString::number(units.speed(tour->maxSpeed()), 'f', 1),
             QString::number(static_cast<double>(tour->avgPulse()), 'f', 0),
             QString::number(static_cast<double>(tour->maxPulse()), 'f', 0),
             QString::number(tour->avgPower(), 'f', 0)});
    }
    auto text = table.text();
    if (std::ranges::any_of(dump.toursArray(), [](const auto& tour) { return isStitched(*tour); }))
        text += QStringLiteral(
            "\n  * goes on at the front of the memory; the values are those of its first part\n");
    return text;
}

} // namespace

QString InspectCommand::name() const
{
    return QStringLiteral("inspect");
}

QString InspectCommand::description() const
{
    return QStringLiteral("Decodes a raw dump and shows its general data and tours.");
}

QList<Command::Argument> InspectCommand::arguments() const
{
    return {{QStringLiteral("DUMP"), QStringLiteral("A raw dump, as the device sends it.")}};
}

QString InspectCommand::synopsis() const
{
    return QStringLiteral("DUMP [--json] [--series] [--raw]");
}

QList<QCommandLineOption> InspectCommand::options() const
{
    return {{jsonName, QStringLiteral("Prints JSON with every value.")},
            {seriesName, QStringLiteral("With --json: the series of each tour as well.")},
            {rawName, QStringLiteral("With --json: the sample records of each tour as well.")}};
}

ExitStatus InspectCommand::execute(const CommandContext& context) const
{
    const bool json = context.options.isSet(jsonName);
    const TourJsonParts parts{.series = context.options.isSet(seriesName),
                              .raw = context.options.isSet(rawName)};
    if (!json && (parts.series || parts.raw))
        return wrongWords(*this, QStringLiteral("--series and --raw go with --json"));
    const auto file = context.arguments.constFirst();
    const auto dump = OdoData::initWithFile(file, context.now);
    if (!dump.refusal().isEmpty())
        return refuse(file, dump.refusal());
    if (json)
        return printJson(dump, parts);

    QString text = QStringLiteral("General data\n\n%1\n").arg(generalDataText(dump.generalDataDict()));
    if (dump.toursArray().empty())
        text += QStringLiteral("No tours\n");
    else
        text += QStringLiteral("Tours\n\n%1").arg(toursText(dump, ReadableUnits(context.miles)));
    return print(text);
}

} // namespace ridelog
