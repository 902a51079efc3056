#include "ui/SampleTableModel.h"

#include <utility>

namespace ridelog {

SampleTableModel::SampleTableModel(std::shared_ptr<const OdoTour> tour, const Defaults& defaults,
                                   QObject* parent)
    : QAbstractTableModel(parent), _tour(std::move(tour)), _defaults(defaults), _texts(defaults)
{
}

int SampleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_tour->data().size());
}

int SampleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : sampleColumns;
}

const SeriesEntry& SampleTableModel::entryAt(int row) const
{
    return _tour->data()[static_cast<std::size_t>(row)];
}

QVariant SampleTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return text(index.row(), static_cast<SampleColumn>(index.column()));
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QString SampleTableModel::text(int row, SampleColumn column) const
{
    return _texts.text(column, entryAt(row));
}

QVariant SampleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return name(static_cast<SampleColumn>(section));
}

QString SampleTableModel::name(SampleColumn column) const
{
    return _texts.name(column);
}

void SampleTableModel::reformat()
{
    _texts = SampleTexts(_defaults);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, sampleColumns - 1);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, sampleColumns - 1));
}

} // namespace ridelog
