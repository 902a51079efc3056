#include "exchange/FitFormat.h"

#include "decode/OdoData.h"
#include "exchange/FitEncoder.h"
#include "exchange/TourExport.h"
#include "tests/exchange/FitReader.h"
#include "tests/exchange/Formats.h"
#include "tests/support/TemporaryFolder.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ridelog {
namespace {

// Numbers of messages and fields, as the profile has them.
enum : int { fileId = 0, session = 18, lap = 19, record = 20, event = 21, activity = 34 };
enum : int { timestamp = 253 };
enum : int { altitude = 2, heartRate = 3, cadence = 4, distance = 5, speed = 6, power = 7, temperature = 13 };

// 1989-12-31T00:00:00Z
constexpr qint64 epoch = 631'065'600;

QByteArray fitOf(const std::shared_ptr<OdoTour>& tour)
{
    return exported(FitFormat(), {tour});
}

/// A tour at `start` from 500 m and 90 bpm; `now` cannot reach it, so that it is given.
std::shared_ptr<OdoTour> tourWith(std::vector<DataRect> samples,
                                  const QDateTime& start = berlin(2007, 3, 10, 8),
                                  const QString& type = QStringLiteral("Bike"))
{
    auto dictionary = startValues(500, 90);
    dictionary.type = type;
    dictionary.tourData = std::move(samples);
    auto tour = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
    tour->setDate(start);
    return tour;
}

TEST(FitEncoder, ChecksAsTheProtocolDoes)
{
    // The check value of this CRC that tables of them give.
    EXPECT_EQ(fitChecksum("123456789"), 0xBB3D);
    EXPECT_EQ(fitChecksum({}), 0);
}

TEST(FitFormat, TellsWhatWasRecorded)
{
    const auto tour = tourWith(
        {{.temperature = -4, .cadence = 80, .pulseChange = 30, .altitudeChange = 7, .distance = 150},
         {.temperature = -6, .cadence = 0, .pulseChange = 11, .altitudeChange = -9, .distance = 330}});
    const FitReader fit(fitOf(tour));
    const auto start = tour->date().toSecsSinceEpoch() - epoch;

    const auto head = fit.messages().front();
    EXPECT_EQ(head.number, fileId);
    EXPECT_EQ(head.fields, (std::map<int, std::int64_t>{{0, 4}, {1, 255}, {2, 0}, {4, start}}));

    using Fields = std::map<int, std::int64_t>;
    const auto records = fit.messages(record);
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].fields, (Fields{{timestamp, start},
                                         {altitude, 5000},
                                         {heartRate, 90},
                                         {cadence, 80},
                                         {distance, 0},
                                         {speed, 0},
                                         {power, 0},
                                         {temperature, -4}}));
    EXPECT_EQ(records[1].fields, (Fields{{timestamp, start + 20},
                                         {altitude, 5035},
                                         {heartRate, 120},
                                         {cadence, 80},
                                         {distance, 15000},
                                         {speed, 7500},
                                         {power, tour->data()[1].power},
                                         {temperature, -4}}));
    EXPECT_EQ(records[2].fields, (Fields{{timestamp, start + 40},
                                         {altitude, 4990},
                                         {heartRate, 131},
                                         {cadence, 0},
                                         {distance, 48000},
                                         {speed, 16500},
                                         {power, tour->data()[2].power},
                                         {temperature, -6}}));

    const auto timer = fit.messages(event);
    ASSERT_EQ(timer.size(), 2U);
    EXPECT_EQ(timer[0].fields, (Fields{{timestamp, start}, {0, 0}, {1, 0}}));
    EXPECT_EQ(timer[1].fields, (Fields{{timestamp, start + 40}, {0, 0}, {1, 4}}));
    const auto whole = fit.messages().back();
    EXPECT_EQ(whole.number, activity);
    // In March Berlin is an hour ahead.
    EXPECT_EQ(
        whole.fields,
        (Fields{
            {timestamp, start + 40}, {0, 40'000}, {1, 1}, {2, 0}, {3, 26}, {4, 1}, {5, start + 40 + 3600}}));
}

TEST(FitFormat, TotalsAgreeWithTheRecords)
{
    const auto tour = tourWith(
        {{.temperature = 10, .cadence = 80, .pulseChange = 30, .altitudeChange = 7, .distance = 150},
         {.temperature = 14, .cadence = 91, .pulseChange = -120, .altitudeChange = -9, .distance = 330},
         {.temperature = 13, .cadence = 60, .pulseChange = 121, .altitudeChange = 2, .distance = 0}});
    const FitReader fit(fitOf(tour));
    const auto start = tour->date().toSecsSinceEpoch() - epoch;
    const auto strongest = std::max(tour->data()[1].power, tour->data()[2].power);
    const auto meanPower = std::lround((tour->data()[1].power + tour->data()[2].power) / 4.0);

    using Fields = std::map<int, std::int64_t>;
    // Without the pulse of 0: (90 + 120 + 121) / 3. Climbs and descents of 3 m or less do not count.
    EXPECT_EQ(fit.only(session).fields, (Fields{{254, 0},        {timestamp, start + 60},
                                                {0, 9},          {1, 1},
                                                {2, start},      {5, 2},
                                                {7, 60'000},     {8, 60'000},
                                                {9, 48'000},     {14, 8000},
                                                {15, 16'500},    {16, 110},
                                                {17, 121},       {18, 78},
                                                {19, 91},        {20, meanPower},
                                                {21, strongest}, {22, 7},
                                                {23, 9},         {25, 0},
                                                {26, 1},         {28, 0},
                                                {57, 12},        {58, 14}}));
    EXPECT_EQ(fit.only(lap).fields, (Fields{{254, 0},        {timestamp, start + 60},
                                            {0, 9},          {1, 1},
                                            {2, start},      {7, 60'000},
                                            {8, 60'000},     {9, 48'000},
                                            {13, 8000},      {14, 16'500},
                                            {15, 110},       {16, 121},
                                            {17, 78},        {18, 91},
                                            {19, meanPower}, {20, strongest},
                                            {21, 7},         {22, 9},
                                            {24, 7},         {25, 2},
                                            {50, 12},        {51, 14}}));
}

TEST(FitFormat, KnowsTheSports)
{
    const std::pair<const char*, int> sports[] = {
        {"Bike", 2}, {"Ski-Bike", 2}, {"Jogging", 1}, {"Ski", 0}, {"", 0}};
    for (const auto& [type, sport] : sports) {
        const FitReader fit(
            fitOf(tourWith({{.distance = 100}}, berlin(2007, 3, 10), QString::fromLatin1(type))));
        EXPECT_EQ(fit.only(session).at(5), sport) << type;
        EXPECT_EQ(fit.only(lap).at(25), sport) << type;
    }
}

TEST(FitFormat, LeavesOutWhatWasNotRecorded)
{
    // No belt, no sensor at the cranks.
    const FitReader fit(
        fitOf(tourWith({{.temperature = 20, .pulseChange = -90, .distance = 100}, {.temperature = 20}})));
    const auto records = fit.messages(record);
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].at(heartRate), 90);
    EXPECT_EQ(records[1].at(heartRate), 0xFF);
    EXPECT_FALSE(records[1].has(cadence));
    EXPECT_EQ(fit.only(session).at(16), 90);
    EXPECT_EQ(fit.only(session).at(18), 0xFF);
    EXPECT_EQ(fit.only(session).at(19), 0xFF);
}

TEST(FitFormat, HoldsATourWithoutSamples)
{
    for (const auto& tour :
         {tourWith({}), OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 12, 31))}) {
        tour->setDate(berlin(2007, 3, 10, 8));
        const FitReader fit(fitOf(tour));
        const auto only = fit.only(record);
        EXPECT_EQ(only.at(timestamp), tour->date().toSecsSinceEpoch() - epoch);
        EXPECT_FALSE(only.has(temperature));
        EXPECT_EQ(fit.only(session).at(7), 0);
        EXPECT_EQ(fit.only(session).at(9), 0);
        EXPECT_EQ(fit.only(session).at(14), 0xFFFF) << "no speed over no time";
        EXPECT_EQ(fit.only(session).at(57), 0x7F);
    }
}

TEST(FitFormat, TakesNoValueBeyondAField)
{
    const auto lowest = std::numeric_limits<std::int16_t>::min();
    const auto highest = std::numeric_limits<std::int16_t>::max();
    const auto fit = [](const DataRect& sample) {
        const FitReader read(fitOf(tourWith({sample})));
        return read.messages(record).back();
    };
    // From 500 m: −500 m and 12606.8 m are the ends.
    EXPECT_EQ(fit({.altitudeChange = -1000}).at(altitude), 0);
    EXPECT_EQ(fit({.altitudeChange = -1001}).at(altitude), 0xFFFF);
    EXPECT_EQ(fit({.altitudeChange = 12'106}).at(altitude), 65'530);
    EXPECT_EQ(fit({.altitudeChange = 12'107}).at(altitude), 0xFFFF);
    // From 90 bpm.
    EXPECT_EQ(fit({.pulseChange = 164}).at(heartRate), 254);
    EXPECT_EQ(fit({.pulseChange = 165}).at(heartRate), 0xFF);
    EXPECT_EQ(fit({.pulseChange = -91}).at(heartRate), 0xFF);
    EXPECT_EQ(fit({.pulseChange = highest}).at(heartRate), 0xFF);
    EXPECT_EQ(fit({.cadence = 254}).at(cadence), 254);
    EXPECT_EQ(fit({.cadence = 255}).at(cadence), 0xFF);
    EXPECT_EQ(fit({.cadence = -1}).at(cadence), 0xFF);
    EXPECT_EQ(fit({.temperature = 126}).at(temperature), 126);
    EXPECT_EQ(fit({.temperature = 127}).at(temperature), 127) << "the invalid value";
    EXPECT_EQ(fit({.temperature = 128}).at(temperature), 127);
    EXPECT_EQ(fit({.temperature = -128}).at(temperature), -128);
    EXPECT_EQ(fit({.temperature = lowest}).at(temperature), 127);
    EXPECT_EQ(fit({.distance = 1310}).at(speed), 65'500);
    EXPECT_EQ(fit({.distance = 1320}).at(speed), 0xFFFF);
    EXPECT_EQ(fit({.distance = 1320}).at(distance), 132'000);
    for (const int metres :
         {-10, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        const auto far = fit({.distance = metres});
        EXPECT_EQ(far.at(distance), 0xFFFFFFFF) << metres;
        EXPECT_EQ(far.at(speed), 0xFFFF) << metres;
    }
    EXPECT_EQ(fit({.distance = std::numeric_limits<std::int32_t>::max()}).at(power), 0xFFFF);
}

TEST(FitFormat, CountsNoGarbageInTotals)
{
    const FitReader fit(
        fitOf(tourWith({{.temperature = 20, .pulseChange = 30, .distance = 100},
                        {.temperature = 999, .cadence = -5, .pulseChange = 999, .distance = 90'000}})));
    const auto totals = fit.only(session);
    EXPECT_EQ(totals.at(15), 5000);
    EXPECT_EQ(totals.at(16), 105);
    EXPECT_EQ(totals.at(17), 120);
    EXPECT_EQ(totals.at(19), 0);
    EXPECT_EQ(totals.at(21), fit.messages(record)[1].at(power));
    EXPECT_EQ(totals.at(57), 20);
    EXPECT_EQ(totals.at(58), 20);
    EXPECT_EQ(totals.at(14), 0xFFFF) << "90 km in 20 s";
}

TEST(FitFormat, GoesOnEvenlyWhileTheClocksChange)
{
    // An hour from before to after the change, 180 samples of it.
    const std::vector<DataRect> samples(180, DataRect{.distance = 100});
    struct Change {
        QDateTime start;
        int hoursAhead; ///< at the end
    };
    for (const auto& [start, hoursAhead] :
         {Change{berlin(2007, 3, 25, 1, 30), 2}, Change{berlin(2007, 10, 28, 2, 30), 1}}) {
        const FitReader fit(fitOf(tourWith(samples, start)));
        auto expected = start.toSecsSinceEpoch() - epoch;
        for (const auto& entry : fit.messages(record)) {
            EXPECT_EQ(entry.at(timestamp), expected);
            expected += 20;
        }
        const auto end = fit.only(activity);
        EXPECT_EQ(end.at(5) - end.at(timestamp), 3600 * hoursAhead);
    }
}

TEST(FitFormat, RefusesDatesThatItDoesNotHave)
{
    const auto utc = [](qint64 seconds) { return QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc()); };
    const auto refusal = [](const QDateTime& start) {
        return FitFormat().refusal({tourWith({{.distance = 100}}, start)});
    };
    const qint64 earliest = epoch + 0x10000000;
    const qint64 latest = epoch + 0xFFFFFFFE;
    EXPECT_EQ(refusal(utc(earliest)), QString());
    EXPECT_EQ(refusal(utc(earliest - 1)),
              QStringLiteral("FIT knows no dates before 1998-07-03 21:24:16 +0000, and the tour starts at "
                             "1998-07-03 21:24:15 +0000"));
    EXPECT_EQ(refusal(utc(latest - 20)), QString());
    EXPECT_EQ(refusal(utc(latest - 19)),
              QStringLiteral("FIT knows no dates after 2126-02-06 06:28:14 +0000, and the tour ends at "
                             "2126-02-06 06:28:15 +0000"));
    EXPECT_FALSE(refusal(berlin(1, 1, 1)).isEmpty());
    EXPECT_FALSE(refusal(berlin(9999, 12, 31)).isEmpty());
    // Where the clock on the wall is beyond the calendar, it is left out.
    const FitReader fit(fitOf(tourWith({}, utc(latest).toTimeZone(QTimeZone("Europe/Berlin")))));
    EXPECT_EQ(fit.only(activity).at(timestamp), 0xFFFFFFFE);
    EXPECT_EQ(fit.only(activity).at(5), 0xFFFFFFFF);
}

TEST(TourExport, NamesToursThatAFormatCannotHoldAndWritesTheOthers)
{
    const TemporaryFolder folder;
    const Tours tours{tourWith({{.distance = 100}}, berlin(1997, 3, 10, 8)), tourWith({{.distance = 100}})};
    const FitFormat format;
    std::size_t told = 0;
    const auto outcome = TourExport(format, {}, tours, folder.path(), TourExport::Layout::filePerTour)
                             .write(TourExport::Existing::keep, [&told](std::size_t done) {
                                 told = done;
                                 return true;
                             });
    EXPECT_EQ(outcome.written, 1U);
    EXPECT_EQ(told, 2U);
    ASSERT_EQ(outcome.failures.size(), 1U);
    EXPECT_EQ(outcome.failures[0].path, folder.path("1997-03-10_08-00_Bike.fit"));
    EXPECT_EQ(outcome.failures[0].reason, format.refusal({tours[0]}));
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("2007-03-10_08-00_Bike.fit")});
    EXPECT_EQ(folder.read("2007-03-10_08-00_Bike.fit"), fitOf(tours[1]));
}

// Another program's reader.

struct Point {
    QString time;
    double altitude = 0;
    double speed = 0; ///< m/s
    int pulse = 0;
};

/// What gpsbabel makes of the file. Its tables have no distances, but every entry's speed.
std::vector<Point> readBack(const QString& gpsbabel, const QString& path)
{
    QProcess process;
    process.start(gpsbabel,
                  {QStringLiteral("-t"), QStringLiteral("-i"), QStringLiteral("garmin_fit,allpoints=1"),
                   QStringLiteral("-f"), path, QStringLiteral("-o"), QStringLiteral("unicsv,utc=0"),
                   QStringLiteral("-F"), QStringLiteral("-")});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    const auto columns = QString::fromLatin1(process.readLine().trimmed()).split(u',');
    std::vector<Point> points;
    while (process.canReadLine()) {
        const auto cells = QString::fromLatin1(process.readLine().trimmed()).split(u',');
        const auto cell = [&](const char* name) { return cells.value(columns.indexOf(QLatin1String(name))); };
        points.push_back({cell("Date") + u' ' + cell("Time"), cell("Altitude").toDouble(),
                          cell("Speed").toDouble(), cell("Heartrate").toInt()});
    }
    return points;
}

void expectSame(const std::vector<Point>& points, const OdoTour& tour)
{
    ASSERT_EQ(points.size(), tour.data().size());
    double metres = 0;
    double climb = 0;
    double expectedClimb = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto& entry = tour.data()[i];
        EXPECT_EQ(points[i].time,
                  tour.date().addSecs(entry.time).toUTC().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss")));
        EXPECT_EQ(points[i].pulse, entry.pulse);
        metres += points[i].speed * 20;
        if (i > 0) {
            climb += std::max(0.0, points[i].altitude - points[i - 1].altitude);
            expectedClimb += std::max(0, entry.altitude - tour.data()[i - 1].altitude);
        }
    }
    EXPECT_NEAR(metres, tour.totalDistance() * 1000.0, 10);
    EXPECT_NEAR(climb, expectedClimb, 1);
}

TEST(FitFormat, IsReadByAnotherProgram)
{
    SKIP_WITHOUT_SAMPLES();
    const auto gpsbabel = QStandardPaths::findExecutable(QStringLiteral("gpsbabel"));
    if (gpsbabel.isEmpty())
        GTEST_SKIP() << "gpsbabel, which reads FIT files, is not installed";
    const QDir dumps(samplePath(QStringLiteral("dumps")));
    const TemporaryFolder folder;
    int count = 0;
    for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files, QDir::Name)) {
        for (const auto& tour :
             OdoData::initWithFile(dumps.filePath(name), berlin(2007, 12, 31)).toursArray()) {
            SCOPED_TRACE(qPrintable(name + u' ' + tour->description()));
            const auto bytes = fitOf(tour);
            expectSame(readBack(gpsbabel, folder.write("tour.fit", bytes)), *tour);
            const FitReader fit(bytes);
            EXPECT_NEAR(static_cast<double>(fit.only(session).at(9)) / 100, tour->totalDistance() * 1000.0,
                        0.01);
            EXPECT_EQ(fit.only(session).at(22), tour->elevationGain());
            EXPECT_EQ(fit.only(session).at(17), tour->maxPulse() > 0 ? std::lround(tour->maxPulse()) : 0xFF);
            ++count;
        }
    }
    EXPECT_GE(count, 50);
}

} // namespace
} // namespace ridelog
