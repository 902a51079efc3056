#include "cli/StatsCommand.h"

#include "cli/StatsText.h"
#include "cli/TourSource.h"
#include "model/OdoStat.h"
#include "platform/JsonWriter.h"

#include <QCommandLineParser>

#include <optional>

namespace ridelog {
namespace {

const QString dateName = QStringLiteral("date");
const QString weekStartName = QStringLiteral("week-start");
const QString jsonName = QStringLiteral("json");

const QString dateForm = QStringLiteral("yyyy-MM-dd");

/// None for something that is no day.
std::optional<QDateTime> dateOf(const QString& text)
{
    const auto day = QDate::fromString(text, dateForm);
    // In a time zone that skips no day; only the day counts.
    return day.isValid() && day.year() >= 1 ? std::optional(day.startOfDay(Qt::UTC)) : std::nullopt;
}

std::optional<WeekRule> weekRuleOf(const QString& text)
{
    if (text == QStringLiteral("sunday"))
        return WeekRule{Qt::Sunday};
    if (text == QStringLiteral("monday"))
        return WeekRule{Qt::Monday};
    return std::nullopt;
}

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
    json.entry(u"date", QStringView(stat.date().toString(dateForm)));
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
    return {
        {dateName, QStringLiteral("The day whose year, month and week are shown; today if not told."),
         QStringLiteral("YYYY-MM-DD")},
        {weekStartName,
         QStringLiteral("First day of a week: sunday (1 January is in week 1) or monday (week 1 has at least "
                        "four days); as the locale has it if not told."),
         QStringLiteral("DAY")},
        {jsonName, QStringLiteral("Prints JSON with every value.")}};
}

ExitStatus StatsCommand::execute(const CommandContext& context) const
{
    auto date = std::optional(context.now);
    if (context.options.isSet(dateName))
        date = dateOf(context.options.value(dateName));
    if (!date)
        return wrongWords(*this, QStringLiteral("--date takes a day like 2007-03-15"));
    auto weekRule = std::optional(WeekRule::ofLocale(QLocale()));
    if (context.options.isSet(weekStartName))
        weekRule = weekRuleOf(context.options.value(weekStartName));
    if (!weekRule)
        return wrongWords(*this, QStringLiteral("--week-start takes sunday or monday"));

    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);

    OdoStat stat(*weekRule, *date);
    stat.setToursArray(source.tours);
    if (context.options.isSet(jsonName))
        return printJson([&stat](JsonWriter& json) { writeStatistics(json, stat); });
    return print(statsText(stat, ReadableUnits(context.miles)));
}

} // namespace ridelog
