// What of a tour window goes to files and paper.

#include "exchange/TourTexts.h"
#include "ui/ChartSaving.h"
#include "ui/TourPage.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QPainter>

namespace ridelog {

void TourWindowController::saveChart()
{
    qCDebug(lcUi, "[saveChart]");
    const auto content = [this](QSize size) {
        return chartContent(_chart->chart(size), _chart->indicator());
    };
    askToSaveChart(*this, _defaults, fileNameOf(*_odoTour), _chart->size(), content,
                   [this](const QString& outcome) { showMessage(outcome); });
}

void TourWindowController::print()
{
    finishEditing();
    askToPrint(
        *this, fileNameOf(*_odoTour),
        [this](QPainter& painter, QRectF page) {
            drawTourPage(painter, page, *_odoTour, *_chart, _defaults);
        },
        [this](const QString& error) { showMessage(error); });
}

} // namespace ridelog
