#pragma once

#include <QTableView>

namespace ridelog {

class Defaults;
class TourArrayController;
class TourTableModel;

/// The table of tours. Selection and order of rows are the list controller's; the arrangement of columns is
/// the user's and is remembered.
class TourTableView : public QTableView {
    Q_OBJECT

public:
    TourTableView(TourArrayController& controller, TourTableModel& model, Defaults& defaults,
                  QWidget* parent = nullptr);

    /// Begins to edit the title of the only selected tour.
    void editTitle();
    /// A text that is still being edited counts as it stands.
    void finishEditing();
    void scrollToSelection();
    /// Stores the arrangement of the columns.
    void storeColumns() const;
    /// Entries that show and hide the columns.
    void fillColumnsMenu(QMenu& menu);
    /// Entries that sort by one of the columns, or the other way round.
    void fillOrderMenu(QMenu& menu);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void showEvent(QShowEvent* event) override;

private:
    void restoreColumns();
    void showColumnsAtFirst();
    void askForColumns(QPoint position);
    /// Shows by what the controller sorts.
    void showOrder();
    /// Selects what the controller has selected.
    void showSelection();

    TourArrayController& _controller;
    Defaults& _defaults;
    bool _isFollowing = false;   ///< the controller leads, the table follows
    bool _columnsAreNew = false; ///< nobody has arranged them yet
};

} // namespace ridelog
