// Totals and averages without a window, as a shell sees them.

#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"
#include "tests/support/Samples.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace ridelog {
namespace {

class StatsCommand : public CommandLine {
protected:
    static Outcome stats(const QString& options, const QString& file)
    {
        return run(QStringLiteral("stats --now=2007-12-31T12:00 ") + options, {file});
    }
    static QJsonObject json(const QString& options, const QString& file)
    {
        const auto outcome = stats(QStringLiteral("--json ") + options, file);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        return outcome.json();
    }
    static double hours(const QJsonObject& json, QStringView period)
    {
        return json[period][u"duration"].toDouble() / 3600;
    }
    /// Three rides of an hour each: New Year's Day of 2007, its Saturday, and Silvester.
    QString hours() const
    {
        DumpWriter writer;
        for (const auto& [month, day] : {std::pair{1, 1}, {1, 6}, {12, 31}})
            writer.addTour({.month = month,
                            .day = day,
                            .hour = 8,
                            .samples = std::vector<DumpSample>(179, {.distance = 100})});
        return write("hours.odo", writer.dump());
    }
};

TEST_F(StatsCommand, RealDumpsHaveTheTotalsOfTheirTours)
{
    SKIP_WITHOUT_SAMPLES();
    const auto dump = samplePath(QStringLiteral("dumps/whole-year.odo"));
    const auto inspected = run(QStringLiteral("inspect --json --now=2007-12-31T12:00"), {dump}).json();
    // 22 October is a Monday; nothing else was ridden in that month.
    for (const auto& [date, period, start] : {std::tuple{"2008-01-01", u"all", u"2007"},
                                              {"2007-01-01", u"year", u"2007"},
                                              {"2007-08-31", u"month", u"2007-08"},
                                              {"2007-10-28", u"week", u"2007-10"}}) {
        QStringList dates;
        std::map<QString, double> sums;
        std::map<QString, double> highest;
        for (const auto& tour : inspected[u"tours"].toArray()) {
            if (!tour[u"date"].toString().startsWith(QStringView(start)))
                continue;
            dates << tour[u"date"].toString();
            auto values = tour[u"calculatedValues"].toObject();
            values[u"averagePulse"] = std::trunc(values[u"averagePulse"].toDouble());
            values[u"distance"] = tour[u"totalDistance"];
            values[u"duration"] = tour[u"duration"];
            for (auto value = values.begin(); value != values.end(); ++value) {
                sums[value.key()] += value->toDouble();
                highest[value.key()] = std::max(highest[value.key()], value->toDouble());
            }
        }
        dates.sort();
        const auto all = json(QStringLiteral("--date %1").arg(QString::fromLatin1(date)), dump);
        const auto found = all[period].toObject();
        EXPECT_EQ(found[u"first"].toString(), dates.first());
        EXPECT_EQ(found[u"last"].toString(), dates.last());
        const auto expect = [&, when = date](const char* key, double expected) {
            EXPECT_NEAR(found[QLatin1String(key)].toDouble(), expected, 1e-3) << when << key;
        };
        const auto sum = [&](const char* key) { return sums[QString::fromLatin1(key)]; };
        const auto mean = [&](const char* key) { return sum(key) / static_cast<double>(dates.size()); };
        for (const char* key : {"distance", "duration", "elevationGain"})
            expect(key, sum(key));
        for (const char* key : {"averageSpeed", "averagePulse"})
            expect(key, mean(key));
        for (const char* key : {"maxSpeed", "maxPulse"})
            expect(key, highest[QString::fromLatin1(key)]);
        expect("heartBeats", std::floor(sum("duration") / 60 * mean("averagePulse")));
        expect("averageClimbingPerc", mean("avgClimbingPercentage"));
        expect("averageDecendingPerc", mean("avgDecendingPercentage"));
    }
}

TEST_F(StatsCommand, JsonHasFourPeriodsWithTwelveValuesEach)
{
    const auto all = json({}, hours());
    EXPECT_EQ(all.keys(), QStringList({QStringLiteral("all"), QStringLiteral("date"), QStringLiteral("month"),
                                       QStringLiteral("week"), QStringLiteral("year")}));
    EXPECT_EQ(all[u"date"], QStringLiteral("2007-12-31"));
    for (const char* period : {"all", "year", "month", "week"}) {
        EXPECT_EQ(
            all[QLatin1String(period)].toObject().keys().join(u' '),
            QStringLiteral("averageClimbingPerc averageDecendingPerc averagePulse averageSpeed distance "
                           "duration elevationGain first heartBeats last maxPulse maxSpeed"));
    }
    const auto none = json(QStringLiteral("--date 2008-03-15"), hours());
    EXPECT_EQ(none[u"date"], QStringLiteral("2008-03-15"));
    EXPECT_EQ(none[u"all"], all[u"all"]);
    for (const auto& value : none[u"week"].toObject())
        EXPECT_TRUE(value.isNull() || value == 0);
    EXPECT_TRUE(none[u"year"][u"first"].isNull() && none[u"year"][u"last"].isNull());
}

TEST_F(StatsCommand, WeeksStartWhereTheWordsSay)
{
    const auto onMonday = json(QStringLiteral("--week-start monday"), hours());
    EXPECT_EQ(json({}, hours()), onMonday) << "as the locale of the tests has it";
    EXPECT_EQ(hours(onMonday, u"week"), 3) << "week 1 of 2007 and what 2007 has of that of 2008";
    const auto sunday = QStringLiteral("--week-start sunday --date ");
    EXPECT_EQ(hours(json(sunday + QStringLiteral("2007-01-06"), hours()), u"week"), 3);
    EXPECT_EQ(hours(json(sunday + QStringLiteral("2007-01-07"), hours()), u"week"), 0);
    EXPECT_EQ(hours(json(QStringLiteral("--date 2007-01-07"), hours()), u"week"), 3);
}

TEST_F(StatsCommand, RemovedToursAreNotCounted)
{
    const auto document = path("hours.ridelog");
    ASSERT_EQ(run(QStringLiteral("import --now=2007-12-31T23:59 --into"), {document, hours()}).status, 0);
    EXPECT_EQ(hours(json({}, document), u"all"), 3);
    ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, QStringLiteral("2007-01-01T08:00")}).status, 0);
    const auto left = json({}, document);
    EXPECT_EQ(hours(left, u"all"), 2);
    EXPECT_EQ(left[u"year"][u"first"], QStringLiteral("2007-01-06 08:00:00 +0100"));
}

