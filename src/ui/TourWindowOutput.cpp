// What of a tour window goes to files and paper.

#include "chart/ChartPicture.h"
#include "library/DefaultsKeys.h"
#include "library/FileOfTours.h"
#include "platform/Defaults.h"
#include "platform/WholeFile.h"
#include "ui/SaveChartPanel.h"
#include "ui/TourPage.h"
#include "ui/TourTexts.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace ridelog {
namespace {

/// None, or why the picture is not in the file.
std::optional<QString> savePicture(const ChartArrayView& chart, QSize size, const QString& path)
{
    if (holdsTours(path))
        return TourWindowController::tr("it holds tours, which a picture would replace");
    const auto picture = chartPicture(chart.chart(size), chart.indicator(), path);
    return picture.error.isEmpty() ? writeWholeFile(path, picture.bytes) : picture.error;
}

} // namespace

void TourWindowController::saveChart()
{
    qCDebug(lcUi, "[saveChart]");
    const auto width = _defaults.floatForKey(DefaultsKeys::pictureWidth);
    const auto height = _defaults.floatForKey(DefaultsKeys::pictureHeight);
    const auto isSide = [](float side) { return side >= 1 && side <= largestChartPicture; };
    const bool isStored = isSide(width) && isSide(height);
    const auto size = isStored ? QSize(qRound(width), qRound(height)) : _chart->size();
    auto* panel = new SaveChartPanel(this, fileNameOf(*_odoTour), size);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    connect(panel, &QDialog::accepted, this, [this, panel] { saveChartPanelDidEnd(*panel); });
    panel->open();
}

void TourWindowController::saveChartPanelDidEnd(const SaveChartPanel& panel)
{
    qCDebug(lcUi, "[saveChartPanelDidEnd]");
    const auto size = panel.chartSaveSize();
    if (panel.setAsDefault()) {
        qCDebug(lcUi, "[saveChartPanelDidEnd] save new default size");
        _defaults.setValue(DefaultsKeys::pictureWidth, static_cast<float>(size.width()));
        _defaults.setValue(DefaultsKeys::pictureHeight, static_cast<float>(size.height()));
        _defaults.synchronize();
    }
    const auto path = panel.selectedFiles().constFirst();
    if (const auto error = savePicture(*_chart, size, path))
        showMessage(tr("%1 was not saved: %2.").arg(QFileInfo(path).fileName(), *error));
    else
        showMessage(tr("The chart was saved as %1.").arg(QDir::toNativeSeparators(path)));
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
