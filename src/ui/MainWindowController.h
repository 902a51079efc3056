#pragma once

#include "device/OdoCom.h"
#include "library/MyDocument.h"
#include "library/TourArrayController.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

QT_BEGIN_NAMESPACE
class QAction;
class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QMenu;
class QSplitter;
class QStackedWidget;
class QToolButton;
QT_END_NAMESPACE

namespace ridelog {

class ApplicationWindows;
class ChartArrayView;
class ConnectView;
class Defaults;
class ElidedLabel;
class MessageLine;
class Sheet;
class StatWindowController;
class TourTableModel;
class TourTableView;
class TourWindowController;
struct ChosenPeriod;
struct ExportSource;

/// The main window of one document: its tours in a table, the chart of the selected one, and the transfer
/// from the device.
class MainWindowController : public QMainWindow, private OdoComDelegate {
    Q_OBJECT

public:
    /// All three have to outlive it.
    MainWindowController(ApplicationWindows& windows, MyDocument& document, Defaults& defaults);
    ~MainWindowController() override;

    MyDocument& myDocument() const { return _document; }
    TourArrayController& tourController() { return _tourController; }

    // What the window is made of

    TourTableView& tableView() { return *_tableView; }
    ChartArrayView& chartView() { return *_chartView; }
    ConnectView& connectView() { return *_connectView; }
    QDockWidget& connectDrawer() { return *_connectDrawer; }
    QLabel& distanceField() { return *_distanceField; }
    QLabel& speedField() { return *_speedField; }
    QLineEdit& searchField() { return *_searchField; }
    /// What has just happened, in words.
    QString message() const;
    void showMessage(const QString& message);

    // Tours

    /// Merges raw dumps into the document, and says what came of it after what is told already.
    void importDumps(const QStringList& paths, QStringList told = {});
    void importDump(const QString& path) { importDumps({path}); }
    /// Asks for a raw dump to import.
    void importFile();

    /// Asks for what of its tours is to be exported, and where.
    void exportTours();

    /// Opens a further window of the selected tour.
    void showSummaryWindow();
    /// The windows of the document's tours, in the order in which they were opened.
    const std::vector<TourWindowController*>& tourWindows() const { return _tourWindows; }

    /// Shows the statistics of the document's tours: the same window each time.
    void showStatWindow();
    /// None before it is first shown.
    StatWindowController* statWindow() const { return _swc; }

    /// Those of its windows that are open beside this one.
    std::vector<QWidget*> furtherWindows() const;

    // The transfer

    void startTransfer();
    void stopTransfer();
    void toggleConnectDrawer();
    bool isConnected() const { return _odoCom != nullptr; }

    // The document's file. True if it is saved afterwards, or need not be.

    bool save();
    bool saveAs();
    /// Saves or gives up unsaved changes, as the user wants. False if the document is to stay.
    bool mayClose();
    /// Whether a question over this window waits for its answer.
    bool isAsking() const { return _isAsking; }

Q_SIGNALS:
    /// It is the one the rider works with.
    void activated();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // Set-up
    static int unusedNumber(const ApplicationWindows& windows);
    void makeTable();
    void makeChart();
    void makeConnectDrawer();
    void makeActions();
    void makeFileMenu();
    void makeEditMenu();
    void makeTourMenu();
    void makeDeviceMenu();
    void makeWindowMenu();
    void makeHelpMenu();
    void makeToolBar();
    QAction* addAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                       void (MainWindowController::*slot)());
    void restoreWindow();
    void storeWindow();

    // What it shows
    void tableViewSelectionDidChange();
    void showSelectedTour();
    /// The tour that the chart shows; none at first.
    std::shared_ptr<const OdoTour> shownTour() const;
    void configureFormatters();
    void showTours();
    void showSummary();
    QString nameWithoutEnding() const;
    QString shownName() const;
    void showTitle();
    void enableActions();
    void fillRecentMenu();

    // Actions
    void newDocument();
    void openDocument();
    void saveDocument();
    void saveDocumentAs();
    void revertDocument();
    void find();
    void selectAll();
    void showPreferencesPanel();
    void checkForUpdates();
    void sendFeedback();
    void showAbout();
    void toggleSimulatedDevice();
    void showSimulatedDevice();
    void finishEditing();
    void beginAction();

    // Tours
    void tableElementDoubleClicked();
    void closeWindowsOfLostTours();
    void printTour();
    void deleteSelectedTour();
    void undeleteSelectedTour();
    void showRemoved(bool show);
    void editTitle();
    int removedInSelection() const;

    // Files for other programs
    Tours toursToExport() const;
    ExportSource exportSource() const;
    void exportTour(TourWindowController& window);
    void saveReport(const ChosenPeriod& period);
    QWidget* exportingWindow();

    // The transfer
    void connectToOdo(bool connected);
    void openPort();
    void storePort();
    QString receivingText() const;
    void endSession();
    void setConnected(bool connected);
    void fillPorts();
    void drawerDidChange();
    void handleTransferStarted() override;
    bool handlesTransferProgress() const override { return true; }
    void handleTransferProgress(std::int32_t bytes) override;
    void handleTransferFinished() override;
    void handleTransferBrokenOff() override;
    void tellMerged(const MyDocument::Import& import, const QString& what);
    void tell(const QString& state);

    // Files
    bool refuseReadOnly();
    bool askWhetherToOverwrite();
    int ask(QDialog& question);
    /// Whether this button answers the question, and not Cancel, which is meant by Return.
    bool agrees(Sheet& sheet, const QString& button);
    void showError(const QString& what, const QString& reason);
    QString documentName() const;
    QString importedFrom(const QString& path);
    bool mayEndTransfer();

    ApplicationWindows& _windows;
    MyDocument& _document;
    Defaults& _defaults;
    TourArrayController _tourController;

    TourTableModel* _tableModel = nullptr;
    TourTableView* _tableView = nullptr;
    QStackedWidget* _tableOrHint = nullptr;
    QSplitter* _splitter = nullptr;
    ChartArrayView* _chartView = nullptr;
    ElidedLabel* _tourField = nullptr;
    QLabel* _distanceField = nullptr;
    QLabel* _speedField = nullptr;
    MessageLine* _message = nullptr;
    QLabel* _summary = nullptr;
    QLineEdit* _searchField = nullptr;
    QDockWidget* _connectDrawer = nullptr;
    ConnectView* _connectView = nullptr;

    QMenu* _recentMenu = nullptr;
    QAction* _transferButton = nullptr;
    QAction* _startTransferAction = nullptr;
    QAction* _stopTransferAction = nullptr;
    QAction* _simulatedDeviceAction = nullptr;
    QAction* _importAction = nullptr;
    QAction* _exportAction = nullptr;
    QAction* _saveAction = nullptr;
    QAction* _revertAction = nullptr;
    QAction* _removeAction = nullptr;
    QAction* _restoreAction = nullptr;
    QAction* _showRemovedAction = nullptr;
    QAction* _editTitleAction = nullptr;
    QAction* _openTourAction = nullptr;
    QAction* _printAction = nullptr;
    QAction* _statisticsAction = nullptr;

    std::vector<TourWindowController*> _tourWindows;
    StatWindowController* _swc = nullptr;
    std::unique_ptr<OdoCom> _odoCom; ///< none while not connected
    bool _isSimulated = false;       ///< made-up rides: they take no real dump's place at home
    QElapsedTimer _sinceFirstBytes;
    QTimer _tourChanges; ///< follows what happened to many tours at once, once
    bool _isAsking = false;
    int _untitledNumber; ///< tells windows of new documents apart
};

} // namespace ridelog
