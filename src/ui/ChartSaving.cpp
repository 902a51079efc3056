#include "ui/ChartSaving.h"

#include "library/DefaultsKeys.h"
#include "library/FileOfTours.h"
#include "platform/Defaults.h"
#include "platform/WholeFile.h"
#include "ui/SaveChartPanel.h"
#include "ui/UiLog.h"

#include <QDir>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace ridelog {
namespace {

/// None, or why the picture is not in the file.
std::optional<QString> savePicture(const PictureContent& content, const QString& path)
{
    if (holdsTours(path))
        return SaveChartPanel::tr("it holds tours, which a picture would replace");
    const auto picture = chartPicture(content, path);
    return picture.error.isEmpty() ? writeWholeFile(path, picture.bytes) : picture.error;
}

void saveChartPanelDidEnd(const SaveChartPanel& panel, Defaults& defaults, const ChartOfSize& chart,
                          const std::function<void(const QString&)>& tell)
{
    qCDebug(lcUi, "[saveChartPanelDidEnd]");
    const auto size = panel.chartSaveSize();
    if (panel.setAsDefault()) {
        qCDebug(lcUi, "[saveChartPanelDidEnd] save new default size");
        defaults.setValue(DefaultsKeys::pictureWidth, static_cast<float>(size.width()));
        defaults.setValue(DefaultsKeys::pictureHeight, static_cast<float>(size.height()));
        defaults.synchronize();
    }
    const auto path = panel.selectedFiles().constFirst();
    if (const auto error = savePicture(chart(size), path))
        tell(SaveChartPanel::tr("%1 was not saved: %2.").arg(QFileInfo(path).fileName(), *error));
    else
        tell(SaveChartPanel::tr("The chart was saved as %1.").arg(QDir::toNativeSeparators(path)));
}

} // namespace

void askToSaveChart(QWidget& over, Defaults& defaults, const QString& name, QSize usual, ChartOfSize chart,
                    std::function<void(const QString&)> tell)
{
    const auto width = defaults.floatForKey(DefaultsKeys::pictureWidth);
    const auto height = defaults.floatForKey(DefaultsKeys::pictureHeight);
    const auto isSide = [](float side) { return side >= 1 && side <= largestChartPicture; };
    const bool isStored = isSide(width) && isSide(height);
    const auto size = isStored ? QSize(qRound(width), qRound(height)) : usual;
    auto* panel = new SaveChartPanel(&over, name, size);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(panel, &QDialog::accepted, &over,
                     [panel, &defaults, chart = std::move(chart), tell = std::move(tell)] {
                         saveChartPanelDidEnd(*panel, defaults, chart, tell);
                     });
    panel->open();
}

} // namespace ridelog
