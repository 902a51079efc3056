// What of the document goes to other programs.

#include "exchange/TourExport.h"
#include "library/GeneralDataOrder.h"
#include "library/TourList.h"
#include "ui/MainWindowController.h"
#include "ui/StatWindowController.h"
#include "ui/TourExporting.h"
#include "ui/TourWindowController.h"

#include <algorithm>
#include <iterator>

namespace ridelog {

/// All that are not removed, whatever the rider looks for, in the order of the table.
Tours MainWindowController::toursToExport() const
{
    return sortedTours(withoutRemoved(_document.toursArray()), _tourController.sortDescriptors());
}

ExportSource MainWindowController::exportSource() const
{
    return {.name = _document.path().isEmpty() ? tr("Tours") : nameWithoutEnding(),
            .generalData = inOrderOfTheDevice(_document.generalData()),
            // As the command line lists them, however the table is sorted.
            .numbers = numbersOf(withoutRemoved(inListOrder(_document.toursArray())))};
}

void MainWindowController::exportTours()
{
    askToExport(*this, _defaults, exportSource(), withoutRemoved(_tourController.selection()),
                toursToExport(), [this](const QString& outcome) { showMessage(outcome); });
}

void MainWindowController::exportTour(TourWindowController& window)
{
    beginAction();
    auto source = exportSource();
    // A removed tour has a number only among all.
    if (window.odoTour()->removed())
        source.numbers = numbersOf(inListOrder(_document.toursArray()));
    askToExport(window, _defaults, std::move(source), {}, {window.odoTour()},
                [&window](const QString& outcome) { window.showMessage(outcome); });
}

void MainWindowController::saveReport(const ChosenPeriod& period)
{
    beginAction();
    const PeriodDays days(period.period, period.day, period.weekRule);
    auto tours = toursToExport();
    std::erase_if(tours, [&days](const auto& tour) { return !days.contain(tour->date().date()); });
    if (tours.empty()) {
        _swc->showMessage(tr("There are no tours in this period."));
        return;
    }
    auto source = exportSource();
    source.period = period;
    askToSaveReport(*_swc, _defaults, std::move(source), tours,
                    [this](const QString& outcome) { _swc->showMessage(outcome); });
}

/// Which of its windows files are being written for; none if that is over.
QWidget* MainWindowController::exportingWindow()
{
    std::vector<QWidget*> windows{this};
    std::ranges::copy(furtherWindows(), std::back_inserter(windows));
    const auto found = std::ranges::find_if(windows, [](const auto* window) { return isExporting(*window); });
    return found == windows.end() ? nullptr : *found;
}

} // namespace ridelog
