#include "exchange/RecordedValues.h"

#include <algorithm>
#include <chrono>

namespace ridelog {
namespace {

/// That dates in four digits have.
constexpr int lastYear = 9999;
constexpr qint64 secondsOfADay = 86'400;
constexpr qsizetype localFormLength = 19; // "2007-03-10T08:00:00"

} // namespace

std::optional<std::int32_t> recordedPulse(std::int32_t beatsPerMinute)
{
    return beatsPerMinute == 0 ? std::nullopt : std::optional(beatsPerMinute);
}

bool hasPulse(const OdoTour& tour)
{
    return averageRecordedPulse(tour).has_value();
}

std::optional<double> averageRecordedPulse(const OdoTour& tour)
{
    double sum = 0;
    int count = 0;
    for (const auto& entry : tour.data()) {
        if (const auto pulse = recordedPulse(entry.pulse)) {
            sum += *pulse;
            ++count;
        }
    }
    return count == 0 ? std::nullopt : std::optional(sum / count);
}

bool hasCadence(const OdoTour& tour)
{
    return std::ranges::any_of(tour.data(), [](const SeriesEntry& entry) { return entry.cadence != 0; });
}

bool hasTemperature(const OdoTour& tour)
{
    return !tour.tourData().empty();
}

Sport sportOf(const OdoTour& tour)
{
    const auto type = tour.type().value_or(QString());
    if (type == u"Bike" || type == u"Ski-Bike")
        return Sport::cycling;
    return type == u"Jogging" ? Sport::running : Sport::other;
}

QDateTime timeOf(const OdoTour& tour, const SeriesEntry& entry)
{
    return tour.date().addSecs(entry.time);
}

QByteArray utcText(const QDateTime& date)
{
    std::string text;
    appendUtcText(text, date.toSecsSinceEpoch());
    return QByteArray::fromStdString(text);
}

void appendUtcText(std::string& text, qint64 instant)
{
    // A file of all tours has an instant for each of their samples: with the toolkit's dates they would take
    // most of the time.
    using namespace std::chrono;
    const sys_seconds point{seconds(instant)};
    const auto midnight = floor<days>(point);
    const year_month_day date(midnight);
    const hh_mm_ss time(point - midnight);
    char form[] = "0000-00-00T00:00:00Z";
    const auto put = [&form](int number, int lastDigit) {
        for (; number > 0; number /= 10)
            form[lastDigit--] = static_cast<char>('0' + number % 10);
    };
    put(static_cast<int>(date.year()), 3);
    put(static_cast<int>(static_cast<unsigned>(date.month())), 6);
    put(static_cast<int>(static_cast<unsigned>(date.day())), 9);
    put(static_cast<int>(time.hours().count()), 12);
    put(static_cast<int>(time.minutes().count()), 15);
    put(static_cast<int>(time.seconds().count()), 18);
    text += form;
}

QByteArray zonedText(const QDateTime& date)
{
    const auto year = date.date().year();
    if (year < 1 || year > lastYear)
        return CalendarDate::text(date).toLatin1();
    // Of a date in a zone the toolkit's form leaves out the offset; of one with an offset it has it.
    return date.toOffsetFromUtc(date.offsetFromUtc()).toString(Qt::ISODate).toLatin1();
}

QByteArray ZonedTexts::textOf(const SeriesEntry& entry)
{
    const auto instant = _start + entry.time;
    if (instant < _from || instant >= _until) {
        const auto date = timeOf(_tour, entry);
        // Whatever the form does not have is left to those who know.
        if (date.date().year() < 1 || date.date().year() >= lastYear)
            return zonedText(date);
        const auto change = _tour.date().timeZone().nextTransition(date).atUtc;
        _from = instant;
        _until = change.isValid() ? change.toSecsSinceEpoch() : instant + secondsOfADay;
        _offset = date.offsetFromUtc();
        _ending = zonedText(date).mid(localFormLength);
    }
    std::string text;
    appendUtcText(text, instant + _offset);
    return QByteArray(text.data(), localFormLength) + _ending;
}

QString exchangeText(const QString& text)
{
    const auto isKept = [&text](qsizetype i) {
        const auto character = text[i];
        if (character.isHighSurrogate())
            return i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (character.isLowSurrogate())
            return i > 0 && text[i - 1].isHighSurrogate();
        const auto code = character.unicode();
        return (code >= 0x20 || code == u'\t' || code == u'\n' || code == u'\r') && code != 0xFFFE &&
               code != 0xFFFF;
    };
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isKept(i))
            kept += text[i];
    }
    return kept;
}

} // namespace ridelog
