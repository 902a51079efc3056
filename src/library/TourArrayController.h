#pragma once

#include "library/TourSorting.h"

#include <QObject>

#include <memory>
#include <unordered_map>
#include <vector>

namespace ridelog {

class MyDocument;

/// The tours of a document as its main window lists them: removed ones left out or not, sorted, some of them
/// selected. Rows count from 0.
///
/// The list follows the document: it is arranged anew when tours come or go, and when removed marks change,
/// also by undo. The latter may happen to thousands in one step; the list then follows once, when control
/// returns to the event loop. An edited title, or date, keeps its row until rearrangeObjects is called.
class TourArrayController : public QObject {
    Q_OBJECT

public:
    /// The document has to outlive it.
    explicit TourArrayController(MyDocument& document, QObject* parent = nullptr);

    // What is listed, and how

    /// Whether removed tours are left out.
    bool filterDeletedItems() const { return _filterDeletedItems; }
    /// Counts from the next rearrangement on.
    void setFilterDeletedItems(bool filter) { _filterDeletedItems = filter; }
    /// What the rider looks for: only tours are listed that have each of these words in their title, type,
    /// description or date, in whatever case. Rearranges.
    void setSearchText(const QString& text);
    const QString& searchText() const { return _searchText; }
    const SortDescriptors& sortDescriptors() const { return _sortDescriptors; }
    /// Rearranges. Without descriptors the tours stand as they do in the document.
    void setSortDescriptors(SortDescriptors descriptors);
    /// The order in which an import and a transfer leave the list, whatever it was before.
    void showNewestFirst() { setSortDescriptors(newestFirst()); }

    /// Of the tours, in their order, those that are to be listed, then sorted.
    Tours arrangeObjects(const Tours& tours) const;
    void rearrangeObjects();
    const Tours& arrangedObjects() const { return _arrangedObjects; }
    /// -1 for a tour that is not listed.
    int rowOf(const OdoTour& tour) const;

    // The selection: it stays with its tours as long as they are listed.

    /// In the order of the list.
    Tours selection() const;
    const std::vector<int>& selectedRows() const { return _selectedRows; } ///< ascending
    /// None unless exactly one is selected.
    std::shared_ptr<OdoTour> selectedTour() const;
    /// Tours that are not listed are passed over.
    void setSelection(const Tours& tours);
    /// Rows that are not there are passed over.
    void selectRows(std::vector<int> rows);
    /// This row alone: the last one for a row behind it, nothing for a negative one.
    void selectRow(int row);

    /// Mark the selected tours as removed, or take the mark away: one undo step, one rearrangement.
    void deleteSelectedTours();
    void undeleteSelectedTours();

Q_SIGNALS:
    /// Rows are about to move, come or go; everything here is still as before.
    void aboutToRearrange();
    /// They have; `previous` is the list before. Not told of a rearrangement that changed nothing.
    void rearranged(const ridelog::Tours& previous);
    /// The tour in this row was edited.
    void tourChanged(int row);
    /// Other tours are selected than before; not told when they only moved.
    void selectionChanged();

private:
    /// Where a tour of the document stands, and the mark that the list was told of.
    struct Place {
        int row;
        bool removed;
    };

    void follow(const OdoTour& tour);
    void rearrangeSoon();
    void rearrangeIfDue();
    void notePlaces();
    /// Their rows, ascending, without those that are not listed.
    std::vector<int> rowsOf(const Tours& tours) const;
    void markSelection(void (MyDocument::*mark)(const std::shared_ptr<OdoTour>& tour));

    MyDocument& _document;
    bool _filterDeletedItems = true;
    QString _searchText;
    SortDescriptors _sortDescriptors = newestFirst();
    Tours _arrangedObjects;
    std::unordered_map<const OdoTour*, Place> _places; ///< of all tours of the document
    std::vector<int> _selectedRows;
    bool _rearrangementIsDue = false;
};

} // namespace ridelog
