#include "exchange/FitFormat.h"

#include "exchange/FitEncoder.h"
#include "exchange/RecordedValues.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>

namespace ridelog {
namespace {

/// Seconds of the format's calendar, whether or not it has such a date.
std::int64_t secondsOf(const QDateTime& date)
{
    return date.toSecsSinceEpoch() - Fit::epoch;
}

bool isDate(std::int64_t seconds)
{
    return seconds >= Fit::earliestDate && seconds <= Fit::latestDate;
}

/// The instant as the clock on the wall showed it, where the format has such a date.
std::optional<double> wallClock(const QDateTime& date)
{
    const auto seconds = secondsOf(date) + date.offsetFromUtc();
    return isDate(seconds) ? std::optional(static_cast<double>(seconds)) : std::nullopt;
}

QString dateText(std::int64_t seconds)
{
    return CalendarDate::text(QDateTime::fromSecsSinceEpoch(Fit::epoch + seconds, QTimeZone::utc()));
}

int profileSportOf(const OdoTour& tour)
{
    switch (sportOf(tour)) {
    case Sport::cycling:
        return Fit::Sport::cycling;
    case Sport::running:
        return Fit::Sport::running;
    case Sport::other:
        break;
    }
    return Fit::Sport::generic;
}

/// The values of a field in all records. Totals are made of these, not of the tour's own, which count what
/// was not recorded as 0: readers that add the records up get the same.
class Recorded {
public:
    explicit Recorded(const Fit::Field& field) : _field(field) {}

    /// The field of one record. What it has no room for does not count.
    FitValue take(std::optional<double> value)
    {
        if (!value || !_field.stored(*value))
            return {_field, std::nullopt};
        _highest = _count == 0 ? *value : std::max(_highest, *value);
        _sum += *value;
        ++_count;
        return {_field, value};
    }

    std::optional<double> average() const
    {
        return _count == 0 ? std::nullopt : std::optional(_sum / _count);
    }
    std::optional<double> highest() const { return _count == 0 ? std::nullopt : std::optional(_highest); }

private:
    Fit::Field _field;
    double _sum = 0;
    double _highest = 0;
    int _count = 0;
};

/// A tour on its way into a file.
class FitActivity {
public:
    explicit FitActivity(const OdoTour& tour)
        : _tour(tour),
          _start(static_cast<double>(secondsOf(tour.date()))),
          _end(static_cast<double>(secondsOf(endOf(tour))))
    {
    }

    /// The time of the last entry. The tour's own end is 20 s later, because its duration counts the start as
    /// a sample; nothing was recorded in them, and elapsed times have to agree with the records.
    static QDateTime endOf(const OdoTour& tour) { return timeOf(tour, tour.data().back()); }

    QByteArray encoded() &&
    {
        writeFileId();
        writeTimer(_start, Fit::EventType::start);
        writeRecords();
        writeTimer(_end, Fit::EventType::stopAll);
        writeLap();
        writeSession();
        writeActivity();
        return std::move(_file).finish();
    }

private:
    void writeFileId()
    {
        using Fit::FileId;
        _file.write(FileId::message, {{FileId::type, Fit::FileType::activity},
                                      {FileId::manufacturer, Fit::Manufacturer::development},
                                      {FileId::product, 0},
                                      {FileId::timeCreated, _start}});
    }

    void writeTimer(double time, int eventType)
    {
        using Fit::Event;
        _file.write(
            Event::message,
            {{Fit::timestamp, time}, {Event::event, Fit::EventOf::timer}, {Event::eventType, eventType}});
    }

    void writeRecords()
    {
        using Fit::Record;
        const bool cadence = hasCadence(_tour);
        const bool temperature = hasTemperature(_tour);
        FitValues values;
        for (const auto& entry : _tour.data()) {
            values = {{Fit::timestamp, _start + entry.time},
                      {Record::altitude, entry.altitude},
                      {Record::distance, entry.distance * metresPerKilometre},
                      _speeds.take(entry.speed / kmhPerMetrePerSecond),
                      _pulses.take(recordedPulse(entry.pulse)),
                      _powers.take(entry.power)};
            if (cadence)
                values.push_back(_cadences.take(entry.cadence));
            if (temperature)
                values.push_back(_temperatures.take(entry.temperature));
            _file.write(Record::message, values);
        }
    }

