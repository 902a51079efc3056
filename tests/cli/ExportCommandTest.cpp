// Tours for other programs without a window, as a shell sees it.

#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"

#include <tuple>

namespace ridelog {
namespace {

class ExportCommand : public CommandLine {
protected:
    static Outcome exportWith(const QString& options, const QStringList& more)
    {
        return run(QStringLiteral("export --now=2007-12-31T12:00 ") + options, more);
    }
    /// Four rides of ten minutes: two in March, one of which begins a week, and one in April and May.
    QString rides() const
    {
        DumpWriter writer;
        for (const auto& [month, day] : {std::pair{3, 10}, {3, 12}, {4, 1}, {5, 1}})
            writer.addTour({.month = month,
                            .day = day,
                            .hour = 8,
                            .samples = std::vector<DumpSample>(29, {.distance = 100})});
        return write("rides.odo", writer.dump());
    }
    QStringList files() const
    {
        return QDir(path("out"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    QString out() const { return path("out"); }
};

TEST_F(ExportCommand, WritesJsonAsItIsPrinted)
{
    const auto dump = rides();
    const auto outcome =
        exportWith(QStringLiteral("--format json --one-file"), {dump, QStringLiteral("-o"), out()});
    EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, "1 file written\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(read("out/rides.json"),
              run(QStringLiteral("inspect --json --series --now=2007-12-31T12:00"), {dump}).out);
    const auto document = path("rides.ridelog");
    ASSERT_EQ(run(QStringLiteral("import --now=2007-12-31T12:00 --into"), {document, dump}).status, 0);
    exportWith(QStringLiteral("--format json --one-file --force"), {document, QStringLiteral("-o"), out()});
    EXPECT_EQ(read("out/rides.json"), run(QStringLiteral("list --json --series"), {document}).out);
}

TEST_F(ExportCommand, WritesTheToursThatAreNamed)
{
    const auto dump = rides();
    const auto namesOf = [&](const QString& options, const QStringList& tours = {}) {
        QDir(out()).removeRecursively();
        const auto outcome = exportWith(QStringLiteral("--format csv -o %1 %2").arg(out(), options),
                                        QStringList(dump) + tours);
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        QStringList days;
        for (const auto& file : files())
            days << file.mid(5, 5);
        return days.join(u' ');
    };
    EXPECT_EQ(namesOf({}), QStringLiteral("03-10 03-12 04-01 05-01"));
    EXPECT_EQ(namesOf({}, {QStringLiteral("3"), QStringLiteral("2007-03-10T08:00"), QStringLiteral("3")}),
              QStringLiteral("03-10 04-01"));
    EXPECT_EQ(namesOf(QStringLiteral("--period month --date 2007-03-31")), QStringLiteral("03-10 03-12"));
    EXPECT_EQ(namesOf(QStringLiteral("--period week --date 2007-03-11 --week-start sunday")),
              QStringLiteral("03-12"));
    EXPECT_EQ(namesOf(QStringLiteral("--period week --date 2007-03-11")), QStringLiteral("03-10"));
    EXPECT_EQ(namesOf(QStringLiteral("--period year --one-file")), QStringLiteral("_2007"))
        << "rides_2007.csv";
}

TEST_F(ExportCommand, RemovedToursAreWrittenOnRequest)
{
    const auto document = path("rides.ridelog");
    ASSERT_EQ(run(QStringLiteral("import --now=2007-12-31T12:00 --into"), {document, rides()}).status, 0);
    ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, QStringLiteral("1")}).status, 0);
    const auto write = [&](const QString& options) {
        return exportWith(QStringLiteral("--format csv -o %1 %2").arg(out(), options), {document});
    };
    EXPECT_EQ(write({}).out, "3 files written\n");
    EXPECT_EQ(write(QStringLiteral("--removed --force")).out, "4 files written\n");
    for (const auto* number : {"1", "1", "1"})
        ASSERT_EQ(run(QStringLiteral("edit --remove"), {document, QString::fromLatin1(number)}).status, 0);
    const auto none = write(QStringLiteral("--force"));
    EXPECT_EQ(none.status, 1);
    EXPECT_TRUE(none.err.endsWith("rides.ridelog: no tours that are not removed (see --removed)\n"))
        << none.err.toStdString();
}

TEST_F(ExportCommand, ReplacesNothingUnlessItIsForcedTo)
{
    const auto dump = rides();
    ASSERT_TRUE(QDir(path()).mkdir(QStringLiteral("out")));
    write("out/2007-03-12_08-00_Bike.csv", "theirs");
    const auto kept = exportWith(QStringLiteral("--format csv -o %1").arg(out()), {dump});
    EXPECT_EQ(kept.status, 3);
    EXPECT_EQ(kept.out, "3 files written\n");
    EXPECT_TRUE(kept.err.endsWith("/out/2007-03-12_08-00_Bike.csv: it is there already\n") &&
                kept.err.count('\n') == 1)
        << kept.err.toStdString();
    EXPECT_EQ(read("out/2007-03-12_08-00_Bike.csv"), "theirs");
    const auto forced = exportWith(QStringLiteral("--force --format csv -o %1").arg(out()), {dump});
    EXPECT_EQ(forced.status, 0);
    EXPECT_EQ(forced.out, "4 files written\n");
    EXPECT_NE(read("out/2007-03-12_08-00_Bike.csv"), "theirs");
}

TEST_F(ExportCommand, WrongWordsAreRefusedInOneLine)
{
    const auto dump = rides();
    const auto to = QStringLiteral(" -o ") + out();
    const std::tuple<QString, QStringList, int, const char*> cases[]{
        {to, {dump}, 2, "--format is missing: one of "},
        {QStringLiteral("--format gpx") + to, {dump}, 2, "--format takes one of "},
        {QStringLiteral("--format csv"), {dump}, 2, "-o is missing: the folder to write into"},
        {QStringLiteral("--format csv --format json") + to, {dump}, 2, "--format stands there twice"},
        {QStringLiteral("--format csv --date 2007-03-10") + to, {dump}, 2, "go with --period"},
        {QStringLiteral("--format csv --period day") + to, {dump}, 2, "--period takes year, month or week"},
        {QStringLiteral("--format csv --period year --date today") + to, {dump}, 2, "--date takes a day"},
        {QStringLiteral("--format csv --period year") + to,
         {dump, QStringLiteral("1")},
         2,
         "do not go together"},
        {QStringLiteral("--format csv") + to,
         {dump, QStringLiteral("first")},
         2,
         "TOUR is a number or a start"},
        {QStringLiteral("--format csv") + to, {dump, QString()}, 2, "TOUR is missing"},
        {QStringLiteral("--format csv") + to, {}, 2, "FILE is missing"},
        {QStringLiteral("--format csv") + to, {dump, QStringLiteral("5")}, 1, "no tour 5: there are 4"},
        {QStringLiteral("--format csv --period year --date 2006-01-01") + to,
         {dump},
         1,
         "rides.odo: no tours in 2006"},
        {QStringLiteral("--format csv") + to, {path("missing")}, 1, "missing: No such file or directory"},
        {QStringLiteral("--format csv -o %1/deeper").arg(dump),
         {dump},
         3,
         "rides.odo/deeper: Not a directory"},
    };
    for (const auto& [options, more, status, reason] : cases) {
        const auto outcome = exportWith(options, more);
        EXPECT_EQ(outcome.status, status) << qPrintable(options);
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.contains(reason) && outcome.err.count('\n') == 1)
            << qPrintable(options) << ": " << outcome.err.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(out())) << "nothing was begun";
}

} // namespace
} // namespace ridelog
