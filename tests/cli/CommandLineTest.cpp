// The command line as a shell sees it: both streams and the exit status.

#include "tests/cli/CommandLine.h"

#include "decode/DumpLayout.h"
#include "simulator/RideGenerator.h"

#include <sys/stat.h>

namespace ridelog {
namespace {

const QString inspectAtYearsEnd = QStringLiteral("inspect --now 2007-12-31T23:59");

TEST_F(CommandLine, InspectPrintsATableForPeople)
{
    const auto dump = write("rides.odo", RideGenerator{.tours = 3}.dump());
    const auto metric = run(inspectAtYearsEnd, {dump});
    EXPECT_EQ(metric.status, 0);
    EXPECT_EQ(metric.err, "");
    EXPECT_TRUE(metric.out.contains("Wheelsize")) << metric.out.toStdString();
    EXPECT_TRUE(metric.out.contains(" km "));
    EXPECT_EQ(metric.out.count("  2007-"), 3);

    const auto miles = run(inspectAtYearsEnd, {QStringLiteral("--miles"), dump});
    EXPECT_TRUE(miles.out.contains(" mi ") && miles.out.contains("Gain ft") && miles.out.contains("mph"));
    EXPECT_TRUE(run(inspectAtYearsEnd, {write("none.odo", RideGenerator{.tours = 0}.dump())})
                    .out.contains("No tours"));
}

constexpr char smallTourJson[] = R"json(
{
  "number": 1, "type": "Bike", "title": "n/a", "description": "n/a", "removed": false,
  "date": "2007-03-10 08:00:00 +0100", "endDate": "2007-03-10 08:01:00 +0100",
  "tourDataDict": {"type": "Bike", "recordOffsetDD": 845, "hour": 8, "min": 0, "month": 3, "day": 10,
                   "distance at start (km)": 1200, "altitude at start": 500, "pulse at start": 90},
  "samples": 2, "duration": 60, "hours": 0, "minutes": 1, "totalDistance": 0.15, "altitudeAtEnd": 502,
  "maxPower": 338, "avgPower": 112.66666666666667,
  "calculatedValues": {
    "averagePulse": 60, "averageSpeed": 9, "averageMovingSpeed": 27, "averageTemp": 12, "maxPulse": 92,
    "maxSpeed": 27, "maxTemp": 18, "minTemp": 18, "elevationGain": 4, "climbingCount": 0, "descendingCount": 0,
    "maxClimbingDistance": 0.15, "avgClimbingDistance": 0.15, "maxDescendingDistance": 0,
    "maxClimbingAngle": 1.5280685, "maxDecendingAngle": 0, "maxClimbingPercentage": 2.6666667,
    "avgClimbingPercentage": 2.6666667, "maxDecendingPercentage": 0, "avgDecendingPercentage": 0},
  "series": [
    {"time": 0, "altitude": 500, "distance": 0, "pulse": 90, "power": 0, "speed": 0,
     "climbingPercentage": 0, "temperature": 18, "cadence": 80},
    {"time": 20, "altitude": 504, "distance": 0.15, "pulse": 92, "power": 338, "speed": 27,
     "climbingPercentage": 2.6666667, "temperature": 18, "cadence": 80},
    {"time": 40, "altitude": 502, "distance": 0.15, "pulse": 88, "power": 0, "speed": 0,
     "climbingPercentage": 0, "temperature": 18, "cadence": 80}],
  "tourData": ["1200140050000200040000009600000000010000", "120014005000fcfffeff00000000000000010000"]
}
)json";

TEST_F(CommandLine, InspectJsonHasEveryValue)
{
    DumpWriter writer({{QStringLiteral("Wheelsize"), 2080}});
    writer.addTour(
        {.month = 3,
         .day = 10,
         .hour = 8,
         .distanceAtStart = 1200,
         .altitudeAtStart = 500,
         .pulseAtStart = 90,
         .samples = {{.temperature = 18, .cadence = 80, .altitude = 504, .distance = 150, .pulse = 92},
                     {.temperature = 18, .cadence = 80, .altitude = 502, .distance = 150, .pulse = 88}}});
    const auto dump = write("rides.odo", writer.dump());
    const auto json = run(inspectAtYearsEnd, {dump, QStringLiteral("--json"), QStringLiteral("--series"),
                                              QStringLiteral("--raw")})
                          .json();
    const auto generalData = json[u"generalData"].toObject();
    EXPECT_EQ(generalData.size(), 28);
    EXPECT_EQ(generalData[u"Wheelsize"].toInt(), 2080);

    ASSERT_EQ(json[u"tours"].toArray().size(), 1);
    const auto tour = json[u"tours"].toArray().first().toObject();
    const auto expected = QJsonDocument::fromJson(smallTourJson).object();
    for (auto entry = expected.begin(); entry != expected.end(); ++entry)
        EXPECT_EQ(tour[entry.key()], entry.value())
            << qPrintable(entry.key()) << ": "
            << QJsonDocument(QJsonObject{{entry.key(), tour[entry.key()]}}).toJson().toStdString();
    EXPECT_EQ(tour.size(), expected.size());

    const auto shortTour = run(inspectAtYearsEnd, {dump, QStringLiteral("--json")})
                               .json()[u"tours"]
                               .toArray()
                               .first()
                               .toObject();
    EXPECT_FALSE(shortTour.contains(u"series"));
    EXPECT_FALSE(shortTour.contains(u"tourData"));
}

TEST_F(CommandLine, RandomDumpsGiveValidJson)
{
    for (int seed = 1; seed <= 100; ++seed) {
        const auto dump = path("random.odo");
        auto words = QStringLiteral("make-dump --seed %1 --tours %2").arg(seed).arg(seed * 37 % 90 + 1);
        if (seed % 3 == 0)
            words += QStringLiteral(" --wrap");
        ASSERT_EQ(run(words, {QStringLiteral("-o"), dump}).status, 0);
        const auto json = run(QStringLiteral("inspect --json --series --raw"), {dump}).json();
        ASSERT_EQ(json[u"tours"].toArray().size(), seed * 37 % 90 + 1);
    }
}

TEST_F(CommandLine, DemoDumpShowsWhatTheDeviceKnows)
{
    const auto demo = run(inspectAtYearsEnd, {QStringLiteral(RIDELOG_SOURCE "/resources/demo.odo")});
    EXPECT_EQ(demo.status, 0) << demo.err.toStdString();
    for (const char* type : {" Bike ", " Jogging ", " Ski ", " Ski-Bike "})
        EXPECT_TRUE(demo.out.contains(type)) << type;
}

TEST_F(CommandLine, BadInputIsRefusedInOneLine)
{
    const auto dump = RideGenerator().dump();
    auto wrongSignature = dump;
    wrongSignature[0] = 'X';
    const std::pair<QString, const char*> cases[]{
        {path("missing.odo"), "No such file or directory"},
        {path("."), "it is a folder"},
        {write("empty.odo", {}), "not a raw dump: 0 bytes, at least 81,930 are needed"},
        {write("page.odo", QByteArray(4096, 'F')), "not a raw dump: 4,096 bytes, at least 81,930 are needed"},
        {write("short.odo", dump.left(81929)), "not a raw dump: 81,929 bytes, at least 81,930 are needed"},
        {write("signature.odo", wrongSignature), "not a raw dump: it does not begin with \"AFRO\""},
        {write("garbage.odo", "AFRO" + QByteArray(90000, '\xFF')),
         "not a raw dump: no record and no hexadecimal digits at byte 765"},
    };
    for (const auto& [file, reason] : cases) {
        for (const auto& more : {QStringList{file}, QStringList{file, QStringLiteral("--json")}}) {
            const auto outcome = run(QStringLiteral("inspect"), more);
            EXPECT_EQ(outcome.status, 1);
            EXPECT_EQ(outcome.out, "");
            EXPECT_EQ(
                outcome.err,
                QStringLiteral("ridelog-cli: %1: %2\n").arg(file, QString::fromLatin1(reason)).toUtf8());
        }
    }
}

TEST_F(CommandLine, WrongWordsAreExplained)
{
    const std::pair<const char*, const char*> cases[]{
        {"", "a command is missing"},
        {"inspct x", "there is no command 'inspct'"},
        {"inspect", "FILE is missing"},
        {"inspect a b", "'b' is one word too many"},
        {"inspect --colour a", "Unknown option 'colour'"},
        {"inspect --log loud a", "--log takes none, errors or trace"},
        {"inspect --now yesterday a", "--now takes a time like 2007-03-10T12:00:00"},
        {"inspect --now 2007-02-30T12:00:00 a", "--now takes a time like 2007-03-10T12:00:00"},
        {"inspect --now 2007-03-10 a", "--now takes a time like 2007-03-10T12:00:00"},
        {"inspect --series a", "--series and --raw go with --json"},
        {"inspect --help-all a", "Unknown option 'help-all'"},
        {"import --into x", "DUMP is missing"},
        {"import a b", "--into is missing"},
        {"list --raw a", "--series and --raw go with --json"},
        {"show a", "TOUR is missing"},
        {"show a first", "TOUR is a number or a start like 2007-03-10T08:00"},
        {"show a 2007-02-30T08:00", "TOUR is a number or a start like 2007-03-10T08:00"},
        {"edit a 1", "nothing to change"},
        {"edit a 1 --removed", "nothing to change"},
        {"edit a 1 --remove --restore", "--remove and --restore do not go together"},
        {"make-dump", "-o is missing"},
        {"make-dump --tours 677 -o x", "--tours takes a number from 0 to 676"},
        {"make-dump --tours many -o x", "--tours takes a number from 0 to 676"},
        {"make-dump --seed -1 -o x", "--seed takes a whole number"},
        {"make-dump --wrap --tours 0 -o x", "--wrap needs a tour to wrap"},
    };
    for (const auto& [words, reason] : cases) {
        const auto outcome = run(QString::fromLatin1(words));
        EXPECT_EQ(outcome.status, 2) << words;
        EXPECT_EQ(outcome.out, "") << words;
        EXPECT_TRUE(outcome.err.startsWith(QByteArray("ridelog-cli: ") + reason))
            << words << ": " << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1) << words;
    }
}

