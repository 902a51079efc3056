// Which files an export makes, and what becomes of them when something goes wrong.

#include "exchange/JsonFormat.h"
#include "exchange/SamplesCsvFormat.h"
#include "exchange/SummaryCsvFormat.h"
#include "tests/exchange/Formats.h"
#include "tests/support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

namespace ridelog {
namespace {

using Layout = TourExport::Layout;
using Existing = TourExport::Existing;

std::shared_ptr<OdoTour> tourAt(const QDateTime& start, const std::optional<QString>& type)
{
    auto dictionary = startValues();
    dictionary.type = type;
    auto tour = OdoTour::initWithOdoDataTourDict(dictionary, start);
    tour->setDate(start);
    return tour;
}

bool goesOn(std::size_t)
{
    return true;
}

class TourExportTest : public testing::Test, protected TemporaryFolder {
protected:
    QStringList filesOf(const ExportFormat& format, const ExportSource& source, const Tours& tours,
                        Layout layout = Layout::filePerTour) const
    {
        QStringList names;
        const TourExport laidOut(format, source, tours, path(), layout);
        for (const auto& file : laidOut.files())
            names << QDir(path()).relativeFilePath(file.path);
        return names;
    }

    const Tours _tours{tourAt(berlin(2007, 3, 10, 8), QStringLiteral("Bike")),
                       tourAt(berlin(2007, 3, 11, 9, 30), QStringLiteral("Ski-Bike")),
                       tourAt(berlin(2007, 3, 12, 10), std::nullopt)};
};

TEST_F(TourExportTest, AFileOfATourIsCalledAfterItsStartAndType)
{
    const auto at = berlin(2007, 3, 10, 8);
    EXPECT_EQ(filesOf(SamplesCsvFormat(), {}, _tours),
              QStringList({QStringLiteral("2007-03-10_08-00_Bike.csv"),
                           QStringLiteral("2007-03-11_09-30_Ski-Bike.csv"),
                           QStringLiteral("2007-03-12_10-00.csv")}));
    const Tours alike{tourAt(at, QStringLiteral("Bike")),   tourAt(at, QStringLiteral("BIKE")),
                      tourAt(at, QStringLiteral("Bike_2")), tourAt(at, QStringLiteral("Bike")),
                      tourAt(at, QStringLiteral("..")),     tourAt(at, QStringLiteral("a/b"))};
    EXPECT_EQ(
        filesOf(JsonFormat(), {}, alike),
        QStringList(
            {QStringLiteral("2007-03-10_08-00_Bike.json"), QStringLiteral("2007-03-10_08-00_BIKE_2.json"),
             QStringLiteral("2007-03-10_08-00_Bike_2_2.json"), QStringLiteral("2007-03-10_08-00_Bike_3.json"),
             QStringLiteral("2007-03-10_08-00.json"), QStringLiteral("2007-03-10_08-00_a-b.json")}));
}

TEST_F(TourExportTest, AFileOfAllToursIsCalledAfterWhereTheyComeFrom)
{
    const QDate day(2007, 3, 12);
    const auto one = Layout::oneFile;
    const auto nameOf = [&](const ExportSource& source) {
        return filesOf(SamplesCsvFormat(), source, _tours, one).join(u' ');
    };
    EXPECT_EQ(nameOf({.name = QStringLiteral("My tours")}), QStringLiteral("My tours.csv"));
    EXPECT_EQ(nameOf({.name = QStringLiteral("..")}), QStringLiteral("Tours.csv"));
    const auto ofPeriod = [&](Period period) {
        return nameOf({.name = QStringLiteral("T"), .period = ChosenPeriod{period, day, {Qt::Monday}}});
    };
    EXPECT_EQ(ofPeriod(Period::all), QStringLiteral("T.csv"));
    EXPECT_EQ(ofPeriod(Period::year), QStringLiteral("T_2007.csv"));
    EXPECT_EQ(ofPeriod(Period::month), QStringLiteral("T_2007-03.csv"));
    EXPECT_EQ(ofPeriod(Period::week), QStringLiteral("T_2007-W11.csv"));
    EXPECT_EQ(filesOf(SummaryCsvFormat(), {.name = QStringLiteral("T")}, _tours),
              QStringList(QStringLiteral("T-summary.csv")))
        << "whatever is asked for";
    EXPECT_EQ(filesOf(SummaryCsvFormat(), {}, {}), QStringList());
}

TEST_F(TourExportTest, JsonIsThatOfAListWithSeries)
{
    ExportSource source{.generalData = {{QStringLiteral("Weight"), 75}}, .numbers = numbersOf(_tours)};
    const auto bytes = exported(JsonFormat(), {_tours[2], _tours[0]}, source);
    const auto json = QJsonDocument::fromJson(bytes).object();
    EXPECT_EQ(json[u"generalData"][u"Weight"], 75);
    EXPECT_EQ(json[u"tours"].toArray().size(), 2);
    EXPECT_EQ(json[u"tours"][0][u"number"], 3);
    EXPECT_EQ(json[u"tours"][1][u"series"].toArray().size(), 1);
}

TEST_F(TourExportTest, FilesThatAreThereAreReplacedOnlyIfThatIsWanted)
{
    const auto theirs = write("2007-03-11_09-30_Ski-Bike.csv", "theirs");
    ASSERT_EQ(::symlink("nowhere", qPrintable(path("2007-03-12_10-00.csv"))), 0);
    const SamplesCsvFormat format;
    const TourExport asked(format, {}, _tours, path(), Layout::filePerTour);
    EXPECT_EQ(asked.existingFiles().size(), 2U);

    auto outcome = asked.write(Existing::keep, goesOn);
    EXPECT_EQ(outcome.written, 1U);
    ASSERT_EQ(outcome.failures.size(), 2U);
    EXPECT_EQ(outcome.failures[0].path, theirs);
    EXPECT_EQ(outcome.failures[0].reason, QStringLiteral("it is there already"));
    EXPECT_EQ(read("2007-03-11_09-30_Ski-Bike.csv"), "theirs");

    // One that has come since nobody was asked about.
    write("2007-03-10_08-00_Bike.csv", "came late");
    outcome = asked.write(Existing::replace, goesOn);
    EXPECT_EQ(outcome.written, 1U);
    ASSERT_EQ(outcome.failures.size(), 2U);
    EXPECT_EQ(outcome.failures[0].reason, QStringLiteral("it is there already"));
    EXPECT_EQ(outcome.failures[1].reason, QStringLiteral("it is a link that leads nowhere"));
    EXPECT_EQ(read("2007-03-10_08-00_Bike.csv"), "came late");
    EXPECT_TRUE(read("2007-03-11_09-30_Ski-Bike.csv").startsWith("tourStart,"));
}

TEST_F(TourExportTest, AFileThatCannotBeWrittenKeepsNoOtherFromIt)
{
    ASSERT_TRUE(QDir(path()).mkdir(QStringLiteral("2007-03-10_08-00_Bike.csv")));
    const SamplesCsvFormat format;
    const TourExport toHere(format, {}, _tours, path(), Layout::filePerTour);
    std::vector<std::size_t> told;
    const auto outcome = toHere.write(Existing::replace, [&told](std::size_t tours) {
        told.push_back(tours);
        return true;
    });
    EXPECT_EQ(outcome.written, 2U);
    EXPECT_FALSE(outcome.wasStopped);
    ASSERT_EQ(outcome.failures.size(), 1U);
    EXPECT_EQ(outcome.failures[0].reason, QStringLiteral("it is a folder"));
    EXPECT_EQ(told, (std::vector<std::size_t>{1, 2, 3}));

    const auto file = write("file", "no folder");
    const auto nowhere = TourExport(format, {}, _tours, file + QStringLiteral("/deeper"), Layout::filePerTour)
                             .write(Existing::keep, goesOn);
    ASSERT_EQ(nowhere.failures.size(), 1U);
    EXPECT_EQ(nowhere.failures[0].reason, QStringLiteral("Not a directory"));
    EXPECT_EQ(nowhere.written, 0U);
    const TourExport made(format, {}, _tours, path("new/folder"), Layout::filePerTour);
    EXPECT_EQ(made.write(Existing::keep, goesOn).written, 3U);
}

TEST_F(TourExportTest, WhoeverStopsItKeepsWholeFilesOnly)
{
    const SamplesCsvFormat format;
    for (const auto layout : {Layout::filePerTour, Layout::oneFile}) {
        const TemporaryFolder folder;
        const TourExport toThere(format, {.name = QStringLiteral("all")}, _tours, folder.path(), layout);
        const auto outcome = toThere.write(Existing::keep, [](std::size_t tours) { return tours < 2; });
        EXPECT_TRUE(outcome.wasStopped);
        EXPECT_TRUE(outcome.failures.empty());
        EXPECT_EQ(outcome.written, layout == Layout::filePerTour ? 1U : 0U);
        EXPECT_EQ(folder.names().size(), static_cast<qsizetype>(outcome.written));
    }
}

} // namespace
} // namespace ridelog
