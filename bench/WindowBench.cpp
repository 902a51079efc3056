// How long the application takes from its start until the main window of a document of 1,000 tours is
// painted, against a program that shows an empty window; how fast a table of 10,000 tours is sorted and
// follows the selection; and how long the window of a tour of 12,000 samples takes to open, to tell the
// values under the mouse, and to select the sample of a click. Each start is a process of its own, which this
// program starts of itself. A display is used where there is one: without a window system an empty window
// costs next to nothing.

#include "chart/ChartArrayView.h"
#include "library/AppController.h"
#include "library/TourSorting.h"
#include "platform/Defaults.h"
#include "platform/Log.h"
#include "platform/MainThread.h"
#include "simulator/RideGenerator.h"
#include "ui/ApplicationWindows.h"
#include "ui/MainWindowController.h"
#include "ui/SegmentedControl.h"
#include "ui/TourColumns.h"
#include "ui/TourTableView.h"
#include "ui/TourWindowController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMouseEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimeZone>
#include <QToolButton>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using namespace ridelog;

constexpr double promisedRatio = 2;
constexpr double promisedSort = 100;     ///< milliseconds
constexpr double promisedSelection = 16; ///< milliseconds
constexpr double promisedOpening = 150;  ///< milliseconds
constexpr double promisedAnswer = 5;     ///< milliseconds
constexpr int starts = 15;

/// Ends the program when the window has been painted: at once, what comes at an orderly end is not measured.
class EndsWhenPainted : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
        return false;
    }
};

int showEmptyWindow()
{
    QMainWindow window;
    EndsWhenPainted end;
    window.installEventFilter(&end);
    window.resize(1280, 820);
    window.show();
    return QApplication::exec();
}