    void writeLap()
    {
        using Fit::Lap;
        auto values = totals<Lap>();
        values.push_back({Lap::lapTrigger, Fit::LapTrigger::sessionEnd});
        _file.write(Lap::message, values);
    }

    void writeSession()
    {
        using Fit::Session;
        auto values = totals<Session>();
        values.push_back({Session::firstLapIndex, 0});
        values.push_back({Session::numLaps, 1});
        values.push_back({Session::trigger, Fit::SessionTrigger::activityEnd});
        _file.write(Session::message, values);
    }

    void writeActivity()
    {
        using Fit::Activity;
        _file.write(Activity::message, {{Fit::timestamp, _end},
                                        {Activity::totalTimerTime, seconds()},
                                        {Activity::numSessions, 1},
                                        {Activity::type, Fit::ActivityType::manual},
                                        {Activity::event, Fit::EventOf::activity},
                                        {Activity::eventType, Fit::EventType::stop},
                                        {Activity::localTimestamp, wallClock(endOf(_tour))}});
    }

    /// What laps and sessions have in common.
    template <typename Message>
    FitValues totals() const
    {
        // The timer never stops: standing still is recorded like riding.
        return {{Fit::messageIndex, 0},
                {Fit::timestamp, _end},
                {Message::event, Fit::EventOf::lap},
                {Message::eventType, Fit::EventType::stop},
                {Message::startTime, _start},
                {Message::sport, profileSportOf(_tour)},
                {Message::totalElapsedTime, seconds()},
                {Message::totalTimerTime, seconds()},
                {Message::totalDistance, metres()},
                {Message::avgSpeed, averageSpeed()},
                {Message::maxSpeed, _speeds.highest()},
                {Message::avgHeartRate, _pulses.average()},
                {Message::maxHeartRate, _pulses.highest()},
                {Message::avgCadence, _cadences.average()},
                {Message::maxCadence, _cadences.highest()},
                {Message::avgPower, _powers.average()},
                {Message::maxPower, _powers.highest()},
                {Message::totalAscent, _tour.elevationGain()},
                {Message::totalDescent, _tour.elevationLoss()},
                {Message::avgTemperature, _temperatures.average()},
                {Message::maxTemperature, _temperatures.highest()}};
    }

    double seconds() const { return _end - _start; }
    double metres() const { return _tour.totalDistance() * metresPerKilometre; }
    /// Over the time of the timer, as the format defines it.
    std::optional<double> averageSpeed() const
    {
        return seconds() > 0 ? std::optional(metres() / seconds()) : std::nullopt;
    }

    const OdoTour& _tour;
    double _start; ///< seconds of the format's calendar, as all dates here
    double _end;
    FitEncoder _file;
    Recorded _speeds{Fit::Record::speed};
    Recorded _pulses{Fit::Record::heartRate};
    Recorded _powers{Fit::Record::power};
    Recorded _cadences{Fit::Record::cadence};
    Recorded _temperatures{Fit::Record::temperature};
};

} // namespace

QString FitFormat::name() const
{
    return QStringLiteral("fit");
}

QString FitFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "Activity for devices and services (FIT)");
}

QString FitFormat::ending() const
{
    return QStringLiteral("fit");
}

QString FitFormat::refusal(const Tours& tours) const
{
    for (const auto& tour : tours) {
        const auto end = FitActivity::endOf(*tour);
        if (secondsOf(tour->date()) < Fit::earliestDate)
            return QCoreApplication::translate("ExportFormat",
                                               "FIT knows no dates before %1, and the tour starts at %2")
                .arg(dateText(Fit::earliestDate), CalendarDate::text(tour->date()));
        if (secondsOf(end) > Fit::latestDate)
            return QCoreApplication::translate("ExportFormat",
                                               "FIT knows no dates after %1, and the tour ends at %2")
                .arg(dateText(Fit::latestDate), CalendarDate::text(end));
    }
    return {};
}

void FitFormat::write(const Tours& tours, const ExportSource&, const ExportSink& sink) const
{
    for (const auto& tour : tours) {
        sink.write(FitActivity(*tour).encoded());
        if (!sink.tourDone())
            return;
    }
}

} // namespace ridelog
