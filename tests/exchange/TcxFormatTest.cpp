#include "exchange/TcxFormat.h"

#include "exchange/RecordedValues.h"
#include "tests/exchange/Formats.h"
#include "tests/support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <vector>

namespace ridelog {
namespace {

struct ReadPoint {
    QDateTime time;
    double altitude = 0;
    double distance = 0;
    std::optional<int> pulse = {};
    std::optional<int> cadence = {};
    double speed = 0;
    std::optional<int> watts = {};
};

struct ReadActivity {
    QString sport;
    QString id;
    QDateTime lapStart;
    double seconds = 0;
    double distance = 0;
    double maxSpeed = 0;
    std::optional<int> avgPulse = {};
    std::optional<int> maxPulse = {};
    QString notes;
    std::vector<ReadPoint> points = {};
};

/// What another program finds in a file; none of it where that is no XML.
class TcxReader {
public:
    explicit TcxReader(const QByteArray& bytes) : _xml(bytes) {}

    std::vector<ReadActivity> activities()
    {
        while (!_xml.atEnd()) {
            if (_xml.readNext() == QXmlStreamReader::StartElement)
                _path.append(_xml.name().toString());
            if (_xml.isStartElement())
                begin();
            if (_xml.isCharacters())
                _text += _xml.text();
            if (_xml.isEndElement())
                end();
        }
        if (_xml.hasError())
            ADD_FAILURE() << qPrintable(_xml.errorString());
        return _xml.hasError() ? std::vector<ReadActivity>() : std::move(_activities);
    }

private:
    void begin()
    {
        _text.clear();
        const auto& name = _path.last();
        const auto attributes = _xml.attributes();
        if (name == QStringLiteral("Activity"))
            _activities.push_back({.sport = attributes.value(QStringLiteral("Sport")).toString(),
                                   .id = {},
                                   .lapStart = {},
                                   .notes = {}});
        if (name == QStringLiteral("Lap"))
            activity().lapStart = dateOf(attributes.value(QStringLiteral("StartTime")).toString());
        if (name == QStringLiteral("Trackpoint"))
            activity().points.emplace_back();
    }

    void end()
    {
        auto name = _path.takeLast();
        if (name == QStringLiteral("Value"))
            name = _path.last();
        else if (_path.contains(QStringLiteral("Trackpoint")))
            name.prepend(u'.');
        const auto is = [&name](const char* other) { return name == QLatin1String(other); };
        if (is("Id"))
            activity().id = _text;
        else if (is("Notes"))
            activity().notes = _text;
        else if (is("TotalTimeSeconds"))
            activity().seconds = _text.toDouble();
        else if (is("DistanceMeters"))
            activity().distance = _text.toDouble();
        else if (is("MaximumSpeed"))
            activity().maxSpeed = _text.toDouble();
        else if (is("AverageHeartRateBpm") && !_text.isEmpty())
            activity().avgPulse = take().toInt();
        else if (is("MaximumHeartRateBpm") && !_text.isEmpty())
            activity().maxPulse = take().toInt();
        else if (is(".Time"))
            point().time = dateOf(_text);
        else if (is(".AltitudeMeters"))
            point().altitude = _text.toDouble();
        else if (is(".DistanceMeters"))
            point().distance = _text.toDouble();
        else if (is("HeartRateBpm"))
            point().pulse = take().toInt();
        else if (is(".Cadence"))
            point().cadence = _text.toInt();
        else if (is(".Speed"))
            point().speed = _text.toDouble();
        else if (is(".Watts"))
            point().watts = _text.toInt();
    }

    static QDateTime dateOf(const QString& text)
    {
        EXPECT_TRUE(text.endsWith(u'Z')) << qPrintable(text);
        return QDateTime::fromString(text, Qt::ISODate);
    }
    QString take() { return std::exchange(_text, QString()); }
    ReadActivity& activity() { return _activities.back(); }
    ReadPoint& point() { return activity().points.back(); }

