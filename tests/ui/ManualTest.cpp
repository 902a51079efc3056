#include "tests/ui/Desktop.h"
#include "tests/ui/MenuKeys.h"
#include "tests/ui/TourWindow.h"
#include "ui/ExportPanel.h"
#include "ui/ManualPage.h"
#include "ui/ManualWindow.h"
#include "ui/PreferencesController.h"
#include "ui/StatWindowController.h"

#include <QFile>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>

namespace ridelog {
namespace {

class Manual : public TourWindow {
protected:
    ManualWindow& manual() { return *windows->manual(); }
    ManualPage& page() { return manual().page(); }
    /// What it shows, as "preferences.html#chart".
    QString shown() { return page().source().toString().section(QStringLiteral("/manual/"), 1); }
    /// Presses F1 where the keys of this window go.
    QString shownFrom(QWidget& window)
    {
        inFront(window);
        auto* place = window.focusWidget();
        QTest::keyClick(place ? place : &window, Qt::Key_F1);
        return windows->manual() ? shown() : QStringLiteral("nothing");
    }
    /// From the main window; it gets the keys from now on.
    void open()
    {
        shownFrom(window());
        inFront(manual());
    }
    static void press(QWidget& widget, QKeyCombination keys)
    {
        QTest::keyClick(&widget, keys.key(), keys.keyboardModifiers());
    }
};

TEST_F(Manual, EachWindowLeadsToItsSection)
{
    start({dump()});
    EXPECT_EQ(shownFrom(window()), QStringLiteral("main-window.html"));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&manual()));
    EXPECT_EQ(shownFrom(manual()), QStringLiteral("index.html"));
    window().connectView().connectButton().setFocus();
    EXPECT_EQ(shownFrom(window()), QStringLiteral("device.html"));
    auto& tour = openSelected();
    EXPECT_EQ(shownFrom(tour), QStringLiteral("tour-window.html"));
    trigger(tour, "Data");
    tour.dataTable().setFocus();
    EXPECT_EQ(shownFrom(tour), QStringLiteral("values.html#a-sample"));
    Application::trigger("Statistics");
    EXPECT_EQ(shownFrom(*window().statWindow()), QStringLiteral("statistics.html"));
    Application::trigger("Preferences…");
    auto& preferences = *windows->preferences();
    for (const auto* section : {"general", "chart", "pulse", "device"}) {
        EXPECT_EQ(shownFrom(preferences), QStringLiteral("preferences.html#") + QString::fromLatin1(section));
        preferences.pages().setCurrentIndex(preferences.pages().currentIndex() + 1);
    }
    window().connectView().connectButton().setFocus();
    Application::trigger("Manual");
    EXPECT_EQ(shown(), QStringLiteral("device.html")) << "the keys of the main window go to the drawer";
    for (const auto* one : windows->openWindows())
        EXPECT_NE(one, static_cast<QWidget*>(&manual())) << "it belongs to no document";
}

TEST_F(Manual, PanelsThatKeepTheKeysLeadToItAndLeaveItUsable)
{
    start({dump()});
    whenAsked<ExportPanel>([this](ExportPanel& panel) {
        EXPECT_EQ(shownFrom(panel.format()), QStringLiteral("export.html"));
        page().showSection({});
        for (auto* button : panel.findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("Hel&p"))
                click(*button);
        }
        EXPECT_EQ(shown(), QStringLiteral("export.html"));
        panel.reject();
    });
    Application::trigger("Export…");
    ASSERT_TRUE(eventually([this] { return answers.children().isEmpty(); }));
    manual().hide();

    // This one keeps the keys from all windows of the application.
    whenAsked([this](QMessageBox& box) {
        EXPECT_EQ(shownFrom(box), QStringLiteral("main-window.html"));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&manual()));
        press(manual(), Qt::CTRL | Qt::Key_F);
        QTest::keyClicks(&manual().searchField(), QStringLiteral("table"));
        EXPECT_EQ(page().textCursor().selectedText().toLower(), QStringLiteral("table"));
        manual().close();
        box.reject();
    });
    Application::trigger("About ridelog");
    EXPECT_TRUE(answers.children().isEmpty());
    EXPECT_EQ(shownFrom(window()), QStringLiteral("main-window.html")) << "and once more without it";
}

TEST_F(Manual, TroubleWithThePortIsAButtonAway)
{
    start();
    inFront(window());
    QTest::keyClick(&window().connectView().troubleButton(), Qt::Key_Space);
    EXPECT_EQ(shown(), QStringLiteral("trouble.html"));
}

TEST_F(Manual, WordsAreFoundOnThePage)
{
    start();
    open();
    press(manual(), Qt::CTRL | Qt::Key_F);
    EXPECT_TRUE(manual().searchField().hasFocus());
    QTest::keyClicks(&manual().searchField(), QStringLiteral("undo"));
    const auto first = page().textCursor().selectionStart();
    EXPECT_EQ(page().textCursor().selectedText().toLower(), QStringLiteral("undo"));
    press(manual().searchField(), Qt::Key_Return);
    EXPECT_GT(page().textCursor().selectionStart(), first);
    press(manual(), Qt::SHIFT | Qt::Key_F3);
    EXPECT_EQ(page().textCursor().selectionStart(), first);
    press(manual(), Qt::SHIFT | Qt::Key_F3);
    EXPECT_GT(page().textCursor().selectionStart(), first) << "from the other end";
    press(manual(), Qt::Key_F3);
    EXPECT_EQ(page().textCursor().selectionStart(), first);
    EXPECT_EQ(manual().message(), QString());
    QTest::keyClicks(&manual().searchField(), QStringLiteral("xyz"));
    EXPECT_EQ(manual().message(), QStringLiteral("“undoxyz” is not on this page."));
    press(manual(), Qt::Key_Escape);
    EXPECT_TRUE(page().hasFocus());
    press(manual(), Qt::Key_Escape);
    EXPECT_TRUE(manual().isHidden());
}