int showDocument(const QString& path, const QString& settings)
{
    prepareMainThread();
    Defaults defaults(settings);
    AppController controller(defaults, settings + QStringLiteral(".recovery"));
    ApplicationWindows windows(controller, defaults);
    windows.start({path});
    EndsWhenPainted end;
    windows.mainWindows().at(0)->chartView().installEventFilter(&end);
    return QApplication::exec();
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

double millisecondsOf(const QStringList& words)
{
    QElapsedTimer timer;
    timer.start();
    if (QProcess::execute(QCoreApplication::applicationFilePath(), words) != 0)
        std::exit(2);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// A document of as many tours, 250 in a year.
void makeDocument(const QString& path, int tours)
{
    MyDocument document;
    constexpr int inAYear = 250;
    for (int year = 0; year < tours / inAYear; ++year) {
        const RideGenerator rides{.seed = static_cast<std::uint32_t>(year), .tours = inAYear};
        const QDateTime now(QDate(1970 + year, 12, 31), QTime(12, 0), QTimeZone::utc());
        document.handleTransferFinished(rides.dump(), now);
    }
    if (const auto error = document.saveAs(path))
        std::exit(2);
}

bool keepsStartPromise(const QTemporaryDir& folder)
{
    const auto path = folder.filePath(QStringLiteral("tours.ridelog"));
    makeDocument(path, 1000);
    std::vector<double> ours;
    std::vector<double> empty;
    for (int i = 0; i < starts; ++i) {
        empty.push_back(millisecondsOf({QStringLiteral("--empty")}));
        ours.push_back(millisecondsOf(
            {QStringLiteral("--document"), path, folder.filePath(QStringLiteral("settings"))}));
    }
    const auto ratio = median(ours) / median(empty);
    std::printf("%s: window with 1,000 tours %.1f ms, empty window %.1f ms: %.2f x (at most %.2f)\n",
                qPrintable(QGuiApplication::platformName()), median(ours), median(empty), ratio,
                promisedRatio);
    return ratio <= promisedRatio;
}

template <typename Action>
double milliseconds(Action&& action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    // Until it can be seen.
    QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

bool keepsTablePromises(const QTemporaryDir& folder)
{
    const auto path = folder.filePath(QStringLiteral("large.ridelog"));
    makeDocument(path, 10'000);
    Defaults defaults(folder.filePath(QStringLiteral("settings")));
    AppController controller(defaults, folder.filePath(QStringLiteral("recovery")));
    ApplicationWindows windows(controller, defaults);
    windows.start({path});
    auto& window = *windows.mainWindows().at(0);
    QCoreApplication::processEvents();

    double slowest = 0;
    for (int column = 0; column < TourColumns::count(); ++column) {
        // Summary values are computed when they are first asked for.
        std::vector<double> times;
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder, Qt::AscendingOrder})
            times.push_back(milliseconds([&] { window.tableView().model()->sort(column, order); }));
        std::printf("sort by %s: first %.1f ms, then %.1f ms\n", qPrintable(TourColumns::keyOf(column)),
                    times[0], median(times));
        slowest = std::max(slowest, *std::ranges::max_element(times));
    }
    constexpr int selectionCount = 500;
    std::vector<double> selections;
    selections.reserve(selectionCount);
    for (int row = 0; row < selectionCount; ++row)
        selections.push_back(milliseconds([&] { window.tourController().selectRow(row * 19 % 10'000); }));
    const auto selection = *std::ranges::max_element(selections);
    std::printf("10,000 tours: slowest sort %.1f ms (at most %.0f), selection %.1f ms, slowest %.1f ms (at "
                "most %.0f)\n",
                slowest, promisedSort, median(selections), selection, promisedSelection);
    return slowest <= promisedSort && median(selections) <= promisedSelection;
}

/// Up and down hills for 66 hours.
std::shared_ptr<OdoTour> longTour()
{
    TourDictionary dictionary;
    dictionary.type = QStringLiteral("Bike");
    dictionary.pulseAtStart = 110;
    dictionary.month = 3;
    dictionary.day = 10;
    for (int sample = 0; sample < 12'000; ++sample)
        dictionary.tourData.push_back({.pulseChange = static_cast<std::int16_t>(sample / 11 % 2 ? -3 : 3),
                                       .altitudeChange = static_cast<std::int16_t>(sample / 90 % 2 ? -4 : 4),
                                       .distance = 80 + sample % 61});
    return OdoTour::initWithOdoDataTourDict(dictionary);
}

void moveOrPress(QWidget& widget, QEvent::Type type, int x)
{
    const QPointF place(x, 100);
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

bool keepsTourWindowPromises(const QTemporaryDir& folder)
{
    Defaults defaults(folder.filePath(QStringLiteral("settings")));
    AppController controller(defaults, folder.filePath(QStringLiteral("recovery")));
    ApplicationWindows windows(controller, defaults);
    controller.newDocument();
    auto& main = *windows.mainWindows().at(0);
    main.myDocument().addNewToursFromArray({longTour()});
    main.tourController().selectRow(0);
    QCoreApplication::processEvents();

    std::vector<double> openings;
    for (int i = 0; i < starts; ++i) {
        openings.push_back(milliseconds([&] { main.showSummaryWindow(); }));
        if (i + 1 < starts)
            delete main.tourWindows().back();
    }
    auto& window = *main.tourWindows().back();
    window.resize(1600, 1000);
    window.ySegmentControl().segment(1).click();
    window.ySegmentControl().segment(2).click();
    window.dataButton().click();
    QCoreApplication::processEvents();
    std::vector<double> hovers;
    std::vector<double> clicks;
    constexpr int answers = 300;
    for (int i = 0; i < answers; ++i) {
        const auto x = 100 + i * 19 % 1400;
        hovers.push_back(milliseconds([&] { moveOrPress(window.chart(), QEvent::MouseMove, x); }));
        clicks.push_back(milliseconds([&] { moveOrPress(window.chart(), QEvent::MouseButtonPress, x); }));
    }
    std::printf("tour of 12,000 samples: window open in %.1f ms (at most %.0f), hover %.2f ms, slowest %.2f, "
                "click %.2f ms, slowest %.2f (at most %.0f)\n",
                median(openings), promisedOpening, median(hovers), *std::ranges::max_element(hovers),
                median(clicks), *std::ranges::max_element(clicks), promisedAnswer);
    main.myDocument().undoManager().setClean();
    return median(openings) <= promisedOpening && median(hovers) <= promisedAnswer &&
           median(clicks) <= promisedAnswer;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    setLogLevel(LogLevel::none);
    QApplication application(argc, argv);
    const auto words = QCoreApplication::arguments();
    if (words.value(1) == u"--empty")
        return showEmptyWindow();
    if (words.value(1) == u"--document")
        return showDocument(words.value(2), words.value(3));
    const QTemporaryDir folder;
    const bool startIsKept = keepsStartPromise(folder);
    const bool tableIsKept = keepsTablePromises(folder);
    const bool tourWindowIsKept = keepsTourWindowPromises(folder);
    return startIsKept && tableIsKept && tourWindowIsKept ? 0 : 1;
}
