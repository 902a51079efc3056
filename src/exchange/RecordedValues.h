#pragma once

#include "model/OdoTour.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>

namespace ridelog {

// What a tour's numbers say that other programs must not misread: a zero that means "not recorded".

/// None for 0, which a device without a belt records.
std::optional<std::int32_t> recordedPulse(std::int32_t beatsPerMinute);
/// Whether any entry has a pulse.
bool hasPulse(const OdoTour& tour);
/// Mean over the entries that have a pulse, as programs compute it that know no others; none without any.
std::optional<double> averageRecordedPulse(const OdoTour& tour);
/// Whether a sensor has told the cadence: without one every entry has 0.
bool hasCadence(const OdoTour& tour);
/// Whether the temperatures are the device's: a tour without samples has none.
bool hasTemperature(const OdoTour& tour);

/// What other programs know of a tour's type.
enum class Sport { cycling, running, other };
Sport sportOf(const OdoTour& tour);

inline constexpr double metresPerKilometre = 1000;
inline constexpr double kmhPerMetrePerSecond = 3.6;

/// The instant of a series entry.
QDateTime timeOf(const OdoTour& tour, const SeriesEntry& entry);
/// "2007-03-10T07:00:00Z". Here and below for the years 1 to 9999 only.
QByteArray utcText(const QDateTime& date);
/// The same, appended, of an instant in seconds since 1970.
void appendUtcText(std::string& text, qint64 instant);
/// "2007-03-10T08:00:00+01:00". Of a year that this form does not have, the text form of dates.
QByteArray zonedText(const QDateTime& date);

/// Writes the instants of a tour as zonedText does, in a fraction of its time where they follow each other.
class ZonedTexts {
public:
    /// `tour` has to outlive it.
    explicit ZonedTexts(const OdoTour& tour) : _tour(tour), _start(tour.date().toSecsSinceEpoch()) {}

    QByteArray textOf(const SeriesEntry& entry);

private:
    const OdoTour& _tour;
    qint64 _start; ///< seconds since 1970, as all instants here
    qint64 _from = 0;
    qint64 _until = 0;  ///< what `_offset` holds for ends here
    int _offset = 0;    ///< seconds
    QByteArray _ending; ///< "+01:00"
};

/// The text without characters that XML, and with it most programs, do not take: control characters and
/// halves of pairs.
QString exchangeText(const QString& text);

} // namespace ridelog
