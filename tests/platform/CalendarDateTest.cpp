#include "platform/CalendarDate.h"

#include "tests/support/Dates.h"

#include <gtest/gtest.h>

namespace ridelog {
namespace {

struct FieldsCase {
    const char* zone;
    int fields[5]; // year, month, day, hour, minute
    const char* text;
};

class CalendarDateFields : public testing::TestWithParam<FieldsCase> {};

TEST_P(CalendarDateFields, BecomeTheDate)
{
    const auto& [zone, fields, text] = GetParam();
    const auto date =
        CalendarDate::fromFields(fields[0], fields[1], fields[2], fields[3], fields[4], 0, QTimeZone(zone));
    EXPECT_EQ(CalendarDate::text(date).toStdString(), text);
}

INSTANTIATE_TEST_SUITE_P(
    CarryOver, CalendarDateFields,
    testing::Values(FieldsCase{"Europe/Berlin", {2007, 3, 10, 8, 0}, "2007-03-10 08:00:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2007, 13, 1, 0, 0}, "2008-01-01 00:00:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2007, 0, 0, 0, 0}, "2006-11-30 00:00:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2007, 2, 29, 9, 0}, "2007-03-01 09:00:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2008, 2, 29, 9, 0}, "2008-02-29 09:00:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2007, 12, 31, 24, 60}, "2008-01-01 01:00:00 +0100"},
                    FieldsCase{"UTC", {2007, -11, 1, 0, -1}, "2005-12-31 23:59:00 +0000"}));

INSTANTIATE_TEST_SUITE_P(
    ChangesOfTheClocks, CalendarDateFields,
    // A skipped time is read with the offset before the change, of a repeated one the first is meant.
    testing::Values(FieldsCase{"Europe/Berlin", {2007, 3, 25, 1, 59}, "2007-03-25 01:59:00 +0100"},
                    FieldsCase{"Europe/Berlin", {2007, 3, 25, 2, 30}, "2007-03-25 03:30:00 +0200"},
                    FieldsCase{"Europe/Berlin", {2007, 3, 25, 3, 0}, "2007-03-25 03:00:00 +0200"},
                    FieldsCase{"Europe/Berlin", {2007, 10, 28, 2, 30}, "2007-10-28 02:30:00 +0200"},
                    FieldsCase{"Europe/Berlin", {2007, 10, 28, 3, 0}, "2007-10-28 03:00:00 +0100"},
                    FieldsCase{"America/New_York", {2007, 3, 11, 2, 15}, "2007-03-11 03:15:00 -0400"},
                    FieldsCase{"America/New_York", {2007, 11, 4, 1, 15}, "2007-11-04 01:15:00 -0400"},
                    FieldsCase{"Australia/Lord_Howe", {2007, 10, 28, 2, 10}, "2007-10-28 02:40:00 +1100"},
                    FieldsCase{"Australia/Lord_Howe", {2007, 3, 25, 1, 40}, "2007-03-25 01:40:00 +1100"},
                    FieldsCase{"Asia/Kolkata", {2007, 3, 25, 2, 30}, "2007-03-25 02:30:00 +0530"}));

TEST(CalendarDate, NowIsInTheLocalZone)
{
    const auto now = CalendarDate::now();
    EXPECT_EQ(now.timeZone(), CalendarDate::localTimeZone());
    EXPECT_LT(std::abs(now.msecsTo(QDateTime::currentDateTimeUtc())), 10'000);
}

TEST(CalendarDate, RealSecondsPassOverAChangeOfTheClocks)
{
    EXPECT_EQ(CalendarDate::text(berlin(2007, 3, 25, 1, 59).addSecs(60)).toStdString(),
              "2007-03-25 03:00:00 +0200");
}

TEST(CalendarDate, KeepsItsTimeOfDayOnAnotherDay)
{
    const auto moved = [](const char* zone, QDate from, QTime time, QDate to) {
        const auto date = CalendarDate::fromFields(from.year(), from.month(), from.day(), time.hour(),
                                                   time.minute(), time.second(), QTimeZone(zone))
                              .addMSecs(time.msec());
        const auto other = CalendarDate::onDay(date, to);
        EXPECT_EQ(other.time().msec(), time.msec());
        return CalendarDate::text(other).toStdString();
    };
    const QTime evening(21, 15, 7, 42);
    EXPECT_EQ(moved("Europe/Berlin", {2007, 3, 24}, evening, {2007, 3, 31}), "2007-03-31 21:15:07 +0200");
    EXPECT_EQ(moved("America/New_York", {2007, 11, 10}, evening, {2007, 11, 3}), "2007-11-03 21:15:07 -0400");
    EXPECT_EQ(moved("Australia/Lord_Howe", {2007, 4, 1}, evening, {2007, 3, 1}), "2007-03-01 21:15:07 +1100");
    EXPECT_EQ(moved("Europe/Berlin", {2007, 3, 18}, {2, 30}, {2007, 3, 25}), "2007-03-25 03:30:00 +0200");
    EXPECT_EQ(moved("UTC", {2007, 12, 31}, {0, 0}, {2008, 1, 1}), "2008-01-01 00:00:00 +0000");
}

} // namespace
} // namespace ridelog