TEST_F(Manual, LinksLeadOnAndTheKeysBack)
{
    const Desktop desktop;
    start();
    open();
    Application::trigger(manual(), "Contents");
    EXPECT_EQ(shown(), QStringLiteral("index.html"));
    press(page(), Qt::Key_Tab);
    press(page(), Qt::Key_Return);
    EXPECT_NE(shown(), QStringLiteral("index.html")) << "by Tab and Return";
    press(manual(), Qt::ALT | Qt::Key_Left);
    press(manual(), Qt::ALT | Qt::Key_Left);
    EXPECT_EQ(shown(), QStringLiteral("main-window.html"));
    press(manual(), Qt::ALT | Qt::Key_Right);
    EXPECT_EQ(shown(), QStringLiteral("index.html"));
    Q_EMIT page().anchorClicked(QUrl(QStringLiteral("https://example.org/")));
    page().showSection(QStringLiteral("preferences.html#device"));
    const auto place = page().verticalScrollBar()->value();
    EXPECT_GT(place, page().viewport()->height()) << "it is the last page of the panel";
    QStringList keys;
    collectKeys(manual().menuBar()->actions(), keys);
    EXPECT_GE(keys.size(), 11);
}

TEST_F(Manual, PicturesFitTheWindowAndTheTextIsThatOfThePage)
{
    start();
    open();
    const auto widths = [this] {
        QList<int> found;
        for (auto block = page().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const auto format = part.fragment().charFormat();
                if (!format.isImageFormat())
                    continue;
                const auto picture = page().document()->resource(QTextDocument::ImageResource,
                                                                 QUrl(format.toImageFormat().name()));
                found << qRound(picture.value<QImage>().deviceIndependentSize().width());
            }
        }
        return found;
    };
    const auto usual = widths();
    ASSERT_GE(usual.size(), 2);
    for (const int width : usual)
        EXPECT_TRUE(width > 300 && width < page().viewport()->width()) << width;
    EXPECT_EQ(page().horizontalScrollBar()->maximum(), 0);
    manual().resize(500, 600);
    EXPECT_TRUE(eventually([&] { return widths()[0] < page().viewport()->width(); }));
    EXPECT_GT(usual[0], widths()[0]);
    EXPECT_TRUE(page().toPlainText().startsWith(QStringLiteral("The main window\n")))
        << "lists of pages and sections come later";
}

TEST_F(Manual, LettersAndFrameAreKept)
{
    start();
    open();
    const auto usual = page().font().pointSizeF();
    press(manual(), Qt::CTRL | Qt::Key_Plus);
    press(manual(), Qt::CTRL | Qt::Key_Equal);
    press(manual(), Qt::CTRL | Qt::Key_Equal);
    press(manual(), Qt::CTRL | Qt::Key_Minus);
    EXPECT_EQ(page().font().pointSizeF(), usual + 2);
    manual().resize(640, 480);
    end();
    start();
    open();
    EXPECT_EQ(page().font().pointSizeF(), usual + 2);
    EXPECT_EQ(manual().size(), QSize(640, 480));
    press(manual(), Qt::CTRL | Qt::Key_0);
    EXPECT_EQ(page().font().pointSizeF(), usual);
    // Far more than anybody wants.
    for (int time = 0; time < 50; ++time)
        press(manual(), Qt::CTRL | Qt::Key_Minus);
    EXPECT_GT(page().font().pointSizeF(), 0);
}

/// A row for each action with keys: "| File > Open… | Ctrl+O |".
QStringList rowsOf(const QList<QAction*>& actions, const QString& path = {})
{
    static const QRegularExpression whatIsUndone(QStringLiteral("^(Undo|Redo) .*"));
    QStringList rows;
    for (const auto* one : actions) {
        const auto name =
            path + QString(one->text()).remove(u'&').replace(whatIsUndone, QStringLiteral("\\1"));
        if (one->menu()) {
            Q_EMIT one->menu()->aboutToShow();
            rows += rowsOf(one->menu()->actions(), name + QStringLiteral(" > "));
        } else if (!one->shortcut().isEmpty()) {
            // The one that differs from desktop to desktop.
            const bool isClose = one->shortcut() == QKeySequence(QKeySequence::Close);
            rows << QStringLiteral("| %1 | %2 |")
                        .arg(name, isClose ? QStringLiteral("Ctrl+W")
                                           : one->shortcut().toString(QKeySequence::NativeText));
        }
    }
    return rows;
}

TEST_F(Manual, ItsTableHasTheKeysOfAllActions)
{
    QFile file(QStringLiteral(RIDELOG_SOURCE "/docs/manual/keys.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto sections = QString::fromUtf8(file.readAll()).split(QStringLiteral("\n## "));
    const auto expectRows = [&sections](const char* title, const QMainWindow& window) {
        QStringList found;
        for (const auto& section : sections) {
            if (section.startsWith(QString::fromLatin1(title) + u'\n'))
                found = section.split(u'\n').filter(QRegularExpression(QStringLiteral("^\\| \\w+ > ")));
        }
        EXPECT_EQ(found.join(u'\n').toStdString(),
                  rowsOf(window.menuBar()->actions()).join(u'\n').toStdString())
            << title;
    };
    start({dump()});
    open();
    expectRows("The manual", manual());
    Application::trigger("Statistics");
    expectRows("Statistics", *window().statWindow());
    expectRows("The window of a tour", openSelected());
    expectRows("The main window", window());
}

} // namespace
} // namespace ridelog