TEST_F(StatsCommand, PrintsATableForPeople)
{
    const auto metric = stats(QStringLiteral("--date 2007-01-15 --log trace"), hours());
    EXPECT_EQ(metric.status, 0);
    EXPECT_TRUE(metric.out.contains("January 2007  Week 3, 2007\n")) << metric.out.toStdString();
    EXPECT_TRUE(metric.out.contains(" km/h\n") && metric.out.contains(" 3:00 ") && metric.out.contains("–"));
    EXPECT_TRUE(metric.err.contains("[setDate]\n[_calcGlobalStat]\n")) << metric.err.toStdString();
    const auto miles = stats(QStringLiteral("--miles"), hours()).out;
    EXPECT_TRUE(miles.contains(" mi\n") && miles.contains(" ft\n") && miles.contains(" mph\n"));
    const auto wrapped = write("wrapped.odo", RideGenerator{.wrapped = true}.dump());
    EXPECT_EQ(stats({}, wrapped).out.count("goes on at the front of the memory"), 1);
}

TEST_F(StatsCommand, WrongWordsAndFilesAreRefusedInOneLine)
{
    const auto file = hours();
    const auto garbage = write("garbage", QByteArray(4096, 'F'));
    const std::tuple<const char*, QString, int, const char*> cases[]{
        {"--date 2007-02-29", file, 2, "--date takes a day like 2007-03-15 "},
        {"--date 2007-03-15T12:00", file, 2, "--date takes a day"},
        {"--date=", file, 2, "--date takes a day"},
        {"--date=-2007-03-15", file, 2, "--date takes a day"},
        {"--week-start friday", file, 2, "--week-start takes sunday or monday "},
        {"", QString(), 2, "FILE is missing"},
        {"", path("missing"), 1, "missing: No such file or directory"},
        {"--json", garbage, 1, "garbage: not a raw dump: 4,096 bytes"},
    };
    for (const auto& [options, name, status, reason] : cases) {
        const auto outcome = stats(QString::fromLatin1(options), name);
        EXPECT_EQ(outcome.status, status) << options;
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.contains(reason) && outcome.err.count('\n') == 1)
            << outcome.err.toStdString();
    }
}

} // namespace
} // namespace ridelog
