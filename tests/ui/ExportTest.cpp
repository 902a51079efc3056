#include "exchange/TourExport.h"
#include "tests/ui/MenuKeys.h"
#include "tests/ui/TourWindow.h"
#include "ui/ExportPanel.h"
#include "ui/ExportProgress.h"
#include "ui/FolderField.h"
#include "ui/StatWindowController.h"
#include "ui/TourExporting.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenuBar>
#include <QStandardPaths>
#include <QTabBar>

#include <algorithm>
#include <iterator>

namespace ridelog {
namespace {

/// Tours that are exported as a rider does it.
class Export : public TourWindow {
protected:
    using Application::trigger;
    /// Opens the panel of a window by key and does this with it.
    void ask(QMainWindow& over, const std::function<void(ExportPanel&)>& act)
    {
        whenAsked<ExportPanel>(act);
        inFront(over);
        QTest::keyClick(&over, Qt::Key_E, Qt::ControlModifier);
        EXPECT_TRUE(eventually([this] { return answers.children().isEmpty(); }));
    }
    /// Answers what the window says in the end.
    template <typename Window>
    static QString told(Window& over)
    {
        EXPECT_TRUE(eventually([&over] { return !over.message().isEmpty(); }));
        return over.message();
    }
    static void type(FolderField& field, const QString& text)
    {
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    static void choose(QComboBox& box, const char* format)
    {
        box.setCurrentIndex(box.findData(QString::fromLatin1(format)));
    }
    /// Of all tours to this folder.
    void exportAll(const char* format, const char* folder, bool together = false)
    {
        ask(window(), [&, this](ExportPanel& panel) {
            panel.tours().setCurrentIndex(panel.tours().count() - 1);
            choose(panel.format(), format);
            if (panel.together().isChecked() != together)
                panel.together().click();
            type(panel.folder(), path(folder));
            click(panel.exportButton());
        });
    }
    QStringList in(const char* folder) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QJsonArray toursIn(const QString& file) const
    {
        return QJsonDocument::fromJson(read(qPrintable(file)))[u"tours"].toArray();
    }
    /// With more tours than are exported before anybody could cancel it.
    void startWithManyTours()
    {
        start();
        Tours tours;
        for (std::uint32_t seed = 1; seed <= 20; ++seed)
            std::ranges::copy(rides(seed, 20), std::back_inserter(tours));
        document().setToursArray(tours);
        window().tourController().rearrangeObjects();
    }
};

TEST_F(Export, WhatIsSelectedOrAllThatIsNotRemoved)
{
    start({dump()});
    ask(window(), [this](ExportPanel& panel) {
        EXPECT_EQ(panel.tours().currentText(), QStringLiteral("Selected tours (1)"));
        EXPECT_EQ(panel.tours().itemText(1), QStringLiteral("All tours (5)"));
        choose(panel.format(), "json");
        EXPECT_FALSE(panel.together().isEnabled());
        type(panel.folder(), path("out/of the way"));
        EXPECT_TRUE(panel.outcome().endsWith(QStringLiteral("_Bike.json"))) << qPrintable(panel.outcome());
        click(panel.exportButton());
    });
    EXPECT_TRUE(told(window()).startsWith(QStringLiteral("1 tour exported as ")))
        << qPrintable(window().message());
    ASSERT_EQ(in("out/of the way").size(), 1);
    const auto file = QStringLiteral("out/of the way/") + in("out/of the way").front();
    EXPECT_EQ(told(window()), QStringLiteral("1 tour exported as %1/%2.").arg(path(), file));
    const auto exported = toursIn(file);
    ASSERT_EQ(exported.size(), 1);
    EXPECT_EQ(exported[0][u"number"], 1) << "as lists count it";

    trigger("Show Removed Tours");
    trigger("Remove Tour");
    trigger("Select All");
    ask(window(), [this](ExportPanel& panel) {
        EXPECT_TRUE(panel.tours().isHidden()) << "there is no choice";
        EXPECT_EQ(panel.format().currentData(), QStringLiteral("json")) << "as the last time";
        EXPECT_EQ(panel.folder().path(), path("out/of the way"));
        EXPECT_TRUE(panel.outcome().startsWith(QStringLiteral("4 files, such as 20")))
            << qPrintable(panel.outcome());
        panel.together().click();
        EXPECT_EQ(panel.outcome(), QStringLiteral("Tours.json"));
        click(panel.exportButton());
    });
    EXPECT_EQ(told(window()),
              QStringLiteral("4 tours exported as %1.").arg(path("out/of the way/Tours.json")));
    EXPECT_EQ(toursIn(QStringLiteral("out/of the way/Tours.json")).size(), 4);
    ASSERT_EQ(controller->saveDocumentAs(document(), path("My.rides.ridelog")), std::nullopt);
    ask(window(), [](ExportPanel& panel) {
        EXPECT_TRUE(panel.together().isChecked()) << "as the last time";
        EXPECT_EQ(panel.outcome(), QStringLiteral("My.rides.json"));
        panel.reject();
    });
    trigger("Remove Tour");
    EXPECT_FALSE(action(QStringLiteral("Export…"))->isEnabled()) << "nothing is left";
}

TEST_F(Export, TheFormatDecidesWhatAFileHolds)
{
    start({dump()});
    trigger("Select All");
    ask(window(), [](ExportPanel& panel) {
        choose(panel.format(), "json");
        EXPECT_FALSE(panel.together().isChecked());
        choose(panel.format(), "csv-summary");
        EXPECT_FALSE(panel.together().isEnabled());
        EXPECT_TRUE(panel.together().isChecked());
        EXPECT_EQ(panel.outcome(), QStringLiteral("Tours-summary.csv"));
        choose(panel.format(), "json");
        EXPECT_TRUE(panel.together().isEnabled());
        EXPECT_FALSE(panel.together().isChecked()) << "nobody has ticked it";
        panel.reject();
    });
    EXPECT_EQ(defaults->textForKey(DefaultsKeys::exportFormat), QStringLiteral("tcx"))
        << "nothing was exported";
}

TEST_F(Export, AFolderIsWrittenAsPeopleDo)
{
    start({dump()});
    write("file", "");
    ASSERT_TRUE(QFile::link(path("nowhere"), path("link")));
    ask(window(), [this](ExportPanel& panel) {
        EXPECT_EQ(panel.folder().path(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        const std::pair<const char*, QString> table[] = {
            {"~", path()},
            {"~/rides", path("rides")},
            {" rides/2007/ ", path("rides/2007")},
            {"~rides", path("~rides")},
            {"a/../b", path("b")},
            {"/", QStringLiteral("/")},
        };
        for (const auto& [text, wanted] : table) {
            type(panel.folder(), QString::fromLatin1(text));
            EXPECT_EQ(panel.folder().path(), wanted);
        }
        const std::pair<const char*, QString> unusable[] = {
            {"", QStringLiteral("Say in which folder.")},
            {"  ", QStringLiteral("Say in which folder.")},
            {"file", path("file") + QStringLiteral(" is not a folder.")},
            {"file/in/it", path("file") + QStringLiteral(" is not a folder.")},
            {"link", path("link") + QStringLiteral(" is not a folder.")},
        };
        for (const auto& [text, why] : unusable) {
            panel.folder().clear();
            QTest::keyClicks(&panel.folder(), QString::fromLatin1(text));
            EXPECT_EQ(panel.outcome(), why);
            EXPECT_FALSE(panel.exportButton().isEnabled());
            QTest::keyClick(&panel.folder(), Qt::Key_Return);
            EXPECT_TRUE(panel.isVisible());
        }
        type(panel.folder(), QStringLiteral("~/rides"));
        choose(panel.format(), "csv-summary");
        click(panel.exportButton());
    });
    EXPECT_TRUE(told(window()).endsWith(path("rides/Tours-summary.csv."))) << qPrintable(window().message());
    EXPECT_EQ(defaults->textForKey(DefaultsKeys::exportFolder), path("rides"));
}

TEST_F(Export, WhatIsThereIsNotReplacedUnasked)
{
    start({dump()});
    exportAll("json", "out");
    EXPECT_EQ(told(window()), QStringLiteral("5 tours exported to %1.").arg(path("out")));
    const auto names = in("out");
    ASSERT_EQ(names.size(), 5);
    const auto first = QStringLiteral("out/") + names[0];
    write(qPrintable(first), "mine");
    ASSERT_TRUE(QFile::remove(path("out/") + names[1]));

    answer("Cancel");
    exportAll("json", "out");
    EXPECT_TRUE(eventually([this] { return answers.children().isEmpty(); }));
    EXPECT_TRUE(question.startsWith(QStringLiteral("Replace 4 files?"))) << qPrintable(question);
    EXPECT_EQ(read(qPrintable(first)), "mine");
    EXPECT_EQ(in("out").size(), 4);

    ASSERT_TRUE(QFile::remove(path("out/") + names[4]) && QDir().mkdir(path("out/") + names[4]));
    write(qPrintable(QStringLiteral("out/") + names[2]), stored(document()));
    // What comes while one thinks about it was not asked about.
    answer("Replace", [&] { write(qPrintable(QStringLiteral("out/") + names[1]), "new"); });
    exportAll("json", "out");
    EXPECT_EQ(
        told(window()),
        QStringLiteral("2 files were written. 3 files could not be written: %1: it is a folder; %2: it holds "
                       "tours, which an export would replace; %3: it is there already")
            .arg(names[4], names[2], names[1]));
    EXPECT_EQ(toursIn(first).size(), 1);
    EXPECT_EQ(read(qPrintable(QStringLiteral("out/") + names[1])), "new");

    exportAll("json", "one", true);
    EXPECT_EQ(told(window()), QStringLiteral("5 tours exported as %1.").arg(path("one/Tours.json")));
    write("one/Tours.json", "mine");
    answer("Replace");
    exportAll("json", "one", true);
    EXPECT_EQ(told(window()), QStringLiteral("5 tours exported as %1.").arg(path("one/Tours.json")));
    EXPECT_TRUE(question.startsWith(QStringLiteral("Replace Tours.json?\nIt is in ") + path("one")))
        << qPrintable(question);
    EXPECT_EQ(toursIn(QStringLiteral("one/Tours.json")).size(), 5);
}

TEST_F(Export, IsCancelledWithNothingLeftInHalves)
{
    startWithManyTours();
    whenAsked<ExportProgress>([this](ExportProgress& progress) {
        EXPECT_FALSE(window().close()) << "it goes on";
        EXPECT_TRUE(progress.text().endsWith(QStringLiteral(" of 400 tours"))) << qPrintable(progress.text());
        auto* ticks = new QTimer(&progress);
        ticks->callOnTimeout(&progress, [&progress] {
            if (!progress.text().startsWith(QStringLiteral("0 of")))
                QTest::keyClick(&progress, Qt::Key_Escape);
        });
        ticks->start(1);
    });
    exportAll("json", "many");
    const auto said = told(window());
    const auto written = in("many").size();
    EXPECT_GT(written, 0);
    EXPECT_LT(written, 400);
    EXPECT_EQ(said, QStringLiteral("Export cancelled: %1 of 400 files were written.").arg(written));

    whenAsked<ExportProgress>([](ExportProgress& progress) { progress.reject(); });
    exportAll("json", "one", true);
    EXPECT_EQ(told(window()), QStringLiteral("Export cancelled: nothing was written."));
    EXPECT_TRUE(in("one").isEmpty());
    EXPECT_NE(defaults->textForKey(DefaultsKeys::exportFolder), path("one"));
}

TEST_F(Export, EndsWithTheProgram)
{
    startWithManyTours();
    whenAsked<ExportProgress>([](ExportProgress&) { QCoreApplication::exit(7); });
    QTimer::singleShot(0, &window(), [this] { exportAll("json", "one", true); });
    EXPECT_EQ(QCoreApplication::exec(), 7);
    EXPECT_TRUE(answers.children().isEmpty());
    EXPECT_TRUE(in("one").isEmpty());
}

TEST_F(Export, EndsWithTheWindow)
{
    startWithManyTours();
    whenAsked<ExportProgress>([this](ExportProgress&) { delete &window(); });
    exportAll("json", "one", true);
    EXPECT_TRUE(
        eventually([this] { return windows->mainWindows().empty() && answers.children().isEmpty(); }));
    EXPECT_TRUE(in("one").isEmpty());
}

TEST_F(Export, ATourWindowExportsItsTour)
{
    start({dump()});
    trigger("Select All");
    window().tourController().selectRow(3);
    auto& shown = openSelected();
    QStringList keys;
    collectKeys(shown.menuBar()->actions(), keys);
    window().tourController().selectRow(0);
    ask(shown, [this](ExportPanel& panel) {
        EXPECT_TRUE(panel.tours().isHidden());
        choose(panel.format(), "json");
        type(panel.folder(), path("out"));
        click(panel.exportButton());
    });
    EXPECT_TRUE(told(shown).startsWith(QStringLiteral("1 tour exported as "))) << qPrintable(shown.message());
    const auto exported = toursIn(QStringLiteral("out/") + in("out").value(0));
    ASSERT_EQ(exported.size(), 1);
    EXPECT_EQ(exported[0][u"number"], 4);
}

TEST_F(Export, ThePeriodThatIsShownBecomesAReport)
{
    start({dump()});
    defaults->setValue(DefaultsKeys::exportFolder, path());
    const auto last = window().tourController().arrangedObjects().front()->date();
    defaults->setValue(DefaultsKeys::odoStatDate, last);
    trigger("Statistics");
    auto& shown = *window().statWindow();
    inFront(shown);
    QStringList keys;
    collectKeys(shown.menuBar()->actions(), keys);
    shown.tabView().setCurrentIndex(1);
    const auto save = [&](const std::function<void(QFileDialog&)>& act) {
        whenAsked<QFileDialog>(act);
        inFront(shown);
        QTest::keyClick(&shown, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(eventually([this] { return answers.children().isEmpty(); }));
    };
    const auto name = QStringLiteral("Tours_%1.html").arg(last.date().year());
    save([&](QFileDialog& panel) {
        EXPECT_EQ(panel.selectedFiles(), QStringList{path() + u'/' + name});
        static_cast<QDialog&>(panel).findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
    });
    EXPECT_TRUE(told(shown).endsWith(name + u'.')) << qPrintable(shown.message());
    EXPECT_TRUE(read(qPrintable(name)).contains(QByteArray::number(last.date().year())));

    shown.yearMinus();
    shown.yearMinus();
    inFront(shown);
    QTest::keyClick(&shown, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(told(shown), QStringLiteral("There are no tours in this period."));
}

} // namespace
} // namespace ridelog
