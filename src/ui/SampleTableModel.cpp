#include "ui/SampleTableModel.h"

#include "format/ReadableUnits.h"
#include "format/TimeFormatter.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/TourTexts.h"

#include <QLocale>

#include <utility>

namespace ridelog {

SampleTableModel::SampleTableModel(std::shared_ptr<const OdoTour> tour, const Defaults& defaults,
                                   QObject* parent)
    : QAbstractTableModel(parent),
      _tour(std::move(tour)),
      _defaults(defaults),
      _distance(UnitFormatters::tourDistance(defaults)),
      _speed(UnitFormatters::tourSpeed(defaults)),
      _altitude(UnitFormatters::altitude(defaults))
{
}

int SampleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_tour->data().size());
}

int SampleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

const SeriesEntry& SampleTableModel::entryAt(int row) const
{
    return _tour->data()[static_cast<std::size_t>(row)];
}

QVariant SampleTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return text(index.column(), entryAt(index.row()));
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QString SampleTableModel::text(int column, const SeriesEntry& entry) const
{
    switch (column) {
    case time:
        return TimeFormatter().stringForObjectValue(entry.time);
    case distance:
        return _distance.stringForObjectValue(entry.distance);
    case altitude:
        return _altitude.stringForObjectValue(entry.altitude);
    case speed:
        return _speed.stringForObjectValue(entry.speed);
    case pulse:
        return QLocale().toString(entry.pulse);
    case power:
        return QLocale().toString(entry.power);
    case grade:
        return gradeText(entry.climbingPercentage);
    case temperature:
        return QLocale().toString(entry.temperature);
    case cadence:
        return QLocale().toString(entry.cadence);
    default:
        return {};
    }
}

QVariant SampleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case time:
        return tr("Time");
    case distance:
        return tr("Distance");
    case altitude:
        return tr("Altitude (%1)")
            .arg(ReadableUnits(_defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit());
    case speed:
        return tr("Speed");
    case pulse:
        return tr("Pulse");
    case power:
        return tr("Power (W)");
    case grade:
        return tr("Grade (%)");
    case temperature:
        return tr("Temperature (°C)");
    case cadence:
        return tr("Cadence");
    default:
        return {};
    }
}

void SampleTableModel::reformat()
{
    _distance = UnitFormatters::tourDistance(_defaults);
    _speed = UnitFormatters::tourSpeed(_defaults);
    _altitude = UnitFormatters::altitude(_defaults);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
}

} // namespace ridelog
