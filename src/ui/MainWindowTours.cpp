// What is done with the tours of the table.

#include "exchange/TourTexts.h"
#include "library/MyDocument.h"
#include "ui/ApplicationWindows.h"
#include "ui/MainWindowController.h"
#include "ui/StatWindowController.h"
#include "ui/TourPage.h"
#include "ui/TourTableView.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace ridelog {

// Windows of tours

void MainWindowController::showSummaryWindow()
{
    const auto tour = _tourController.selectedTour();
    if (!tour)
        return;
    auto* window = new TourWindowController(_windows, _document, tour, _defaults);
    _tourWindows.push_back(window);
    connect(window, &QObject::destroyed, this, [this, window] { std::erase(_tourWindows, window); });
    connect(window, &TourWindowController::activated, this, &MainWindowController::activated);
    connect(window, &TourWindowController::aboutToStep, this, &MainWindowController::beginAction);
    connect(window, &TourWindowController::saveRequested, this, [this, window = QPointer(window)] {
        // It may be closed while a name for the document is asked for.
        if (save() && window)
            window->showMessage(message());
    });
    connect(window, &TourWindowController::exportRequested, this, [this, window] { exportTour(*window); });
    window->show();
}

void MainWindowController::tableElementDoubleClicked()
{
    const auto& rows = _tourController.selectedRows();
    qCDebug(lcUi, "tableElementDoubleClicked %d", rows.empty() ? -1 : rows.front());
    showSummaryWindow();
}

/// What is done to a tour that is not in the document any more would be lost.
void MainWindowController::closeWindowsOfLostTours()
{
    const auto& tours = _document.toursArray();
    const auto windows = _tourWindows;
    for (auto* window : windows) {
        if (!std::ranges::count(tours, window->odoTour()))
            window->close();
    }
}

std::vector<QWidget*> MainWindowController::furtherWindows() const
{
    std::vector<QWidget*> windows(_tourWindows.begin(), _tourWindows.end());
    if (_swc && _swc->isVisible())
        windows.push_back(_swc);
    return windows;
}

// Statistics

void MainWindowController::showStatWindow()
{
    if (!_swc) {
        _swc = new StatWindowController(_windows, _document, _defaults);
        connect(_swc, &StatWindowController::activated, this, &MainWindowController::activated);
        connect(_swc, &StatWindowController::reportRequested, this, &MainWindowController::saveReport);
        _swc->setDocumentName(shownName());
    }
    _swc->setToursArray(_document.toursArray());
    ApplicationWindows::bringToFront(*_swc);
}

// Paper

void MainWindowController::printTour()
{
    const auto tour = _tourController.selectedTour();
    if (tour)
        askToPrint(
            *this, fileNameOf(*tour),
            [this, tour](QPainter& painter, QRectF page) {
                drawTourPage(painter, page, *tour, *_chartView, _defaults);
            },
            [this](const QString& error) { showMessage(error); });
}

// Editing

int MainWindowController::removedInSelection() const
{
    const auto selection = _tourController.selection();
    return static_cast<int>(
        std::ranges::count_if(selection, [](const auto& tour) { return tour->removed(); }));
}

void MainWindowController::deleteSelectedTour()
{
    if (_tourController.selectedRows().empty())
        return;
    const auto count = static_cast<int>(_tourController.selectedRows().size()) - removedInSelection();
    const auto row = _tourController.selectedRows().front();
    _tourController.deleteSelectedTours();
    // The next one, so that Delete can go on.
    if (_tourController.selectedRows().empty())
        _tourController.selectRow(row);
    showMessage(tr("%Ln tour(s) removed.", nullptr, count) + u' ' +
                tr("What is removed stays in the document: see Edit > Show Removed Tours."));
    tableViewSelectionDidChange();
}

void MainWindowController::undeleteSelectedTour()
{
    const auto count = removedInSelection();
    _tourController.undeleteSelectedTours();
    showMessage(tr("%Ln tour(s) restored.", nullptr, count));
    tableViewSelectionDidChange();
}

void MainWindowController::showRemoved(bool show)
{
    finishEditing();
    showMessage({});
    _tourController.setFilterDeletedItems(!show);
    _tourController.rearrangeObjects();
}

void MainWindowController::editTitle()
{
    _tableView->editTitle();
}

} // namespace ridelog