    QXmlStreamReader _xml;
    QStringList _path;
    QString _text;
    std::vector<ReadActivity> _activities;
};

std::vector<ReadActivity> readBack(const Tours& tours)
{
    return TcxReader(exported(TcxFormat(), tours)).activities();
}

ReadActivity readBack(const std::shared_ptr<OdoTour>& tour)
{
    const auto activities = readBack(Tours{tour});
    EXPECT_EQ(activities.size(), 1U);
    return activities.empty() ? ReadActivity() : activities.front();
}

std::shared_ptr<OdoTour> tourOf(TourDictionary dictionary)
{
    return OdoTour::initWithOdoDataTourDict(std::move(dictionary), berlin(2007, 12, 31));
}

std::shared_ptr<OdoTour> tourOfType(const std::optional<QString>& type)
{
    auto dictionary = startValues();
    dictionary.type = type;
    return tourOf(dictionary);
}

/// Runs a program over files; what it says comes with a failure only.
void expectSuccess(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ASSERT_TRUE(process.waitForFinished(60'000)) << qPrintable(program);
    const auto output = process.readAll();
    EXPECT_TRUE(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << qPrintable(program) << ": " << output.last(std::min<qsizetype>(output.size(), 2000)).constData();
}

const QString publishedSchema =
    QStringLiteral(RIDELOG_SOURCE "/build/schemas/TrainingCenterDatabasev2.xsd"); // see prepare.sh

/// Files of exported tours, and what other programs say of them.
class TcxFiles : public testing::Test {
protected:
    void add(const Tours& tours)
    {
        const auto name = QByteArray::number(_paths.size()) + ".tcx";
        _paths.append(_folder.write(name.constData(), exported(TcxFormat(), tours)));
        _tours.insert(_tours.end(), tours.begin(), tours.end());
    }

    void expectValid()
    {
        const auto xmllint = QStandardPaths::findExecutable(QStringLiteral("xmllint"));
        if (xmllint.isEmpty() || !QFileInfo::exists(publishedSchema))
            GTEST_SKIP() << "xmllint or the schema " << qPrintable(publishedSchema) << " is not there";
        const QString own = QStringLiteral(RIDELOG_SOURCE "/tests/exchange/");
        for (const auto& schema : {publishedSchema, own + QStringLiteral("ActivityExtension.xsd"),
                                   own + QStringLiteral("ExportedTours.xsd")})
            ASSERT_TRUE(QFile::copy(schema, _folder.path() + u'/' + QFileInfo(schema).fileName()));
        expectSuccess(xmllint, QStringList{QStringLiteral("--nonet"), QStringLiteral("--noout"),
                                           QStringLiteral("--schema"), _folder.path("ExportedTours.xsd")} +
                                   _paths);
    }

    /// What a program makes of the points that knows nothing of tours.
    void expectReadBackByPython()
    {
        const auto python = QStandardPaths::findExecutable(QStringLiteral("python3"));
        if (python.isEmpty())
            GTEST_SKIP() << "python3 is not there";
        const auto script = QStringLiteral(
            "import json, sys\n"
            "from xml.etree import ElementTree\n"
            "space = '{http://www.garmin.com/xmlschemas/TrainingCenterDatabase/v2}'\n"
            "found = []\n"
            "for path in sys.argv[1:]:\n"
            "    for activity in ElementTree.parse(path).iter(space + 'Activity'):\n"
            "        points = list(activity.iter(space + 'Trackpoint'))\n"
            "        heights = [float(point.findtext(space + 'AltitudeMeters')) for point in points]\n"
            "        pulses = [int(value.text) for point in points\n"
            "                  for value in point.iter(space + 'Value')]\n"
            "        found.append({'points': len(points),\n"
            "                      'first': points[0].findtext(space + 'Time'),\n"
            "                      'last': points[-1].findtext(space + 'Time'),\n"
            "                      'metres': float(points[-1].findtext(space + 'DistanceMeters')),\n"
            "                      'climb': sum(max(0, b - a) for a, b in zip(heights, heights[1:])),\n"
            "                      'pulses': sum(pulses), 'lowestPulse': min(pulses, default=1)})\n"
            "print(json.dumps(found))\n");
        QProcess process;
        process.start(python, QStringList{QStringLiteral("-c"), script} + _paths);
        ASSERT_TRUE(process.waitForFinished(60'000) && process.exitCode() == 0)
            << process.readAllStandardError().toStdString();
        const auto found = QJsonDocument::fromJson(process.readAllStandardOutput()).array();
        ASSERT_EQ(static_cast<std::size_t>(found.size()), _tours.size());
        for (std::size_t i = 0; i < _tours.size(); ++i) {
            const auto& tour = *_tours[i];
            const auto& series = tour.data();
            const auto read = found[static_cast<qsizetype>(i)];
            SCOPED_TRACE(qPrintable(tour.description()));
            EXPECT_EQ(static_cast<std::size_t>(read[u"points"].toInt()), series.size());
            EXPECT_EQ(QDateTime::fromString(read[u"first"].toString(), Qt::ISODate), tour.date());
            EXPECT_EQ(QDateTime::fromString(read[u"last"].toString(), Qt::ISODate),
                      tour.date().addSecs(series.back().time));
            EXPECT_NEAR(read[u"metres"].toDouble(), tour.totalDistance() * 1000.0, 0.1);
            int climb = 0;
            int pulses = series.front().pulse;
            for (std::size_t entry = 1; entry < series.size(); ++entry) {
                climb += std::max(0, series[entry].altitude - series[entry - 1].altitude);
                pulses += series[entry].pulse;
            }
            EXPECT_EQ(read[u"climb"].toInt(), climb);
            EXPECT_EQ(read[u"pulses"].toInt(), pulses);
            EXPECT_GT(read[u"lowestPulse"].toInt(), 0);
        }
    }

    void expectNotRefused()
    {
        const auto gpsbabel = QStandardPaths::findExecutable(QStringLiteral("gpsbabel"));
        if (gpsbabel.isEmpty())
            GTEST_SKIP() << "gpsbabel is not there";
        for (const auto& path : _paths)
            expectSuccess(gpsbabel, {QStringLiteral("-i"), QStringLiteral("gtrnctr"), QStringLiteral("-f"),
                                     path, QStringLiteral("-o"), QStringLiteral("unicsv"),
                                     QStringLiteral("-F"), _folder.path("read.csv")});
    }

    void addRecordings()
    {
        const QDir dumps(samplePath(QStringLiteral("dumps")));
        for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files, QDir::Name)) {
            const auto tours = realTours(name);
            add(tours);
            for (const auto& tour : tours)
                add({tour});
        }
        ASSERT_GE(_paths.size(), 50);
    }

    void addHostileTours()
    {
        const std::vector<std::optional<QString>> types{std::nullopt, QString(),
                                                        QStringLiteral("\"<&>'\u0001\uFFFE")};
        Tours all;
        for (const auto& type : types)
            all.push_back(tourOfType(type));
        all.push_back(OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 12, 31)));
        for (const std::int16_t change :
             {std::int16_t{0}, std::int16_t{1}, std::int16_t{300}, std::int16_t{-300},
              std::numeric_limits<std::int16_t>::max(), std::numeric_limits<std::int16_t>::min()}) {
            for (const std::int32_t extreme : {0, -1, std::numeric_limits<std::int32_t>::max(),
                                               std::numeric_limits<std::int32_t>::min()}) {
                auto dictionary = startValues(extreme, extreme);
                const DataRect sample{.temperature = change,
                                      .cadence = change,
                                      .pulseChange = change,
                                      .altitudeChange = change,
                                      .distance = extreme};
                dictionary.tourData = {sample, sample, sample};
                all.push_back(tourOf(dictionary));
            }
        }
        all.front()->setTitle(QStringLiteral("]]> & <b>\u0001\u001F\uFFFE\uFFFF\t\r\n") + QChar(u'\xD800') +
                              QChar(u'a') + QChar(u'\xDC00'));
        all.front()->setTourDescription(QString(QChar(u'\0')) + QStringLiteral("\U0001F6B2 \U0001FFFE"));
        for (const auto& tour : all)
            add({tour});
        add(all); // all of which start at the same time
    }

private:
    TemporaryFolder _folder;
    QStringList _paths;
    Tours _tours; ///< in all files together
};

TEST_F(TcxFiles, OfRecordingsAreValid)
{
    SKIP_WITHOUT_SAMPLES();
    addRecordings();
    expectValid();
}

TEST_F(TcxFiles, OfRecordingsReadBackEqual)
{
    SKIP_WITHOUT_SAMPLES();
    addRecordings();
    expectReadBackByPython();
}

// It takes no points without a place, so there is nothing to compare.
TEST_F(TcxFiles, OfRecordingsAreNotRefused)
{
    SKIP_WITHOUT_SAMPLES();
    addRecordings();
    expectNotRefused();
}

TEST_F(TcxFiles, OfAnythingElseAreValid)
{
    addHostileTours();
    expectValid();
}

TEST_F(TcxFiles, OfAnythingElseAreNotRefused)
{
    addHostileTours();
    expectNotRefused();
}

/// What programs make of the points, to compare with what the tour says.
int climbOf(const ReadActivity& activity)
{
    double climb = 0;
    for (std::size_t i = 1; i < activity.points.size(); ++i)
        climb += std::max(0.0, activity.points[i].altitude - activity.points[i - 1].altitude);
    return static_cast<int>(std::lround(climb));
}

TEST(TcxFormat, TellsWhatWasRecorded)
{
    SKIP_WITHOUT_SAMPLES();
    const QDir dumps(samplePath(QStringLiteral("dumps")));
    int read = 0;
    for (const auto& name : dumps.entryList({QStringLiteral("*.odo")}, QDir::Files, QDir::Name)) {
        const auto tours = realTours(name);
        const auto activities = readBack(tours);
        ASSERT_EQ(activities.size(), tours.size());
        for (std::size_t t = 0; t < tours.size(); ++t, ++read) {
            const auto& tour = *tours[t];
            const auto& activity = activities[t];
            SCOPED_TRACE(qPrintable(name + u' ' + tour.description()));
            double metres = 0;
            std::int32_t climb = 0;
            // Samples that were appended are not in the series yet.
            const auto samples = tour.tourData().first(tour.data().size() - 1);
            for (const auto& sample : samples) {
                metres += sample.distance;
                climb += std::max<std::int32_t>(0, sample.altitudeChange);
            }
            EXPECT_EQ(activity.lapStart, tour.date());
            EXPECT_EQ(activity.seconds, 20.0 * static_cast<double>(samples.size()));
            EXPECT_NEAR(activity.distance, metres, 1);
            EXPECT_NEAR(activity.maxSpeed * 3.6, tour.maxSpeed(), 0.02);
            EXPECT_EQ(climbOf(activity), climb);
            ASSERT_EQ(activity.points.size(), samples.size() + 1);
            EXPECT_EQ(activity.points.back().distance, activity.distance);
            for (std::size_t i = 0; i < activity.points.size(); ++i) {
                const auto& point = activity.points[i];
                const auto& entry = tour.data()[i];
                ASSERT_EQ(point.time, tour.date().addSecs(static_cast<qint64>(i) * 20));
                ASSERT_EQ(point.altitude, entry.altitude);
                ASSERT_NEAR(point.speed * 3.6, entry.speed, 0.02);
                ASSERT_EQ(point.watts, entry.power);
                ASSERT_EQ(point.pulse, recordedPulse(entry.pulse));
                ASSERT_EQ(point.cadence, hasCadence(tour) ? std::optional(int{entry.cadence}) : std::nullopt);
            }
        }
    }
    EXPECT_GE(read, 50);
}

TEST(TcxFormat, HasTheThreeSports)
{
    const auto sportOf = [](const std::optional<QString>& type) { return readBack(tourOfType(type)).sport; };
    EXPECT_EQ(sportOf(QStringLiteral("Bike")), QStringLiteral("Biking"));
    EXPECT_EQ(sportOf(QStringLiteral("Ski-Bike")), QStringLiteral("Biking"));
    EXPECT_EQ(sportOf(QStringLiteral("Jogging")), QStringLiteral("Running"));
    for (const auto& other : {std::optional(QStringLiteral("Ski")), std::optional(QStringLiteral("bike")),
                              std::optional(QString()), std::optional<QString>()})
        EXPECT_EQ(sportOf(other), QStringLiteral("Other"));
}

TEST(TcxFormat, HasOnePointOfATourWithoutSamples)
{
    const auto activity = readBack(tourOf(startValues(500, 90)));
    EXPECT_EQ(activity.seconds, 0);
    ASSERT_EQ(activity.points.size(), 1U);
    EXPECT_EQ(activity.points.front().altitude, 500);
    EXPECT_EQ(activity.points.front().pulse, 90);
}

TEST(TcxFormat, LeavesOutWhatItHasNoRoomFor)
{
    auto dictionary = startValues(500, 0);
    const auto add = [&](int pulse, int cadence) {
        dictionary.tourData.push_back({.cadence = static_cast<std::int16_t>(cadence),
                                       .pulseChange = static_cast<std::int16_t>(pulse),
                                       .distance = -10});
    };
    add(0, 0);
    add(255, 254);
    add(1, 255);
    add(-257, -1);
    const auto activity = readBack(tourOf(dictionary));
    ASSERT_EQ(activity.points.size(), 5U);
    const std::vector<std::optional<int>> pulses{std::nullopt, std::nullopt, 255, std::nullopt, std::nullopt};
    const std::vector<std::optional<int>> cadences{0, 0, 254, std::nullopt, std::nullopt};
    for (std::size_t i = 0; i < pulses.size(); ++i) {
        EXPECT_EQ(activity.points[i].pulse, pulses[i]) << i;
        EXPECT_EQ(activity.points[i].cadence, cadences[i]) << i;
    }
    // (255 + 256 − 1) / 3
    EXPECT_EQ(activity.avgPulse, 170);
    EXPECT_EQ(activity.maxPulse, std::nullopt);
    EXPECT_EQ(activity.distance, -40) << "as the device has it";
}

TEST(TcxFormat, HasNoCadenceAndNoPulseWithoutTheirSensors)
{
    auto dictionary = startValues(500, 0);
    dictionary.tourData.resize(3);
    const auto bytes = exported(TcxFormat(), {tourOf(dictionary)});
    EXPECT_FALSE(bytes.contains("Cadence"));
    EXPECT_FALSE(bytes.contains("HeartRate"));
    EXPECT_FALSE(bytes.contains("Position"));
    EXPECT_FALSE(bytes.contains("Notes")) << "\"n/a\" is no title";
}

TEST(TcxFormat, KeepsTitleAndDescription)
{
    const auto tour = tourThrough({500, 510});
    tour->setTitle(QStringLiteral("Up <&> \"down\" ]]>\u0001"));
    EXPECT_EQ(readBack(tour).notes, QStringLiteral("Up <&> \"down\" ]]>"));
    tour->setTourDescription(QStringLiteral("Rain.\r\nWind.\t\U0001F6B2"));
    EXPECT_EQ(readBack(tour).notes, QStringLiteral("Up <&> \"down\" ]]>\nRain.\r\nWind.\t\U0001F6B2"));
}

TEST(TcxFormat, TimesGoOnWhereTheClocksChange)
{
    auto dictionary = startValues();
    dictionary.tourData.resize(3 * 60 + 1);
    for (const auto& [start, utc] : {std::pair(berlin(2007, 3, 25, 1, 59), "2007-03-25T00:59:00Z"),
                                     std::pair(berlin(2007, 10, 28, 1, 59), "2007-10-27T23:59:00Z"),
                                     std::pair(berlin(2008, 2, 29, 0, 30), "2008-02-28T23:30:00Z"),
                                     std::pair(berlin(1969, 12, 31, 23, 59), "1969-12-31T22:59:00Z")}) {
        const auto tour = tourOf(dictionary);
        tour->setDate(start);
        const auto activity = readBack(tour);
        EXPECT_EQ(activity.id, QLatin1String(utc));
        EXPECT_EQ(activity.points.front().time, activity.lapStart);
        for (std::size_t i = 0; i < activity.points.size(); ++i)
            ASSERT_EQ(activity.points[i].time, start.addSecs(static_cast<qint64>(i) * 20)) << utc;
    }
}

TEST(TcxFormat, ToursOfTheSameStartStayApart)
{
    const auto first = tourThrough({500, 510});
    const auto activities = readBack(Tours{first, tourThrough({500, 510, 520}), first});
    ASSERT_EQ(activities.size(), 3U);
    EXPECT_EQ(activities[0].id, QStringLiteral("2007-03-10T07:00:00Z"));
    EXPECT_EQ(activities[1].id, QStringLiteral("2007-03-10T07:00:00.000001Z"));
    EXPECT_EQ(activities[2].id, QStringLiteral("2007-03-10T07:00:00.000002Z"));
    EXPECT_EQ(activities[1].lapStart, first->date());
    EXPECT_EQ(activities[1].points.size(), 3U);
}

TEST(TcxFormat, RefusesYearsThatItCannotTell)
{
    const TcxFormat format;
    const auto refusalOf = [&format](const QDateTime& start) {
        const auto tour = tourThrough({500, 510});
        tour->setDate(start);
        return format.refusal({tourThrough({500}), tour});
    };
    const QTimeZone utc("UTC");
    const auto at = [&](int year, int month, int day, int hour, int second = 0) {
        return QDateTime(QDate(year, month, day), QTime(hour, hour == 23 ? 59 : 0, second), utc);
    };
    EXPECT_EQ(refusalOf(at(1, 1, 1, 0)), QString());
    EXPECT_EQ(refusalOf(at(9999, 12, 31, 23, 39)), QString());
    EXPECT_NE(refusalOf(at(9999, 12, 31, 23, 40)), QString()) << "its end is beyond";
    EXPECT_NE(refusalOf(at(-1, 12, 31, 23, 0)), QString());
    EXPECT_TRUE(refusalOf(at(12007, 3, 10, 8)).contains(QStringLiteral("12007-03-10")))
        << qPrintable(refusalOf(at(12007, 3, 10, 8)));

    const auto late = tourThrough({500, 510});
    late->setDate(at(12007, 3, 10, 8));
    const TemporaryFolder folder;
    const auto outcome = TourExport(format, {.name = {}}, {late, tourThrough({500, 510})}, folder.path(),
                                    TourExport::Layout::filePerTour)
                             .write(TourExport::Existing::keep, [](std::size_t) { return true; });
    ASSERT_EQ(outcome.failures.size(), 1U);
    EXPECT_EQ(outcome.failures.front().reason, format.refusal({late}));
    EXPECT_EQ(outcome.written, 1U) << "the other one";
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("2007-03-10_08-00_Bike.tcx")});
}

TEST(TcxFormat, EndsWithTheTourAfterWhichItIsNotWanted)
{
    QByteArray bytes;
    int told = 0;
    TcxFormat().write({tourThrough({500}), tourThrough({510})}, {.name = {}},
                      ExportSink([&bytes](QByteArrayView piece) { bytes += piece; },
                                 [&told] {
                                     ++told;
                                     return false;
                                 }));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(bytes.count("<Activity "), 1);
}

} // namespace
} // namespace ridelog
