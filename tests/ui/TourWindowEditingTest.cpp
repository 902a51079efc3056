#include "tests/ui/Desktop.h"
#include "tests/ui/TourWindow.h"
#include "ui/DescriptionEdit.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMimeData>

namespace ridelog {
namespace {

class TourWindowEditing : public TourWindow {
protected:
    TourWindowController& openTour()
    {
        start({dump()});
        EXPECT_EQ(controller->saveDocumentAs(document(), path("tours.ridelog")), std::nullopt);
        return openSelected();
    }
    static void type(TourWindowController& shown, const char* text)
    {
        shown.text().setFocus();
        QTest::keyClicks(&shown.text(), QString::fromUtf8(text));
    }
    QString description() { return window().tourController().selectedTour()->shownDescription(); }
    /// What the file holds of the tour shown at the top.
    static StyledText saved(const QString& path)
    {
        MyDocument document;
        EXPECT_EQ(document.openForReading(path), std::nullopt);
        const auto& tours = document.toursArray();
        return (*std::ranges::max_element(tours, {}, [](const auto& tour) { return tour->date(); }))
            ->tourDescription();
    }
};

TEST_F(TourWindowEditing, ATitleIsOneStepWhereverItIsTakenBack)
{
    auto& shown = openTour();
    auto& other = openSelected();
    inFront(shown);
    auto& title = shown.title();
    title.setFocus();
    QTest::keyClicks(&title, QStringLiteral(" Over [*] the pass "));
    EXPECT_FALSE(document().isChanged()) << "not yet";
    QTest::keyClick(&title, Qt::Key_Return);
    EXPECT_EQ(cell(0, TourKey::title), QStringLiteral("Over [*] the pass"));
    EXPECT_EQ(other.title().text(), QStringLiteral("Over [*] the pass"));
    EXPECT_TRUE(other.windowTitle().endsWith(QStringLiteral(" – Over [*][*] the pass")));

    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(title.text().isEmpty());
    EXPECT_FALSE(document().isChanged());
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(title.text(), QStringLiteral("Over [*] the pass"));
    QTest::keyClicks(&title, QStringLiteral("!"));
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(title.text(), QStringLiteral("Over [*] the pass"))
        << "what is typed is the field's to take back";
    EXPECT_TRUE(document().isChanged());
    Application::trigger("Undo change title");
    EXPECT_TRUE(title.text().isEmpty());

    QTest::keyClicks(&title, QStringLiteral("mistake"));
    QTest::keyClick(&title, Qt::Key_Escape);
    title.clearFocus();
    EXPECT_FALSE(document().isChanged());
    EXPECT_TRUE(title.text().isEmpty());
}

TEST_F(TourWindowEditing, WhatIsStillBeingTypedCountsWhenTheWindowGoes)
{
    auto& first = openTour();
    first.title().setFocus();
    QTest::keyClicks(&first.title(), QStringLiteral("First"));
    first.close();
    EXPECT_TRUE(eventually([&] { return window().tourWindows().empty(); }));
    EXPECT_EQ(cell(0, TourKey::title), QStringLiteral("First"));

    auto& second = openSelected();
    second.title().setFocus();
    second.title().selectAll();
    QTest::keyClicks(&second.title(), QStringLiteral("Second"));
    type(second, "windy");
    QTest::keyClick(&second, Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(document().isChanged());
    EXPECT_EQ(second.message(), QStringLiteral("Saved."));
    EXPECT_EQ(saved(path("tours.ridelog")), StyledText(QStringLiteral("windy")));

    type(second, " and cold");
    answer("Save");
    window().close();
    EXPECT_TRUE(eventually([&] { return windows->mainWindows().empty(); }));
    EXPECT_EQ(saved(path("tours.ridelog")), StyledText(QStringLiteral("windy and cold")));
}

TEST_F(TourWindowEditing, NothingTypedIsLostWhenSomethingElseChanges)
{
    auto& shown = openTour();
    type(shown, "windy");
    shown.odoTour()->setTitle(QStringLiteral("from elsewhere"));
    EXPECT_EQ(shown.text().toPlainText(), QStringLiteral("windy"));
    QTest::keyClicks(&shown.title(), QStringLiteral("!"));
    shown.finishEditing();
    EXPECT_EQ(shown.odoTour()->title(), QStringLiteral("from elsewhere!"));
    EXPECT_EQ(description(), QStringLiteral("windy"));
    EXPECT_EQ(shown.text().toPlainText(), QStringLiteral("windy"));
}

TEST_F(TourWindowEditing, WordsTypedWithoutAPauseAreOneStep)
{
    auto& shown = openTour();
    auto& other = openSelected();
    type(shown, "Rain until noon. ");
    EXPECT_TRUE(description().isEmpty()) << "no step for every letter";
    EXPECT_TRUE(eventually([&] { return !description().isEmpty(); }));
    type(shown, "Then sun.");
    TourWindow::trigger(other, "Undo change description");
    EXPECT_EQ(description(), QStringLiteral("Rain until noon. "));
    EXPECT_EQ(other.text().toPlainText(), QStringLiteral("Rain until noon. "));
    Application::trigger("Undo change description");
    EXPECT_TRUE(shown.text().toPlainText().isEmpty());
    EXPECT_FALSE(document().isChanged());
    inFront(shown);
    TourWindow::trigger(other, "Redo change description");
    QTest::keyClick(&shown.text(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(shown.text().toPlainText(), QStringLiteral("Rain until noon. Then sun."));

    shown.text().selectAll();
    QTest::keyClick(&shown.text(), Qt::Key_Delete);
    shown.title().setFocus();
    EXPECT_EQ(window().tourController().selectedTour()->tourDescription(), StyledText(OdoTour::untitled()))
        << "a tour without a description has the one it came with";
    EXPECT_TRUE(shown.text().toPlainText().isEmpty());
}

TEST_F(TourWindowEditing, StylesAndLinksAreSavedAndTakenBack)
{
    auto& shown = openTour();
    auto& text = shown.text();
    type(shown, "steep and long");
    auto cursor = text.textCursor();
    const auto select = [&](int from, int to) {
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        text.setTextCursor(cursor);
    };
    select(0, 5);
    QTest::keyClick(&text, Qt::Key_B, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_I, Qt::ControlModifier);
    select(6, 9);
    QTest::keyClick(&text, Qt::Key_U, Qt::ControlModifier);
    select(10, 14);
    whenAsked<QInputDialog>([](QInputDialog& panel) {
        panel.setTextValue(QStringLiteral(" https://example.org/pass "));
        panel.accept();
    });
    QTest::keyClick(&text, Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(eventually([&] { return !text.linkAtCursor().isEmpty(); }));
    inFront(shown);
    QTest::keyClick(&shown, Qt::Key_S, Qt::ControlModifier);

    const auto stored = saved(path("tours.ridelog"));
    EXPECT_EQ(stored.text(), QStringLiteral("steep and long"));
    EXPECT_TRUE(stored.styleAt(4).bold);
    EXPECT_TRUE(stored.styleAt(4).italic);
    EXPECT_EQ(stored.styleAt(5), StyledText::Style());
    EXPECT_TRUE(stored.styleAt(6).underline);
    EXPECT_EQ(stored.styleAt(10).link, QStringLiteral("https://example.org/pass"));

    Desktop desktop;
    select(12, 12);
    TourWindow::trigger(shown, "Open Link");
    text.setLink(QStringLiteral("example.org/other"));
    select(12, 12);
    TourWindow::trigger(shown, "Open Link");
    EXPECT_EQ(desktop.opened, (QByteArrayList{"https://example.org/pass", "http://example.org/other"}));
    for (const auto* address : {"file:///bin/sh", "/bin/sh", "javascript:alert(1)"}) {
        text.setLink(QString::fromLatin1(address));
        select(12, 12);
        TourWindow::trigger(shown, "Open Link");
        EXPECT_FALSE(shown.message().isEmpty()) << address;
    }
    EXPECT_EQ(desktop.opened.size(), 2) << "only pages and letters";

    text.moveCursor(QTextCursor::End);
    type(shown, " indeed");
    shown.finishEditing();
    const auto edited = window().tourController().selectedTour()->tourDescription();
    EXPECT_EQ(edited.styleAt(13).link, QStringLiteral("javascript:alert(1)"));
    EXPECT_TRUE(edited.styleAt(16).link.isEmpty()) << "what is typed behind a link is none of it";
}

TEST_F(TourWindowEditing, AListGoesOnUntilAnEmptyLineOfIt)
{
    auto& shown = openTour();
    auto& text = shown.text();
    type(shown, "bread");
    TourWindow::trigger(shown, "List");
    QTest::keyClick(&text, Qt::Key_Return);
    type(shown, "water");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClick(&text, Qt::Key_Return);
    type(shown, "That is all.");
    EXPECT_EQ(text.toPlainText(), QStringLiteral("• bread\n• water\nThat is all."));
    text.selectAll();
    TourWindow::trigger(shown, "List");
    EXPECT_EQ(text.toPlainText(), QStringLiteral("• bread\n• water\n• That is all."));
    TourWindow::trigger(shown, "List");
    EXPECT_EQ(description(), QStringLiteral("bread\nwater\nThat is all."));
}

TEST_F(TourWindowEditing, OfWhatIsPastedOnlyTextAndItsStylesStay)
{
    auto& shown = openTour();
    auto& text = shown.text();
    text.setFocus();
    auto* page = new QMimeData; // becomes the clipboard's
    page->setHtml(QStringLiteral("<h1>Big</h1><table><tr><td>a</td></tr></table><img src='x.png'>"
                                 "<b>bold</b> <a href='https://example.org'>there</a>"));
    QGuiApplication::clipboard()->setMimeData(page);
    QTest::keyClick(&text, Qt::Key_V, Qt::ControlModifier);
    shown.finishEditing();
    const auto pasted = window().tourController().selectedTour()->tourDescription();
    EXPECT_FALSE(pasted.text().contains(QChar::ObjectReplacementCharacter));
    EXPECT_EQ(pasted.text().simplified(), QStringLiteral("Big a bold there"));
    EXPECT_EQ(text.toPlainText(), pasted.text()) << "what is seen is what is kept";
    EXPECT_TRUE(pasted.styleAt(pasted.text().indexOf(u"bold")).bold);
    EXPECT_EQ(pasted.styleAt(pasted.text().indexOf(u"there")).link, QStringLiteral("https://example.org"));
}

TEST_F(TourWindowEditing, APastedPageReadsNothingFromElsewhere)
{
    auto& shown = openTour();
    const auto sheet = write("style.css", "p { font-weight: bold }");
    auto* page = new QMimeData;
    page->setHtml(QStringLiteral("<html><head><link rel='stylesheet' type='text/css' "
                                 "href='file://%1'></head><body><p>plain</p></body></html>")
                      .arg(sheet));
    QGuiApplication::clipboard()->setMimeData(page);
    shown.text().paste();
    shown.finishEditing();
    EXPECT_EQ(description(), QStringLiteral("plain"));
    EXPECT_FALSE(shown.odoTour()->tourDescription().styleAt(0).bold);
}

TEST_F(TourWindowEditing, ManyStylesTakeLittleTime)
{
    StyledText written;
    for (int run = 0; run < 3000; ++run) {
        written.replace(written.text().size(), 0, u"word ");
        written.setUnderline(written.text().size() - 5, 5, run % 2 == 0);
    }
    const auto tour = tourThrough({500, 510});
    tour->setTourDescription(written);
    QElapsedTimer timer;
    timer.start();
    auto& shown = open(tour);
    shown.text().selectAll();
    QTest::keyClick(&shown.text(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(tour->tourDescription().styleAt(14'999).bold);
    EXPECT_FALSE(tour->tourDescription().styleAt(14'999).underline);
    EXPECT_TRUE(tour->tourDescription().styleAt(14'994).underline);
    EXPECT_LT(timer.elapsed(), 10'000) << "a minute, if each style were laid out by itself";
}

TEST_F(TourWindowEditing, WhatAnEditorDoesNotShowOfATextStays)
{
    StyledText written(QStringLiteral("first\r\nsecond\ufdd1third"));
    written.setFont(0, 6, QStringLiteral("Courier"), 18);
    written.setUnderline(7, 6, true);
    const auto tour = tourThrough({500, 510});
    tour->setTourDescription(written);
    auto& shown = open(tour);
    shown.finishEditing();
    EXPECT_EQ(tour->tourDescription(), written) << "nobody has edited it";
    shown.text().moveCursor(QTextCursor::End);
    type(shown, "!");
    shown.finishEditing();
    const auto edited = tour->tourDescription();
    EXPECT_EQ(edited.text(), QStringLiteral("first\nsecond\nthird!"));
    EXPECT_EQ(edited.styleAt(0), written.styleAt(0));
    EXPECT_TRUE(edited.styleAt(6).underline);
    shown.text().selectAll();
    QTest::keyClick(&shown.text(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(tour->tourDescription().styleAt(0).fontName, QStringLiteral("Courier-Bold"));
    EXPECT_EQ(tour->tourDescription().styleAt(0).fontSize, 18);
}

} // namespace
} // namespace ridelog
