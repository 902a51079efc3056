// Tables, read back by the csv module of Python.

#include "exchange/RecordedValues.h"
#include "exchange/SamplesCsvFormat.h"
#include "exchange/SummaryCsvFormat.h"
#include "tests/exchange/Formats.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace ridelog {
namespace {

class CsvReadByPython : public testing::Test {
protected:
    void SetUp() override
    {
        if (_python.isEmpty())
            GTEST_SKIP() << "python3 is not there";
    }

    /// The lines as objects by column.
    QJsonArray lines(const QByteArray& csv) const
    {
        QProcess process;
        process.start(
            _python,
            {QStringLiteral("-c"),
             QStringLiteral("import csv, io, json, sys\n"
                            "text = sys.stdin.buffer.read().decode('utf-8', 'strict')\n"
                            "lines = list(csv.DictReader(io.StringIO(text, newline=''), strict=True))\n"
                            "assert all(None not in line and None not in line.values() for line in lines)\n"
                            "print(json.dumps(lines))")});
        process.write(csv);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(60'000) && process.exitCode() == 0)
            << process.readAllStandardError().toStdString();
        return QJsonDocument::fromJson(process.readAllStandardOutput()).array();
    }

private:
    const QString _python = QStandardPaths::findExecutable(QStringLiteral("python3"));
};

float number(const QJsonValue& line, QStringView column)
{
    bool isNumber = false;
    const auto value = line[column].toString().toFloat(&isNumber);
    EXPECT_TRUE(isNumber) << qPrintable(column.toString());
    return value;
}

QString cell(const QJsonValue& line, QStringView column)
{
    EXPECT_TRUE(line[column].isString()) << qPrintable(column.toString());
    return line[column].toString();
}

TEST_F(CsvReadByPython, SamplesOfRealToursReadBackToTheLastDigit)
{
    SKIP_WITHOUT_SAMPLES();
    const auto tours = realTours();
    const auto lines = this->lines(exported(SamplesCsvFormat(), tours));
    qsizetype next = 0;
    for (const auto& tour : tours) {
        const bool cadence = hasCadence(*tour);
        for (const auto& entry : tour->data()) {
            ASSERT_LT(next, lines.size());
            const auto line = lines[next++];
            EXPECT_EQ(QDateTime::fromString(cell(line, u"tourStart"), Qt::ISODate), tour->date());
            EXPECT_EQ(QDateTime::fromString(cell(line, u"date"), Qt::ISODate),
                      tour->date().addSecs(entry.time));
            EXPECT_EQ(number(line, u"time_s"), static_cast<float>(entry.time));
            EXPECT_EQ(number(line, u"altitude_m"), static_cast<float>(entry.altitude));
            EXPECT_EQ(number(line, u"distance_km"), entry.distance);
            EXPECT_EQ(number(line, u"power_W"), static_cast<float>(entry.power));
            EXPECT_EQ(number(line, u"speed_kmh"), entry.speed);
            EXPECT_EQ(number(line, u"climbingPercentage"), entry.climbingPercentage);
            EXPECT_EQ(number(line, u"temperature_C"), entry.temperature);
            EXPECT_EQ(cell(line, u"pulse_bpm"), entry.pulse == 0 ? QString() : QString::number(entry.pulse));
            EXPECT_EQ(cell(line, u"cadence_rpm"), cadence ? QString::number(entry.cadence) : QString());
        }
    }
    EXPECT_EQ(next, lines.size());
}

TEST(SamplesCsv, DatesFollowTheTourOverAChangeOfTheClocks)
{
    auto tour = tourThrough({500, 510, 520});
    // 20 s before the clocks go back.
    tour->setDate(
        QDateTime(QDate(2007, 10, 28), QTime(0, 59, 40), Qt::UTC).toTimeZone(berlin(2007, 1, 1).timeZone()));
    const auto csv = exported(SamplesCsvFormat(), {tour});
    EXPECT_TRUE(csv.startsWith("tourStart,date,time_s,")) << csv.toStdString();
    EXPECT_EQ(csv.count("\r\n"), 4);
    EXPECT_TRUE(csv.contains("\r\n2007-10-28T02:59:40+02:00,2007-10-28T02:00:00+01:00,20,510,0.2,"))
        << csv.toStdString();
}

TEST_F(CsvReadByPython, SummariesOfRealToursReadBackToTheLastDigit)
{
    SKIP_WITHOUT_SAMPLES();
    const auto tours = realTours();
    const auto lines = this->lines(exported(SummaryCsvFormat(), tours));
    ASSERT_EQ(static_cast<std::size_t>(lines.size()), tours.size());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto& tour = *tours[static_cast<std::size_t>(i)];
        const auto line = lines[i];
        EXPECT_EQ(QDateTime::fromString(cell(line, u"start"), Qt::ISODate), tour.date());
        EXPECT_EQ(QDateTime::fromString(cell(line, u"end"), Qt::ISODate), tour.endDate());
        EXPECT_EQ(cell(line, u"type"), tour.type());
        EXPECT_EQ(cell(line, u"title"), QString());
        EXPECT_EQ(cell(line, u"removed"), QStringLiteral("false"));
        EXPECT_EQ(number(line, u"samples"), static_cast<float>(tour.tourData().size()));
        EXPECT_EQ(number(line, u"duration_s"), static_cast<float>(tour.duration()));
        EXPECT_EQ(number(line, u"totalDistance_km"), tour.totalDistance());
        EXPECT_EQ(number(line, u"avgPower_W"), static_cast<float>(tour.avgPower()));
        // Every summary value, under a name that begins with its key.
        const auto columns = line.toObject().keys();
        forEachValue(tour.calculatedValues(), [&](QStringView key, const auto& value) {
            const auto column = columns.filter(QRegularExpression(QStringLiteral("^%1(_|$)").arg(key)));
            ASSERT_EQ(column.size(), 1) << qPrintable(key.toString());
            if (key.endsWith(u"Pulse") && *value == 0)
                EXPECT_EQ(cell(line, column.constFirst()), QString());
            else
                EXPECT_EQ(number(line, column.constFirst()), static_cast<float>(*value));
        });
    }
}

TEST_F(CsvReadByPython, TextsSurviveWhateverIsInThem)
{
    auto tour = tourThrough({500, 510});
    tour->setTitle(QStringLiteral(" \"Over\", under; \u0001and\uFEFF out\t🚲 "));
    const auto description = QStringLiteral("First line\r\nsecond, \"third\"\n");
    tour->setTourDescription(description + QChar(0xD800));
    tour->setRemoved(true);
    const auto empty = OdoTour::initWithOdoDataTourDict(std::nullopt, berlin(2007, 12, 31));
    const auto lines = this->lines(exported(SummaryCsvFormat(), {tour, empty}));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(cell(lines[0], u"title"), QStringLiteral(" \"Over\", under; and\uFEFF out\t🚲 "));
    EXPECT_EQ(cell(lines[0], u"description"), description);
    EXPECT_EQ(cell(lines[0], u"removed"), QStringLiteral("true"));
    for (const auto* column :
         {u"type", u"title", u"maxTemp_C", u"minTemp_C", u"averageTemp_C", u"maxPulse_bpm"})
        EXPECT_EQ(cell(lines[1], column), QString()) << qPrintable(QString::fromUtf16(column));
    EXPECT_EQ(number(lines[1], u"totalDistance_km"), 0);
}

} // namespace
} // namespace ridelog
