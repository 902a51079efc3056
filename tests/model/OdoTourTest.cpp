#include "model/OdoTour.h"

#include "tests/support/LogCapture.h"
#include "tests/support/Tours.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

std::string startText(int month, int day, int hour, int minute, const QDateTime& now)
{
    auto dictionary = startValues();
    dictionary.month = month;
    dictionary.day = day;
    dictionary.hour = hour;
    dictionary.min = minute;
    return OdoTour::initWithOdoDataTourDict(dictionary, now)->description().toStdString();
}

TEST(OdoTour, StartsInTheLastYearThatIsNotInTheFuture)
{
    const auto now = berlin(2007, 3, 10, 8);
    EXPECT_EQ(startText(3, 10, 8, 0, now), "2007-03-10 08:00:00 +0100");
    EXPECT_EQ(startText(3, 10, 8, 1, now), "2006-03-10 08:01:00 +0100");
    EXPECT_EQ(startText(3, 12, 9, 0, now), "2006-03-12 09:00:00 +0100");
    EXPECT_EQ(startText(12, 31, 23, 59, berlin(2008, 1, 1, 0)), "2007-12-31 23:59:00 +0100");
    EXPECT_EQ(startText(2, 29, 9, 0, now), "2007-03-01 09:00:00 +0100") << "2007 has no leap day";
    EXPECT_EQ(startText(2, 29, 9, 0, berlin(2009, 2, 1)), "2008-02-29 09:00:00 +0100")
        << "1 March is to come";
    EXPECT_EQ(startText(7, 1, 9, 0, berlin(2007, 12, 1)), "2007-07-01 09:00:00 +0200");
}

TEST(OdoTour, LastsTwentySecondsForEveryEntry)
{
    const auto tour = tourThrough({500, 504, 502, 502});
    EXPECT_EQ(tour->duration(), 80.0);
    EXPECT_EQ(tour->hours(), 0);
    EXPECT_EQ(tour->minutes(), 1);
    EXPECT_EQ(CalendarDate::text(tour->endDate()).toStdString(), "2007-03-10 08:01:20 +0100");

    auto dictionary = startValues();
    dictionary.tourData.resize(1000);
    const auto longTour = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
    EXPECT_EQ(longTour->hours(), 5);
    EXPECT_EQ(longTour->minutes(), 33);
}

TEST(OdoTour, EndCountsRealSecondsAcrossAChangeOfTheClocks)
{
    auto dictionary = startValues();
    dictionary.month = 3;
    dictionary.day = 25;
    dictionary.hour = 1;
    dictionary.min = 59;
    dictionary.tourData.resize(2);
    const auto tour = OdoTour::initWithOdoDataTourDict(dictionary, berlin(2007, 12, 31));
    EXPECT_EQ(CalendarDate::text(tour->endDate()).toStdString(), "2007-03-25 03:00:00 +0200");
}

TEST(OdoTour, EndDateStaysWhatItWasFirst)
{
    const auto tour = tourThrough({500, 504});
    const auto end = tour->endDate();
    tour->setDate(berlin(2001, 1, 1));
    EXPECT_EQ(tour->endDate(), end);
    EXPECT_EQ(tour->date(), berlin(2001, 1, 1));
}

TEST(OdoTour, IsTheSameByStartAndDistance)
{
    const auto tour = tourThrough({500, 504});
    const auto other = tourThrough({300, 200});
    other->setTitle(QStringLiteral("another title"));
    other->setRemoved(true);
    EXPECT_TRUE(tour->isEqual(other.get()));
    EXPECT_EQ(*tour, *other);
    EXPECT_EQ(qHash(*tour), qHash(*other));

    EXPECT_FALSE(tour->isEqual(nullptr));
    EXPECT_FALSE(tour->isEqual(tourThrough({500, 504, 505}).get())) << "another distance";

    // The same instant, told in another zone.
    other->setDate(tour->date().toTimeZone(QTimeZone("Asia/Kolkata")));
    EXPECT_EQ(*tour, *other);
    EXPECT_EQ(tour->hash(), other->hash());
    other->setDate(tour->date().addSecs(1));
    EXPECT_FALSE(*tour == *other);
}

TEST(OdoTour, IsUntitledAtFirstAndTakesEdits)
{
    const auto tour = tourThrough({500, 504});
    EXPECT_EQ(tour->title(), QStringLiteral("n/a"));
    EXPECT_EQ(tour->tourDescription(), StyledText(QStringLiteral("n/a")));
    EXPECT_FALSE(tour->removed());

    const LogCapture log;
    tour->setTitle(QStringLiteral("Über den Paß"));
    tour->setTourDescription(QStringLiteral("plain"));
    tour->setRemoved(true);
    EXPECT_EQ(tour->title(), QStringLiteral("Über den Paß"));
    EXPECT_EQ(tour->tourDescription().text(), QStringLiteral("plain"));
    EXPECT_TRUE(tour->removed());
    EXPECT_EQ(tour->tourData().size(), 1U);
    EXPECT_EQ(log.lines().join(u'|').toStdString(),
              "[setTourDescription]|[setRemoved(1)]|[tourDescription]|tourData 1");
}

TEST(OdoTour, AppendedSamplesWaitForTheStoredForm)
{
    const auto tour = tourThrough({500, 504});
    const std::vector<DataRect> tail(3);
    tour->appendTourData(tail);
    EXPECT_EQ(tour->tourData().size(), 4U);
    EXPECT_EQ(tour->data().size(), 2U);
    EXPECT_EQ(tour->duration(), 40.0);
}

} // namespace
} // namespace ridelog