TEST_F(CommandLine, WhatCannotBeWrittenIsAFailureOfTheMachine)
{
    const auto outcome = run(QStringLiteral("make-dump -o"), {path("no/such/folder.odo")});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(
        outcome.err,
        QStringLiteral("ridelog-cli: %1: nothing can be written in its folder: No such file or directory\n")
            .arg(path("no/such/folder.odo"))
            .toUtf8());
}

TEST_F(CommandLine, OnlyARegularFileIsReplaced)
{
    const auto old = write("old.odo", "old");
    ASSERT_TRUE(QFile::link(path("nowhere"), path("link")));
    ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);
    for (const auto& target : {path("."), path("link"), path("pipe")}) {
        const auto outcome = run(QStringLiteral("make-dump -o"), {target});
        EXPECT_EQ(outcome.status, 3) << qPrintable(target);
        EXPECT_EQ(outcome.err.count('\n'), 1);
    }
    EXPECT_EQ(run(QStringLiteral("make-dump --tours 999 -o"), {old}).status, 2);
    QFile kept(old);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "old");
}

TEST_F(CommandLine, NamesAreShownOnOneLine)
{
    const auto outcome = run(QStringLiteral("inspect"), {QStringLiteral("two\nlines\x1b[31m")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "ridelog-cli: two\\x0alines\\x1b[31m: No such file or directory\n");
}

TEST_F(CommandLine, UnknownSportHasNoType)
{
    auto dump = RideGenerator{.tours = 1}.dump();
    dump.replace(DumpLayout::recordAreaOffset, 2, "C1");
    const auto tour = run(inspectAtYearsEnd, {write("odd.odo", dump), QStringLiteral("--json")})
                          .json()[u"tours"]
                          .toArray()
                          .first()
                          .toObject();
    EXPECT_TRUE(tour[u"type"].isNull());
    EXPECT_TRUE(tour[u"tourDataDict"].toObject()[u"type"].isNull());
}

TEST_F(CommandLine, LogIsSilentUnlessAsked)
{
    const auto dump = write("rides.odo", RideGenerator{.tours = 2}.dump());
    EXPECT_EQ(run(QStringLiteral("inspect"), {dump}).err, "");
    const auto trace = run(QStringLiteral("inspect --log trace"), {dump});
    EXPECT_TRUE(trace.err.startsWith("parseGeneralData\nGeneral Data: {\n"))
        << trace.err.left(80).toStdString();
    EXPECT_TRUE(trace.err.contains("\nTOUR START ---------- pos: 767\n* 0\n"));
    const auto errors = run(QStringLiteral("inspect --log errors"), {path("missing")});
    EXPECT_EQ(errors.err.count('\n'), 3) << errors.err.toStdString();
}

TEST_F(CommandLine, HelpAndVersion)
{
    const auto help = run(QStringLiteral("--help"));
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("inspect") && help.out.contains("make-dump"));
    const auto inspect = run(QStringLiteral("inspect --help"));
    EXPECT_EQ(inspect.status, 0);
    EXPECT_TRUE(inspect.out.startsWith("Usage: ridelog-cli inspect FILE [--json]") &&
                inspect.out.contains("--series"));
    EXPECT_TRUE(run(QStringLiteral("--version")).out.startsWith("ridelog-cli 0."));
}

} // namespace
} // namespace ridelog
