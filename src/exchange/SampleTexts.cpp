#include "exchange/SampleTexts.h"

#include "exchange/TourTexts.h"
#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

namespace ridelog {
namespace {

QString translated(const char* name)
{
    return QCoreApplication::translate("SampleTexts", name);
}

} // namespace

SampleTexts::SampleTexts(const Defaults& defaults)
    : _distance(UnitFormatters::tourDistance(defaults)),
      _speed(UnitFormatters::tourSpeed(defaults)),
      _altitude(UnitFormatters::altitude(defaults)),
      _altitudeUnit(ReadableUnits(defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit())
{
}

QString SampleTexts::text(SampleColumn column, const SeriesEntry& entry) const
{
    switch (column) {
    case SampleColumn::time:
        return TimeFormatter::text(entry.time);
    case SampleColumn::distance:
        return _distance.stringForObjectValue(entry.distance);
    case SampleColumn::altitude:
        return _altitude.stringForObjectValue(entry.altitude);
    case SampleColumn::speed:
        return _speed.stringForObjectValue(entry.speed);
    case SampleColumn::pulse:
        return QLocale().toString(entry.pulse);
    case SampleColumn::power:
        return QLocale().toString(entry.power);
    case SampleColumn::grade:
        return gradeText(entry.climbingPercentage);
    case SampleColumn::temperature:
        return QLocale().toString(entry.temperature);
    case SampleColumn::cadence:
        return QLocale().toString(entry.cadence);
    }
    return {};
}

QString SampleTexts::name(SampleColumn column) const
{
    switch (column) {
    case SampleColumn::time:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Time"));
    case SampleColumn::distance:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Distance"));
    case SampleColumn::altitude:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Altitude (%1)")).arg(_altitudeUnit);
    case SampleColumn::speed:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Speed"));
    case SampleColumn::pulse:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Pulse"));
    case SampleColumn::power:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Power (W)"));
    case SampleColumn::grade:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Grade (%)"));
    case SampleColumn::temperature:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Temperature (°C)"));
    case SampleColumn::cadence:
        return translated(QT_TRANSLATE_NOOP("SampleTexts", "Cadence"));
    }
    return {};
}

} // namespace ridelog
