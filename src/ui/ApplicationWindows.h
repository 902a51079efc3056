#pragma once

#include "ui/SimulatedDevice.h"
#include "ui/StartWindow.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

class AppController;
class Defaults;
class MainWindowController;
class ManualWindow;
class MyDocument;
class PreferencesController;
struct Leftover;
class XMLUpdater;
struct ApplicationInfo;

/// The windows of the application: a main window for each open document, or the start window while there is
/// none.
class ApplicationWindows : public QObject {
    Q_OBJECT

public:
    /// Both have to outlive it.
    ApplicationWindows(AppController& controller, Defaults& defaults, QObject* parent = nullptr);
    /// Documents that are still open stay the controller's.
    ~ApplicationWindows() override;

    AppController& controller() { return _controller; }
    SimulatedDevice& simulatedDevice() { return _simulatedDevice; }
    /// In the order in which they were opened.
    std::vector<MainWindowController*> mainWindows() const;
    /// Every main window, each followed by those of its tours and that of its statistics.
    std::vector<QWidget*> openWindows() const;
    StartWindow* startWindow() const { return _startWindow; }

    /// Begins with what a crash has left, then with these files, or as AppController has it.
    void start(const QStringList& paths);
    /// Opens documents, and imports dumps into the one opened last; without one into the document that `over`
    /// shows, or part of, or else into the one that was last in front. Without files that comes to the front.
    void takeFiles(const QStringList& paths, QWidget* over = nullptr);

    /// Opens a document, and closes `over` if that shows a new one that nobody has touched. What goes wrong
    /// is said in the window in front, or in the start window.
    void openDocument(const QString& path, MainWindowController* over = nullptr);
    /// Asks for a document to open, or a dump to import.
    void askForDocument(QWidget* over);
    /// Shows the preferences panel, the same one each time, and brings it to the front.
    void showPreferences();
    /// None before it has been asked for.
    PreferencesController* preferences() const { return _preferences.get(); }
    /// Shows this section of the manual, or its first page, in the same window each time, and brings that to
    /// the front.
    void showManual(const QString& section);
    /// None before it has been asked for.
    ManualWindow* manual() const { return _manual.get(); }

    /// Looks for newer versions there and not where the build says.
    void setUpdateUrl(const QString& url) { _updateUrl = url; }
    /// Looks for a newer version if that is due, and says so only if there is one.
    void checkForUpdatesIfDue();
    /// Looks for one now, and says what was found to the user of this window.
    void checkForUpdates(MainWindowController& asker);

    /// Closes all windows, as far as the user lets them.
    void quit();

    static void bringToFront(QWidget& window);

private:
    /// Asks about what earlier runs did not come to save.
    void offerLeftovers();
    /// False to be asked later.
    bool offerLeftover(const Leftover& leftover);
    void tellRefused(const Leftover& leftover, const QString& reason);
    void discardLeftover(const Leftover& leftover);
    void addWindow(MyDocument& document);
    /// Its window, or none if it could not be opened.
    MainWindowController* open(const QString& path, MainWindowController* over);
    MainWindowController* windowInFront() const;
    MainWindowController* windowOf(const MyDocument& document) const;
    /// The main window of the document that this window belongs to.
    MainWindowController* mainWindowOf(const QWidget* window) const;
    ApplicationInfo applicationToUpdate() const;
    void makeUpdater();
    void tellUpdate(bool found);
    void showFailure(const QString& path, const QString& reason);

    AppController& _controller;
    Defaults& _defaults;
    SimulatedDevice _simulatedDevice;
    std::optional<QString> _updateUrl;
    std::unique_ptr<XMLUpdater> _updater;        ///< of the check under way, until its outcome is told
    QPointer<MainWindowController> _updateAsker; ///< whose user waits for it, if anybody does
    std::vector<MainWindowController*> _mainWindows;
    QPointer<MainWindowController> _lastInFront;
    QPointer<StartWindow> _startWindow;
    std::unique_ptr<PreferencesController>
        _preferences;                      ///< from the first time on, until the application ends
    std::unique_ptr<ManualWindow> _manual; ///< the same
    QStringList _failures;                 ///< to open the documents asked for last
};

} // namespace ridelog
