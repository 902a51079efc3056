// Keeping tours in a document without a window: import, list, show, edit, as a shell sees them.

#include "platform/CalendarDate.h"
#include "platform/DocumentFile.h"
#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"
#include "tests/support/Samples.h"

#include <QDir>

#include <algorithm>
#include <map>
#include <unistd.h>

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
    /// A document with made-up rides; the first of them is the oldest.
    QString library(int tours = 5) const
    {
        const auto dump = write("rides.odo", RideGenerator{.tours = tours}.dump());
        auto document = path("library.ridelog");
        const auto import = atYearsEnd(QStringLiteral("import --into"), {document, dump});
        EXPECT_EQ(import.status, 0) << import.err.toStdString();
        return document;
    }
};

QJsonObject without(QJsonObject object, const QStringList& keys)
{
    for (const auto& key : keys)
        object.remove(key);
    return object;
}

TEST_F(DocumentCommands, SixDumpsInAnyOrderMakeOneLibrary)
{
    SKIP_WITHOUT_SAMPLES();
    const auto wholeYear = samplePath(QStringLiteral("dumps/whole-year.odo"));
    for (const char* order :
         {"autumn spring summer whole-year winter wrapped", "winter wrapped spring summer autumn whole-year",
          "wrapped whole-year winter summer spring autumn"}) {
        QStringList dumps;
        for (const auto& name : QString::fromLatin1(order).split(u' '))
            dumps << samplePath(QStringLiteral("dumps/%1.odo").arg(name));
        const auto document = path(order);
        const QStringList words = QStringList{document, QStringLiteral("--json")} + dumps;

        const auto first = atYearsEnd(QStringLiteral("import --into"), words).json();
        EXPECT_EQ(first[u"document"].toString(), document);
        EXPECT_EQ(first[u"added"], 24);
        EXPECT_EQ(first[u"alreadyThere"], 31);
        EXPECT_EQ(first[u"tours"], 24);
        EXPECT_EQ(first[u"dumps"].toArray().size(), 6);
        EXPECT_EQ(first[u"dumps"][0][u"dump"].toString(), dumps.first());
        const auto saved = contents(document);
        const auto again = atYearsEnd(QStringLiteral("import --into"), words).json();
        EXPECT_EQ(again[u"added"], 0);
        EXPECT_EQ(again[u"alreadyThere"], 55);
        EXPECT_EQ(again[u"tours"], 24);
        EXPECT_EQ(contents(document), saved);
        EXPECT_FALSE(QFile::exists(document + u'~')) << "nothing to save, so no backup either";

        std::map<QString, QJsonObject> inDumps; // the dump that came first has won
        for (const auto& dump : dumps) {
            for (const auto& tour : toursOf(QStringLiteral("inspect --series --raw"), dump))
                inDumps.emplace(tour[u"date"].toString(), tour.toObject());
        }
        // Read back from a document, the stitched tour is as whole as in a memory that did not wrap.
        const auto stitched = QStringLiteral("2007-12-20 11:21:00 +0100");
        const auto whole = toursOf(QStringLiteral("inspect --series --raw"), wholeYear).last().toObject();
        ASSERT_EQ(whole[u"date"].toString(), stitched);

        const auto listed = toursOf(QStringLiteral("list --series --raw"), document);
        ASSERT_EQ(listed.size(), 24);
        auto expectedDates = datesOf(listed);
        std::ranges::sort(expectedDates, std::ranges::greater());
        EXPECT_EQ(datesOf(listed), expectedDates);
        int number = 0;
        for (const auto& value : listed) {
            const auto tour = value.toObject();
            const auto date = tour[u"date"].toString();
            EXPECT_EQ(tour[u"number"], ++number);
            const auto& expected = date == stitched ? whole : inDumps[date];
            QStringList own{QStringLiteral("number")};
            if (date == stitched) // lies elsewhere in another memory
                own << QStringLiteral("tourDataDict");
            EXPECT_TRUE(without(tour, own) == without(expected, own)) << order << ": " << qPrintable(date);
        }
    }
}

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

TEST_F(DocumentCommands, ImportSaysWhatItDid)
{
    const auto one = write("one.odo", RideGenerator{.seed = 7, .tours = 1}.dump());
    const auto two = write("two.odo", RideGenerator{.seed = 8, .tours = 2}.dump());
    const auto document = path("new.ridelog");
    const auto single = atYearsEnd(QStringLiteral("import --into"), {document, one});
    EXPECT_EQ(single.out, (one + QStringLiteral(": 1 tour added, 0 already there\n")).toUtf8());
    const auto several = atYearsEnd(QStringLiteral("import --log trace --into"), {document, two, one});
    EXPECT_EQ(several.out, QStringLiteral("%1: 2 tours added, 0 already there\n"
                                          "%2: 0 tours added, 1 already there\n"
                                          "2 dumps: 2 tours added, 1 already there\n")
                               .arg(two, one)
                               .toUtf8());
    EXPECT_TRUE(several.err.contains("\n2 tours added\n") && several.err.contains("setGeneralData\n"));
    EXPECT_TRUE(QFile::exists(document + u'~'));
}

