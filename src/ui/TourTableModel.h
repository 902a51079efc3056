#pragma once

#include "library/TourArrayController.h"
#include "ui/TourColumns.h"

#include <QAbstractTableModel>

namespace ridelog {

/// The tours that a list controller arranges, as rows of a table. Columns are those of TourColumns; titles
/// can be edited.
class TourTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The controller and the choices have to outlive it.
    TourTableModel(TourArrayController& controller, const Defaults& defaults, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    /// Hands it to the controller: the column first, then what the table was sorted by before.
    void sort(int column, Qt::SortOrder order) override;

    /// Other units are wanted.
    void reformat();

Q_SIGNALS:
    /// A text that could be edited was changed.
    void textEdited();

private:
    const OdoTour& tourAt(int row) const;

    TourArrayController& _controller;
    const Defaults& _defaults;
    TourColumns _columns;
};

} // namespace ridelog
