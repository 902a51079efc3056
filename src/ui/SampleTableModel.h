#pragma once

#include "exchange/SampleTexts.h"
#include "model/OdoTour.h"

#include <QAbstractTableModel>

#include <memory>

namespace ridelog {

class Defaults;

/// The samples of a tour for a table, one row for each entry of its series, by time. The columns are those of
/// SampleColumn.
class SampleTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    SampleTableModel(std::shared_ptr<const OdoTour> tour, const Defaults& defaults,
                     QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const SeriesEntry& entryAt(int row) const;
    QString text(int row, SampleColumn column) const;
    QString name(SampleColumn column) const;
    /// For the units that the user has chosen now.
    void reformat();

private:
    std::shared_ptr<const OdoTour> _tour;
    const Defaults& _defaults;
    SampleTexts _texts;
};

} // namespace ridelog