TEST_F(DocumentCommands, EditsAreSeenWhereverTheTourIsShown)
{
    const auto document = library();
    const auto before = toursOf(QStringLiteral("list"), document);
    const QString title(60, u'x');
    const auto edit =
        run(QStringLiteral("edit"), {document, QStringLiteral("2"), QStringLiteral("--title"), title,
                                     QStringLiteral("--description=first\nand\x1b[31m second")});
    EXPECT_EQ(edit.status, 0) << edit.err.toStdString();
    const auto after = toursOf(QStringLiteral("list"), document);
    EXPECT_EQ(after[1][u"title"].toString(), title);
    EXPECT_EQ(after[1][u"description"].toString(), QStringLiteral("first\nand\x1b[31m second"));
    const QStringList edited{QStringLiteral("title"), QStringLiteral("description")};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(without(after[i].toObject(), edited), without(before[i].toObject(), edited));

    EXPECT_EQ(run(QStringLiteral("show --json"), {document, QStringLiteral("2")}).json(),
              after[1].toObject());
    const auto shown = run(QStringLiteral("show --miles"), {document, QStringLiteral("2")}).out;
    EXPECT_TRUE(shown.contains(title.toUtf8()) && shown.contains(" mph\n") && shown.contains(" ft\n"));
    EXPECT_TRUE(shown.endsWith("Description\n\n  first\n  and\\x1b[31m second\n")) << shown.toStdString();
    const auto list = run(QStringLiteral("list"), {document}).out;
    EXPECT_TRUE(list.contains(QString(39, u'x').toUtf8() + "…\n")) << list.toStdString();

    const auto saved = contents(document);
    const auto same =
        run(QStringLiteral("edit"), {document, QStringLiteral("2"), QStringLiteral("--title"), title});
    EXPECT_TRUE(same.status == 0 && same.out.endsWith(": nothing to change\n")) << same.out.toStdString();
    EXPECT_EQ(contents(document), saved);
    EXPECT_EQ(
        run(QStringLiteral("edit"), {document, QStringLiteral("2"), QStringLiteral("--title=a\nb")}).status,
        2);
}

TEST_F(DocumentCommands, RemovedToursAreCountedOnlyWhereTheyAreListed)
{
    const auto document = library();
    const auto dates = datesOf(toursOf(QStringLiteral("list"), document));
    const auto asWord = [](const QString& date) { return date.left(16).replace(u' ', u'T'); };
    const auto dateShown = [&](const char* options, const QString& tour) {
        return run(QStringLiteral("show --json ") + QString::fromLatin1(options), {document, tour})
            .json()[u"date"]
            .toString();
    };
    const auto two = QStringLiteral("2");
    ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, two}).status, 0);

    auto left = dates;
    left.removeAt(1);
    EXPECT_EQ(datesOf(toursOf(QStringLiteral("list"), document)), left);
    EXPECT_EQ(datesOf(toursOf(QStringLiteral("list --removed"), document)), dates);
    EXPECT_TRUE(toursOf(QStringLiteral("list --removed"), document)[1][u"removed"].toBool());
    EXPECT_TRUE(run(QStringLiteral("list"), {document}).out.contains("1 removed tour left out"));
    EXPECT_EQ(run(QStringLiteral("list --removed"), {document}).out.count("  removed\n"), 1);
    // In the document's own order, which here is that of the dump.
    EXPECT_EQ(datesOf(toursOf(QStringLiteral("inspect"), document)),
              datesOf(toursOf(QStringLiteral("inspect"), path("rides.odo"))));

    EXPECT_EQ(dateShown("", two), dates[2]);
    EXPECT_EQ(dateShown("--removed", two), dates[1]);
    EXPECT_EQ(dateShown("", asWord(dates[1])), dates[1]) << "by its start a removed tour is found as well";
    const auto beyond = run(QStringLiteral("show"), {document, QStringLiteral("5")});
    EXPECT_EQ(beyond.status, 1);
    EXPECT_TRUE(beyond.err.endsWith("library.ridelog: no tour 5: there are 4, and 1 removed\n"));

    ASSERT_EQ(run(QStringLiteral("edit --restore"), {document, two}).status, 0);
    EXPECT_EQ(datesOf(toursOf(QStringLiteral("list"), document)), dates);
    ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, asWord(dates[4])}).status, 0);
    EXPECT_EQ(toursOf(QStringLiteral("list"), document).size(), 4);
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

TEST_F(DocumentCommands, ToursThatStartTogetherAreToldApartByNumber)
{
    DumpWriter writer;
    for (const double distance : {100.0, 200.0})
        writer.addTour({.month = 3, .day = 10, .hour = 8, .samples = {{.distance = distance}}});
    const auto document = path("library.ridelog");
    ASSERT_EQ(atYearsEnd(QStringLiteral("import --into"), {document, write("two.odo", writer.dump())}).status,
              0);
    const QStringList start{document, QStringLiteral("2007-03-10T08:00")};
    const auto refusal = [&] { return run(QStringLiteral("edit --remove"), start).err; };
    EXPECT_TRUE(refusal().endsWith(": 2 tours start at 2007-03-10T08:00: numbers 1, 2\n"))
        << refusal().toStdString();
    ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, QStringLiteral("1")}).status, 0);
    EXPECT_TRUE(refusal().endsWith(": numbers 1, 2 with --removed\n")) << refusal().toStdString();
}

