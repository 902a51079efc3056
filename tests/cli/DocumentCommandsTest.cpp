// Looking at the tours of documents and dumps without a window, as a shell sees it.

#include "platform/CalendarDate.h"
#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"
#include "tests/support/Samples.h"

#include <QDir>

#include <algorithm>

namespace ridelog {
namespace {

class DocumentCommands : public CommandLine {
protected:
    /// As if it were the end of the year in which the samples were recorded.
    static Outcome atYearsEnd(const QString& command, const QStringList& more)
    {
        return run(command, more + QStringList{QStringLiteral("--now=2007-12-31T23:59")});
    }
    static QJsonArray toursOf(const QString& command, const QString& file)
    {
        const auto outcome = atYearsEnd(command + QStringLiteral(" --json"), {file});
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        return outcome.json()[u"tours"].toArray();
    }
    static QStringList datesOf(const QJsonArray& tours)
    {
        QStringList dates;
        for (const auto& tour : tours)
            dates << tour[u"date"].toString();
        return dates;
    }
    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
};

TEST_F(DocumentCommands, DocumentsOfOlderVersionsShowWhatTheyHold)
{
    SKIP_WITHOUT_SAMPLES();
    const QDir folder(samplePath(QStringLiteral("documents")));
    const auto documents = folder.entryList({QStringLiteral("*.ridelog")});
    EXPECT_EQ(documents.size(), 8);
    for (const auto& name : documents) {
        const auto file = folder.filePath(name);
        const auto expected =
            QJsonDocument::fromJson(contents(folder.filePath(name.chopped(8) + QStringLiteral(".json"))));
        const auto json = atYearsEnd(QStringLiteral("inspect --json --raw"), {file}).json();
        EXPECT_EQ(json[u"generalData"], expected[u"generalData"]);
        const auto tours = json[u"tours"].toArray();
        ASSERT_EQ(tours.size(), expected[u"tours"].toArray().size()) << qPrintable(name);
        for (int i = 0; i < tours.size(); ++i) {
            const auto tour = tours[i].toObject();
            const auto stored = expected[u"tours"][i].toObject();
            const auto records = tour[u"tourData"].toArray();
            EXPECT_EQ(tour[u"tourDataDict"], stored[u"tourDataDict"]) << qPrintable(name) << i;
            EXPECT_EQ(tour[u"samples"], stored[u"samples"]);
            EXPECT_EQ(records.first(), stored[u"first record"]) << qPrintable(name) << i;
            EXPECT_EQ(records.last(), stored[u"last record"]);
            for (const auto& key : {QStringLiteral("title"), QStringLiteral("description")})
                EXPECT_EQ(tour[key].toString(), stored[key].toString(QStringLiteral("n/a")));
            EXPECT_EQ(tour[u"removed"].toBool(), stored[u"removed"].toBool());
            if (const auto date = stored[u"date"].toObject(); !date.isEmpty()) {
                const qint64 startOf2001 = 978'307'200;
                const auto start = QDateTime::fromSecsSinceEpoch(startOf2001 + date[u"seconds"].toInteger(),
                                                                 QTimeZone("Europe/Berlin"));
                EXPECT_EQ(tour[u"date"].toString(), CalendarDate::text(start));
            }
        }
    }
}

TEST_F(DocumentCommands, ADumpIsReadLikeADocument)
{
    const auto dump = write("rides.odo", RideGenerator{.tours = 3}.dump());
    const auto inspected = toursOf(QStringLiteral("inspect"), dump);
    auto newestFirst = datesOf(inspected);
    std::ranges::reverse(newestFirst);
    EXPECT_EQ(datesOf(toursOf(QStringLiteral("list"), dump)), newestFirst);
    EXPECT_EQ(atYearsEnd(QStringLiteral("show --json"), {dump, QStringLiteral("1")}).json(),
              inspected[0].toObject());
}

TEST_F(DocumentCommands, AValueThatATourDoesNotHaveIsNotShown)
{
    DumpWriter writer;
    writer.addTour({.month = 3, .day = 10});
    const auto shown =
        atYearsEnd(QStringLiteral("show"), {write("empty.odo", writer.dump()), QStringLiteral("1")}).out;
    EXPECT_TRUE(shown.contains("Samples   0\n") && shown.contains("Distance ")) << shown.toStdString();
    EXPECT_EQ(shown.count("temperature "), 3);
    EXPECT_EQ(shown.count("–\n"), 3) << shown.toStdString();
}

} // namespace
} // namespace ridelog
