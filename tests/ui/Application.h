#pragma once

#include "chart/ChartArrayView.h"
#include "library/AppController.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "platform/MainThread.h"
#include "simulator/RideGenerator.h"
#include "tests/support/Events.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/ApplicationWindows.h"
#include "ui/ConnectView.h"
#include "ui/MainWindowController.h"
#include "ui/TourColumns.h"
#include "ui/TourTableView.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <type_traits>
#include <utility>

/// What a failed test shows of a text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << qPrintable(text) << '"';
}

namespace ridelog {

/// The application with its own settings and home folder. It can be ended and started again.
class Application : public testing::Test, protected TemporaryFolder {
public:
    Application() : home(qgetenv("HOME"))
    {
        qputenv("HOME", path("").toUtf8());
        qputenv("RIDELOG_PORTS", port);
        prepareMainThread();
    }
    ~Application() override
    {
        EXPECT_TRUE(answers.children().isEmpty()) << "a question was not asked";
        end();
        qputenv("HOME", home);
    }

protected:
    void start(const QStringList& files = {})
    {
        defaults = std::make_unique<Defaults>(path("settings"));
        defaults->setValue(DefaultsKeys::automaticCheck, false);
        controller = std::make_unique<AppController>(*defaults, path(recoveryFolder));
        windows = std::make_unique<ApplicationWindows>(*controller, *defaults);
        windows->simulatedDevice().setSpeed(0);
        windows->start(files);
    }
    void end()
    {
        windows.reset();
        controller.reset();
        defaults.reset();
    }

    MainWindowController& window() { return *windows->mainWindows().at(0); }
    MyDocument& document() { return window().myDocument(); }
    int rows() { return window().tableView().model()->rowCount(); }
    QString cell(int row, const QString& key)
    {
        const auto* model = window().tableView().model();
        return model->index(row, TourColumns::columnWithKey(key)).data().toString();
    }
    /// A made-up dump in a file.
    QString dump(std::uint32_t seed = 1, int tours = 5)
    {
        return write("ride.odo", RideGenerator{.seed = seed, .tours = tours}.dump());
    }
    /// The action with this text, without its ampersand.
    QAction* action(const QString& text) { return action(window(), text); }
    static QAction* action(const QWidget& of, const QString& text)
    {
        for (auto* action : of.findChildren<QAction*>()) {
            if (action->text().remove(u'&') == text)
                return action;
        }
        ADD_FAILURE() << "no action " << qPrintable(text);
        return nullptr;
    }
    /// Chooses it, as one event.
    void trigger(const char* text) { trigger(window(), text); }
    static void trigger(const QWidget& of, const char* text)
    {
        if (auto* found = action(of, QString::fromUtf8(text)))
            found->trigger();
        QCoreApplication::processEvents();
    }
    /// Does this with the question that comes next.
    template <typename Dialog = QMessageBox>
    void whenAsked(std::type_identity_t<std::function<void(Dialog&)>> act)
    {
        auto* timer = new QTimer(&answers);
        timer->callOnTimeout([this, timer, act = std::move(act)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog || timer->parent() == nullptr)
                return;
            timer->setParent(nullptr);
            timer->deleteLater();
            question = textOf(*dialog);
            act(*dialog);
        });
        timer->start(5);
    }
    /// It gets the keys from now on.
    static void inFront(QWidget& widget)
    {
        // A panel that has gone may still be the active window.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        widget.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
    }
    static QString textOf(const QMessageBox& box) { return box.text() + u'\n' + box.informativeText(); }
    static QString textOf(const QDialog& panel) { return panel.windowTitle(); }
    /// Presses this button of the question that comes next; `first` happens before.
    void answer(const char* button, const std::function<void()>& first = {})
    {
        whenAsked([wanted = QString::fromUtf8(button), first](QMessageBox& box) {
            if (first)
                first();
            for (auto* one : box.buttons()) {
                if (one->text().remove(u'&') == wanted)
                    return one->click();
            }
            ADD_FAILURE() << "no button " << qPrintable(wanted);
            box.reject();
        });
    }
    /// Chooses this file in the panel that comes next; gives it up for none.
    void choose(const QString& file)
    {
        whenAsked<QFileDialog>([file](QFileDialog& panel) {
            if (file.isEmpty())
                return panel.reject();
            panel.selectFile(file);
            static_cast<QDialog&>(panel).findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
        });
    }

    static constexpr const char* port = "/no/such/port"; ///< is in the list of ports all the same
    QByteArray home;
    const char* recoveryFolder = "recovery";
    std::unique_ptr<Defaults> defaults;
    std::unique_ptr<AppController> controller;
    std::unique_ptr<ApplicationWindows> windows;
    QString question; ///< that was answered last
    QObject answers;  ///< those that are still to be given
};

} // namespace ridelog
