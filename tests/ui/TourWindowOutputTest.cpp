#include "library/FileOfTours.h"
#include "tests/ui/TourWindow.h"
#include "ui/SaveChartPanel.h"
#include "ui/TourPage.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>

namespace ridelog {
namespace {

class TourWindowOutput : public TourWindow {
protected:
    /// Asks for the chart and does this with the panel.
    void saveChart(TourWindowController& shown, const std::function<void(SaveChartPanel&)>& act)
    {
        whenAsked<QFileDialog>([act](QFileDialog& panel) { act(dynamic_cast<SaveChartPanel&>(panel)); });
        inFront(shown);
        QTest::keyClick(&shown, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(eventually([&] { return answers.children().isEmpty(); }));
    }
    static void accept(SaveChartPanel& panel, const QString& path)
    {
        panel.selectFile(path);
        static_cast<QDialog&>(panel).findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
    }
    void saveChartAs(TourWindowController& shown, const char* name)
    {
        saveChart(shown, [this, name](SaveChartPanel& panel) { accept(panel, path(name)); });
    }
};

/// Width and height by the frame header of a JPEG picture, whose segments are walked to the end.
QSize sizeOfJpeg(const QByteArray& bytes)
{
    const auto byte = [&bytes](qsizetype at) { return static_cast<std::uint8_t>(bytes.at(at)); };
    const auto word = [&byte](qsizetype at) { return byte(at) << 8 | byte(at + 1); };
    QSize size;
    if (!bytes.startsWith("\xff\xd8") || !bytes.endsWith("\xff\xd9"))
        return size;
    for (qsizetype at = 2; byte(at) == 0xff && byte(at + 1) != 0xda; at += 2 + word(at + 2)) {
        if (byte(at + 1) == 0xc0 || byte(at + 1) == 0xc2)
            size = QSize(word(at + 7), word(at + 5));
    }
    return size;
}

TEST_F(TourWindowOutput, TheChartIsSavedInTheSizeAskedFor)
{
    auto& shown = open(rides(3, 1).front());
    defaults->setValue(DefaultsKeys::pictureWidth, QStringLiteral("wide"));
    defaults->setValue(DefaultsKeys::pictureHeight, 400);
    saveChart(shown, [&](SaveChartPanel& panel) {
        EXPECT_EQ(panel.chartSaveSize(), shown.chart().size()) << "as it is on the screen";
        panel.chartSaveWidth().setValue(641);
        panel.chartSaveHeight().setValue(333);
        accept(panel, path("chart"));
    });
    EXPECT_EQ(shown.message(), QStringLiteral("The chart was saved as %1.").arg(path("chart.jpeg")));
    EXPECT_EQ(sizeOfJpeg(read("chart.jpeg")), QSize(641, 333));

    saveChart(shown, [&](SaveChartPanel& panel) {
        EXPECT_EQ(panel.chartSaveSize(), shown.chart().size()) << "nobody has ticked the box";
        panel.chartSaveWidth().setValue(800);
        panel.chartSaveHeight().setValue(400);
        panel.setAsDefaultBtn().click();
        panel.selectNameFilter(QStringLiteral("PNG (*.png)"));
        Q_EMIT panel.filterSelected(QStringLiteral("PNG (*.png)"));
        accept(panel, path("chart"));
    });
    EXPECT_EQ(QImage(path("chart.png")).size(), QSize(800, 400));
    EXPECT_EQ(defaults->floatForKey(DefaultsKeys::pictureWidth), 800);
    EXPECT_TRUE(read("settings").contains("pictureHeight")) << "on the disk at once";
    saveChart(shown, [&](SaveChartPanel& panel) {
        EXPECT_EQ(panel.chartSaveSize(), QSize(800, 400));
        accept(panel, path("chart.svg"));
    });
    EXPECT_TRUE(read("chart.svg").contains("viewBox=\"0 0 800 400\""));
}

TEST_F(TourWindowOutput, APictureThatCannotBeSavedSaysWhyAndCostsNothing)
{
    start({dump()});
    auto& shown = openSelected();
    const auto ride = write("ride.png", read("ride.odo"));
    ASSERT_TRUE(QDir().mkdir(path("folder.png")));
    const auto save = [&](const char* name) {
        saveChart(shown, [&](SaveChartPanel& panel) {
            panel.setOption(QFileDialog::DontConfirmOverwrite);
            panel.selectFile(path(name));
            static_cast<QDialog&>(panel).done(QDialog::Accepted);
        });
        return shown.message();
    };
    EXPECT_EQ(save("ride.png"),
              QStringLiteral("ride.png was not saved: it holds tours, which a picture would "
                             "replace."));
    EXPECT_EQ(read("ride.png"), read("ride.odo"));
    EXPECT_TRUE(save("folder.png").startsWith(QStringLiteral("folder.png was not saved: ")));
    EXPECT_TRUE(save("none/a.png").startsWith(QStringLiteral("a.png was not saved: ")));

    write("broken.ridelog", stored(document()).left(500));
    EXPECT_TRUE(holdsTours(path("broken.ridelog")));
    EXPECT_FALSE(holdsTours(path("folder.png")));
    EXPECT_FALSE(holdsTours(write("a.png", "no tours")));
}

TEST_F(TourWindowOutput, PicturesGetTheEndingOfTheirType)
{
    const auto tour = rides(3, 1).front();
    tour->setTitle(QStringLiteral("Mt. Ventoux / St. Gallen"));
    auto& shown = open(tour);
    const auto day = tour->date().toString(QStringLiteral("yyyy-MM-dd "));
    saveChart(shown, [&](SaveChartPanel& panel) {
        panel.setDirectory(path());
        panel.selectNameFilter(QStringLiteral("PNG (*.png)"));
        Q_EMIT panel.filterSelected(QStringLiteral("PNG (*.png)"));
        panel.findChild<QDialogButtonBox*>()->buttons().constFirst()->click();
    });
    EXPECT_TRUE(QFileInfo::exists(path() + u'/' + day + QStringLiteral("Mt. Ventoux St. Gallen.png")));
    saveChart(shown, [&](SaveChartPanel& panel) { accept(panel, path("at 1.5 bar")); });
    EXPECT_TRUE(read("at 1.5 bar.jpeg").startsWith("\xff\xd8"));
}

TEST_F(TourWindowOutput, ATourIsPrintedOnOnePage)
{
    const auto tour = rides(3, 1).front();
    tour->setTitle(QStringLiteral("Over the pass"));
    tour->setTourDescription(QStringLiteral("A long story. ").repeated(400));
    auto& shown = open(tour);
    const auto print = [&](QMainWindow& from, const QString& to) {
        whenAsked<QPrintDialog>([to](QPrintDialog& panel) {
            panel.printer()->setOutputFileName(to);
            panel.done(QDialog::Accepted);
        });
        inFront(from);
        QTest::keyClick(&from, Qt::Key_P, Qt::ControlModifier);
        EXPECT_TRUE(eventually([&] { return answers.children().isEmpty(); }));
    };
    for (auto* from : {static_cast<QMainWindow*>(&shown), static_cast<QMainWindow*>(&window())}) {
        QFile::remove(path("tour.pdf"));
        print(*from, path("tour.pdf"));
        ASSERT_TRUE(eventually([&] { return read("tour.pdf").endsWith("%%EOF\n"); }));
        EXPECT_EQ(read("tour.pdf").count("/Type /Page\n"), 1);
    }

    print(shown, dump());
    EXPECT_EQ(shown.message(),
              QStringLiteral("ride.odo was not printed: it holds tours, which a page would replace."));
    EXPECT_TRUE(holdsTours(path("ride.odo")));
    print(window(), path("nowhere/tour.pdf"));
    EXPECT_TRUE(window().message().startsWith(QStringLiteral("tour.pdf was not printed: ")));
}

TEST_F(TourWindowOutput, ThePageHoldsTitleChartValuesAndDescription)
{
    const auto tour = rides(3, 1).front();
    auto& shown = open(tour);
    const QSize size(595, 842);
    const auto page = [&] {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawTourPage(painter, QRectF(40, 40, 515, 762), *tour, shown.chart(), *defaults);
        return image;
    };
    const auto isDrawn = [](const QImage& image, QRect part) {
        const auto copy = image.copy(part);
        QImage white(copy.size(), copy.format());
        white.fill(Qt::white);
        return copy != white;
    };
    const auto plain = page();
    const QRect upper(0, 0, 595, 600);
    EXPECT_TRUE(isDrawn(plain, upper));
    EXPECT_FALSE(isDrawn(plain, QRect(0, 600, 595, 242)));
    for (const auto& margin : {QRect(0, 0, 595, 40), QRect(0, 0, 38, 842), QRect(557, 0, 38, 842)})
        EXPECT_FALSE(isDrawn(plain, margin)) << margin.x();

    tour->setTourDescription(QStringLiteral("A long story. ").repeated(3000));
    const auto told = page();
    EXPECT_EQ(told.copy(upper.adjusted(0, 0, 0, -100)), plain.copy(upper.adjusted(0, 0, 0, -100)));
    EXPECT_TRUE(isDrawn(told, QRect(0, 700, 595, 100)));
    EXPECT_FALSE(isDrawn(told, QRect(0, 803, 595, 39))) << "what does not fit is cut off";
    tour->setTitle(QStringLiteral("Over the pass"));
    EXPECT_NE(page(), told);
}

} // namespace
} // namespace ridelog
