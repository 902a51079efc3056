// What of a tour window goes to files and paper.

#include "chart/ChartPicture.h"
#include "library/DefaultsKeys.h"
#include "library/FileOfTours.h"
#include "platform/Defaults.h"
#include "platform/WholeFile.h"
#include "ui/SaveChartPanel.h"
#include "ui/Sheet.h"
#include "ui/TourPage.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QRegularExpression>

namespace ridelog {
namespace {

/// What a file of a tour may be called: its day and its title, as far as file systems take them.
QString fileNameOf(const OdoTour& tour)
{
    constexpr qsizetype longest = 60;
    static const QRegularExpression unusual(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]+"));
    const auto title = tour.shownTitle().left(longest).replace(unusual, QStringLiteral(" "));
    return (tour.date().toString(QStringLiteral("yyyy-MM-dd ")) + title).trimmed();
}

/// None, or why the picture is not in the file.
std::optional<QString> savePicture(const ChartArrayView& chart, QSize size, const QString& path)
{
    if (holdsTours(path))
        return TourWindowController::tr("It holds tours, which a picture would replace.");
    const auto picture = chartPicture(chart.chart(size), chart.indicator(), path);
    return picture.error.isEmpty() ? writeWholeFile(path, picture.bytes) : picture.error;
}

} // namespace

void TourWindowController::saveChart()
{
    qCDebug(lcUi, "[saveChart]");
    const bool isStored =
        _defaults.contains(DefaultsKeys::pictureWidth) && _defaults.contains(DefaultsKeys::pictureHeight);
    const QSizeF stored(static_cast<double>(_defaults.floatForKey(DefaultsKeys::pictureWidth)),
                        static_cast<double>(_defaults.floatForKey(DefaultsKeys::pictureHeight)));
    const QSizeF largest(largestChartPicture, largestChartPicture);
    const auto size = isStored ? stored.boundedTo(largest).toSize() : _chart->size();
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
    const auto error = savePicture(*_chart, size, path);
    if (!error) {
        showMessage(tr("The chart was saved as %1.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    showError(*this, tr("%1 was not saved.").arg(QFileInfo(path).fileName()), *error);
}

void TourWindowController::print()
{
    finishEditing();
    askToPrint(*this, fileNameOf(*_odoTour), [this](QPainter& painter, QRectF page) {
        drawTourPage(painter, page, *_odoTour, *_chart, _defaults);
    });
}

} // namespace ridelog
