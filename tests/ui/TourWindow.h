#pragma once

#include "chart/ChartScaling.h"
#include "tests/support/Documents.h"
#include "tests/ui/Application.h"
#include "ui/SegmentedControl.h"
#include "ui/TourWindowController.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QTableView>
#include <QToolButton>

namespace ridelog {

/// Windows of tours, opened as a rider does and used with mouse and keys.
class TourWindow : public Application {
protected:
    /// Opens the window of the selected tour by key.
    TourWindowController& openSelected()
    {
        const auto before = window().tourWindows().size();
        inFront(window());
        window().tableView().setFocus();
        QTest::keyClick(&window().tableView(), Qt::Key_Return);
        EXPECT_EQ(window().tourWindows().size(), before + 1);
        auto& opened = *window().tourWindows().back();
        inFront(opened);
        return opened;
    }
    /// Adds the tour to the document and opens its window.
    TourWindowController& open(const std::shared_ptr<OdoTour>& tour)
    {
        if (windows == nullptr)
            start();
        document().addNewToursFromArray({tour});
        document().undoManager().closeGroup();
        window().tourController().setSelection({tour});
        return openSelected();
    }
    static void click(QWidget& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    static void clickSegment(const SegmentedControl& control, int segment)
    {
        click(control.segment(segment));
    }
    /// Where an x value stands in the chart.
    static QPoint placeOf(const ChartArrayView& chart, float x)
    {
        ChartScaling scaling(chart.chart(chart.size()));
        scaling.calcValues();
        scaling.calcXAxis();
        return {qRound(scaling.calcRealXValueFrom(x)), chart.height() / 2};
    }
    static void clickChart(ChartArrayView& chart, float x)
    {
        QTest::mouseClick(&chart, Qt::LeftButton, {}, placeOf(chart, x));
    }
    static QModelIndexList selectedRows(TourWindowController& tourWindow)
    {
        return tourWindow.dataTable().selectionModel()->selectedRows();
    }
    /// The text of the field of a summary value.
    static QString summary(TourWindowController& tourWindow, const char* key)
    {
        return tourWindow.summaryDrawer().findChild<QLabel*>(QString::fromLatin1(key))->text();
    }
    static void trigger(TourWindowController& tourWindow, const char* text)
    {
        Application::trigger(tourWindow, text);
    }
};

} // namespace ridelog
