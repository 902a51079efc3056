#include "library/TourArrayController.h"

#include "library/MyDocument.h"
#include "library/TourSearch.h"

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

constexpr int notListed = -1;

} // namespace

TourArrayController::TourArrayController(MyDocument& document, QObject* parent)
    : QObject(parent), _document(document)
{
    connect(&document, &MyDocument::toursArrayChanged, this, &TourArrayController::rearrangeObjects);
    connect(&document.tourChanges(), &TourChanges::changed, this, &TourArrayController::follow);
    rearrangeObjects();
}

// Arranging

void TourArrayController::setSortDescriptors(SortDescriptors descriptors)
{
    _sortDescriptors = std::move(descriptors);
    rearrangeObjects();
}

void TourArrayController::setSearchText(const QString& text)
{
    if (text == _searchText)
        return;
    _searchText = text;
    rearrangeObjects();
}

Tours TourArrayController::arrangeObjects(const Tours& tours) const
{
    const TourSearch search(_searchText);
    if (!_filterDeletedItems && search.findsAll())
        return sortedTours(tours, _sortDescriptors);
    Tours kept;
    kept.reserve(tours.size());
    std::ranges::copy_if(tours, std::back_inserter(kept), [&](const auto& tour) {
        return !(_filterDeletedItems && tour->removed()) && search.finds(*tour);
    });
    return sortedTours(kept, _sortDescriptors);
}

void TourArrayController::rearrangeObjects()
{
    _rearrangementIsDue = false;
    auto arranged = arrangeObjects(_document.toursArray());
    const bool isAnother = arranged != _arrangedObjects;
    if (isAnother)
        Q_EMIT aboutToRearrange();

    const auto selected = selection();
    const auto previous = std::exchange(_arrangedObjects, std::move(arranged));
    notePlaces();
    _selectedRows = rowsOf(selected);
    const bool someLeft = _selectedRows.size() != selected.size();

    if (isAnother)
        Q_EMIT rearranged(previous);
    if (someLeft)
        Q_EMIT selectionChanged();
}

void TourArrayController::notePlaces()
{
    _places.clear();
    _places.reserve(_document.toursArray().size());
    for (const auto& tour : _document.toursArray())
        _places[tour.get()] = {.row = notListed, .removed = tour->removed()};
    int row = 0;
    for (const auto& tour : _arrangedObjects)
        _places[tour.get()].row = row++;
}

int TourArrayController::rowOf(const OdoTour& tour) const
{
    const auto place = _places.find(&tour);
    return place == _places.end() ? notListed : place->second.row;
}

// Following the document

void TourArrayController::follow(const OdoTour& tour)
{
    const auto found = _places.find(&tour);
    // A tour that was taken out of the document may still be edited by who has it.
    if (found == _places.end())
        return;
    auto& [row, removed] = found->second;
    if (std::exchange(removed, tour.removed()) != tour.removed())
        rearrangeSoon();
    if (row != notListed)
        Q_EMIT tourChanged(row);
}

void TourArrayController::rearrangeSoon()
{
    if (!std::exchange(_rearrangementIsDue, true))
        QMetaObject::invokeMethod(this, &TourArrayController::rearrangeIfDue, Qt::QueuedConnection);
}

void TourArrayController::rearrangeIfDue()
{
    if (_rearrangementIsDue)
        rearrangeObjects();
}

// Selecting

Tours TourArrayController::selection() const
{
    Tours tours;
    tours.reserve(_selectedRows.size());
    for (const auto row : _selectedRows)
        tours.push_back(_arrangedObjects[static_cast<std::size_t>(row)]);
    return tours;
}

std::shared_ptr<OdoTour> TourArrayController::selectedTour() const
{
    return _selectedRows.size() == 1 ? selection().front() : nullptr;
}

std::vector<int> TourArrayController::rowsOf(const Tours& tours) const
{
    std::vector<int> rows;
    rows.reserve(tours.size());
    for (const auto& tour : tours)
        rows.push_back(rowOf(*tour));
    std::erase(rows, notListed);
    std::ranges::sort(rows);
    return rows;
}

void TourArrayController::setSelection(const Tours& tours)
{
    selectRows(rowsOf(tours));
}

void TourArrayController::selectRows(std::vector<int> rows)
{
    const auto count = static_cast<int>(_arrangedObjects.size());
    std::erase_if(rows, [count](int row) { return row < 0 || row >= count; });
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows == _selectedRows)
        return;
    _selectedRows = std::move(rows);
    Q_EMIT selectionChanged();
}

void TourArrayController::selectRow(int row)
{
    selectRows({std::min(row, static_cast<int>(_arrangedObjects.size()) - 1)});
}

// Removing and restoring

void TourArrayController::deleteSelectedTours()
{
    markSelection(&MyDocument::deleteTour);
}

void TourArrayController::undeleteSelectedTours()
{
    markSelection(&MyDocument::undeleteTour);
}

void TourArrayController::markSelection(void (MyDocument::*mark)(const std::shared_ptr<OdoTour>& tour))
{
    const UndoGroup oneStep(_document.undoManager());
    for (const auto& tour : selection())
        (_document.*mark)(tour);
    rearrangeObjects();
}

} // namespace ridelog
