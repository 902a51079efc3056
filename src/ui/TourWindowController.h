#pragma once

#include "chart/ChartArrayView.h"
#include "model/OdoTour.h"

#include <QMainWindow>

#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QLineEdit;
class QTableView;
class QToolBar;
class QToolButton;
QT_END_NAMESPACE

namespace ridelog {

class AltitudeRange;
class ApplicationWindows;
class Defaults;
class DescriptionEdit;
class ElidedLabel;
class MessageLine;
class MyDocument;
class SampleTableModel;
class SegmentedControl;
class TourSummaryView;

/// A window of one tour: its chart, its title and description to be edited, all its samples in one drawer and
/// its summary values in another.
class TourWindowController : public QMainWindow, private ChartMouseDelegate {
    Q_OBJECT

public:
    /// All but the tour, which is one of the document's, have to outlive it.
    TourWindowController(ApplicationWindows& windows, MyDocument& document, std::shared_ptr<OdoTour> tour,
                         Defaults& defaults);
    ~TourWindowController() override;

    const std::shared_ptr<OdoTour>& odoTour() const { return _odoTour; }
    /// What is still being edited counts.
    void finishEditing();

    // What it is made of

    ChartArrayView& chart() { return *_chart; }
    QLineEdit& title() { return *_title; }
    DescriptionEdit& text() { return *_text; }
    SegmentedControl& xSegmentControl() { return *_xSegmentControl; }
    SegmentedControl& ySegmentControl() { return *_ySegmentControl; }
    QToolButton& dataButton() { return *_dataButton; }
    QToolButton& summaryButton() { return *_summaryButton; }
    QDockWidget& dataTableDrawer() { return *_dataTableDrawer; }
    QDockWidget& summaryDrawer() { return *_summaryDrawer; }
    QTableView& dataTable() { return *_dataTable; }
    QLineEdit& minRangeTextField();
    QLineEdit& maxRangeTextField();
    /// The values under the mouse, or of the sample that a key has led to, in words.
    QString readout() const;
    /// What has just happened, in words.
    QString message() const;
    void showMessage(const QString& message);

    /// 0 for the distance, any other for the time.
    void setXAxisTag(int tag);
    int xAxisTag() const { return _xAxisTag; }

Q_SIGNALS:
    /// It is the one the rider works with.
    void activated();
    /// The rider wants the document to be saved.
    void saveRequested();
    /// The rider wants the tour to be exported.
    void exportRequested();
    /// A step of the document is about to be taken back, or done again: what is still being edited in any of
    /// its windows has to count before.
    void aboutToStep();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Set-up
    QWidget* makeHead();
    QWidget* makeControls();
    void addAxisControls(QBoxLayout& layout);
    QWidget* makeChart();
    QWidget* makeDescription();
    QDockWidget* makeDrawer(const QString& title, const QString& name, QWidget& content,
                            Qt::DockWidgetArea area, QSize size);
    void makeDataDrawer();
    void makeSummaryDrawer();
    void makeActions();
    void makeFileMenu();
    void makeEditMenu();
    void makeFormatMenu();
    void makeViewMenu();
    void setupGUI();

    // Series and axes
    void restoreAxes();
    void ySegmentedControlClicked();
    void keepOneSeriesSelected();
    void readLabelsAndSetChartNames();
    void selectedXAxisValueDidChange();
    void useMilesDidChange();
    void setYFormatter();

    // Samples
    void toggleDrawer(QDockWidget& drawer);
    void drawerDidChange(QDockWidget& drawer);
    void clickAtXValue(double x) override;
    void indexClicked(int index);
    void tableViewSelectionDidChange();
    void showIndicator();
    int selectedIndex() const;
    float xValueOf(const SeriesEntry& entry) const;
    std::optional<int> nearestIndex(double x) const;
    std::optional<int> indexAfterKey(int key) const;
    bool filterTitleKey(const QKeyEvent& event);
    void showReadout(std::optional<int> index);
    void copySamples();
    void copySummary();

    // The tour
    void tourDidChange();
    void commitTitle();
    void commitDescription();
    void askForLink();

    // Files and paper
    void saveChart();
    void print();

    ApplicationWindows& _windows;
    MyDocument& _document;
    std::shared_ptr<OdoTour> _odoTour;
    Defaults& _defaults;
    QString _selectedXAxisValue; ///< name of a series field: "distance" or "time"
    int _xAxisTag = 0;
    bool _showIndicator = false; ///< the data drawer is open, and the chart marks the selected sample
    bool _isSummaryOpen = false;

    ChartArrayView* _chart = nullptr;
    ElidedLabel* _readout = nullptr;
    MessageLine* _message = nullptr;
    QLineEdit* _title = nullptr;
    ElidedLabel* _when = nullptr;
    QToolBar* _styleBar = nullptr;
    DescriptionEdit* _text = nullptr;
    SegmentedControl* _xSegmentControl = nullptr;
    SegmentedControl* _ySegmentControl = nullptr;
    QToolButton* _dataButton = nullptr;
    QToolButton* _summaryButton = nullptr;
    QToolButton* _saveChartButton = nullptr;
    AltitudeRange* _altitudeRange = nullptr;
    QDockWidget* _dataTableDrawer = nullptr;
    QDockWidget* _summaryDrawer = nullptr;
    QTableView* _dataTable = nullptr;
    SampleTableModel* _samples = nullptr;
    TourSummaryView* _summary = nullptr;
};

} // namespace ridelog
