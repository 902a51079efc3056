#include "cli/StatsCommand.h"

#include "cli/PeriodOptions.h"
#include "cli/StatsText.h"
#include "cli/TourSource.h"
#include "model/OdoStat.h"
#include "platform/JsonWriter.h"

#include <QCommandLineParser>

namespace ridelog {
namespace {

const QString jsonName = QStringLiteral("json");

void writePeriod(JsonWriter& json, OdoStat& stat, Period period)
{
    const auto statistics = stat.stat(period);
    json.beginObject();
    json.entry(u"first", stat.firstTour(period));
    json.entry(u"last", stat.lastTour(period));
    forEachValue(statistics, [&json](QStringView key, auto value) { json.entry(key, value); });
    json.endObject();
}

void writeStatistics(JsonWriter& json, OdoStat& stat)
{
    json.beginObject();
    json.entry(u"date", QStringView(PeriodOptions::text(stat.date().date())));
    json.key(u"all");
    writePeriod(json, stat, Period::all);
    json.key(u"year");
    writePeriod(json, stat, Period::year);
    json.key(u"month");
    writePeriod(json, stat, Period::month);
    json.key(u"week");
    writePeriod(json, stat, Period::week);
    json.endObject();
}

} // namespace

QString StatsCommand::name() const
{
    return QStringLiteral("stats");
}

QString StatsCommand::description() const
{
    return QStringLiteral("Shows totals and averages: of all tours, and of a year, a month and a week.");
}

QList<Command::Argument> StatsCommand::arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("A document or a raw dump.")}};
}

QString StatsCommand::synopsis() const
{
    return QStringLiteral("FILE [--date YYYY-MM-DD] [--week-start sunday|monday] [--json]");
}

QList<QCommandLineOption> StatsCommand::options() const
{
    return PeriodOptions::options() +
           QList{QCommandLineOption(jsonName, QStringLiteral("Prints JSON with every value."))};
}

ExitStatus StatsCommand::execute(const CommandContext& context) const
{
    const PeriodOptions chosen(context.options, context.now);
    if (!chosen.fault().isEmpty())
        return wrongWords(*this, chosen.fault());

    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);

    OdoStat stat(chosen.weekRule(), chosen.date());
    stat.setToursArray(source.tours);
    if (context.options.isSet(jsonName))
        return printJson([&stat](JsonWriter& json) { writeStatistics(json, stat); });
    return print(statsText(stat, ReadableUnits(context.miles)));
}

} // namespace ridelog