TEST_F(DocumentCommands, WhatIsRefusedIsNamedAndNothingChanges)
{
    const auto document = library();
    const auto dump = path("rides.odo");
    const auto garbage = write("garbage", QByteArray(4096, 'F'));
    const auto cut = write("cut.ridelog", contents(document).left(1000));
    const auto newOne = path("new.ridelog");
    const auto files = QDir(path(".")).entryList(QDir::Files | QDir::Hidden);
    const auto saved = contents(document);

    const auto edit = QStringLiteral("edit --remove");
    const auto import = QStringLiteral("import --into");
    const auto one = QStringLiteral("1");
    struct Case {
        QString command;
        QStringList words;
        QString file;
        const char* reason;
    };
    const Case cases[]{
        {QStringLiteral("list"), {path("missing")}, path("missing"), "No such file or directory"},
        {QStringLiteral("list"), {path(".")}, path("."), "it is a folder"},
        {QStringLiteral("list"), {garbage}, garbage, "not a raw dump: 4,096 bytes"},
        {QStringLiteral("show"), {cut, one}, cut, "not a readable document: "},
        {QStringLiteral("show"), {document, QStringLiteral("6")}, document, "no tour 6: there are 5\n"},
        {QStringLiteral("show"),
         {document, QStringLiteral("2001-01-01T00:00")},
         document,
         "no tour starts at 2001-01-01T00:00\n"},
        {edit, {document, QStringLiteral("99999999999")}, document, "no tour 99999999999: there are 5\n"},
        {edit, {path("missing"), one}, path("missing"), "No such file or directory"},
        {edit, {dump, one}, dump, "a raw dump, not a document\n"},
        {edit, {garbage, one}, garbage, "not a readable document: "},
        {import, {dump, dump}, dump, "a raw dump, not a document\n"},
        {import, {cut, dump}, cut, "not a readable document: "},
        {import, {document, document}, document, "a document, not a raw dump\n"},
        {import,
         {document, write("other.odo", RideGenerator{.seed = 9}.dump()), garbage},
         garbage,
         "not a raw dump: "},
        {import, {newOne, dump, path("missing")}, path("missing"), "No such file or directory"},
    };
    for (const auto& [command, words, file, reason] : cases) {
        const auto outcome = run(command, words);
        const auto expected = QStringLiteral("ridelog-cli: %1: %2").arg(file, QString::fromLatin1(reason));
        EXPECT_EQ(outcome.status, 1) << expected.toStdString();
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.startsWith(expected.toUtf8())) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1);
    }
    EXPECT_EQ(contents(document), saved);
    EXPECT_TRUE(run(QStringLiteral("show"), {cut, one}).err.contains(" left at byte "));
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files | QDir::Hidden).size(), files.size() + 1)
        << "other.odo alone";
}

TEST_F(DocumentCommands, WhatCannotBeSavedIsAFailureOfTheMachine)
{
    const auto document = library();
    const auto saved = contents(document);
    const auto one = QStringLiteral("1");
    {
        DocumentFile elsewhere(document);
        ASSERT_FALSE(elsewhere.lock());
        for (const auto& change : {run(QStringLiteral("edit --remove"), {document, one}),
                                   run(QStringLiteral("import --into"), {document, path("rides.odo")})}) {
            EXPECT_EQ(change.status, 3);
            EXPECT_TRUE(change.err.contains("library.ridelog: test-cli has it open"))
                << change.err.toStdString();
        }
        for (const char* reading : {"list", "inspect"})
            EXPECT_EQ(run(QString::fromLatin1(reading), {document}).status, 0);
        EXPECT_EQ(run(QStringLiteral("show"), {document, one}).status, 0);
    }
    EXPECT_EQ(run(QStringLiteral("import --into"), {path("no/folder.ridelog"), path("rides.odo")}).status, 3);
    EXPECT_EQ(contents(document), saved);
}

TEST_F(DocumentCommands, AFolderThatIsNotToBeWrittenIsLeftAlone)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write into any folder";
    const auto document = library();
    const auto saved = contents(document);
    QFile folder(path("."));
    const auto permissions = folder.permissions();
    ASSERT_TRUE(folder.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    const auto edit = run(QStringLiteral("edit --remove"), {document, QStringLiteral("1")});
    EXPECT_EQ(edit.status, 3);
    EXPECT_TRUE(edit.err.contains("Permission denied")) << edit.err.toStdString();
    EXPECT_EQ(run(QStringLiteral("list"), {document}).status, 0);
    EXPECT_EQ(contents(document), saved);
    folder.setPermissions(permissions);
}

} // namespace
} // namespace ridelog
