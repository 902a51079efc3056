// What is installed beside the programs tells all their words: manual pages, and the completion of the
// shells.

#include "tests/cli/CommandLine.h"

#include <QRegularExpression>
#include <QSet>

namespace ridelog {
namespace {

using Words = QSet<QString>;

QString resource(const char* name)
{
    QFile file(QStringLiteral(RIDELOG_SOURCE "/resources/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

/// What the first group of the pattern is, wherever it matches.
Words found(const QString& pattern, const QString& text)
{
    Words words;
    const QRegularExpression form(pattern, QRegularExpression::MultilineOption);
    for (auto match = form.globalMatch(text); match.hasNext();)
        words << match.next().captured(1);
    return words;
}

std::string listed(const Words& words)
{
    auto list = words.values();
    list.sort();
    return list.join(u' ').toStdString();
}

class InstalledWords : public CommandLine {
protected:
    static QString helpOf(const QString& command)
    {
        return QString::fromUtf8(run(command + QStringLiteral(" --help")).out);
    }
    static Words commands() { return found(QStringLiteral("^  ([a-z][a-z-]+) +[A-Z]"), helpOf({})); }
    /// As its help prints them; -o has a long name as well.
    static Words optionsOf(const QString& command)
    {
        auto options = found(QStringLiteral("^  (--?[a-z-]+)"), helpOf(command));
        if (options.contains(QStringLiteral("-o")))
            options << QStringLiteral("--output");
        return options;
    }
    static Words optionsOfEveryCommand()
    {
        return {QStringLiteral("--miles"), QStringLiteral("--now"), QStringLiteral("--log"),
                QStringLiteral("--help")};
    }

    /// What bash offers for the last of these words, in the folder of the test.
    Words completed(const QStringList& words) const
    {
        QProcess bash;
        bash.setWorkingDirectory(path());
        bash.start(QStringLiteral("bash"),
                   QStringList{QStringLiteral("--norc"), QStringLiteral("-c"),
                               QStringLiteral("source \"$1\"; shift; COMP_WORDS=(\"$@\"); "
                                              "COMP_CWORD=$(($# - 1)); _ridelog_cli; "
                                              "printf '%s\\n' \"${COMPREPLY[@]}\""),
                               QStringLiteral("bash"),
                               QStringLiteral(RIDELOG_SOURCE "/resources/completions/ridelog-cli.bash"),
                               QStringLiteral(RIDELOG_CLI)} +
                       words);
        EXPECT_TRUE(bash.waitForFinished());
        EXPECT_EQ(bash.readAllStandardError(), "");
        const auto lines = QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        return {lines.begin(), lines.end()};
    }
    Words completed(const char* words) const { return completed(QString::fromUtf8(words).split(u' ')); }
};

TEST_F(InstalledWords, StandInTheManualPage)
{
    auto page = resource("man/ridelog-cli.1.in");
    // As they are read, without marks of fonts.
    page.replace(QStringLiteral("\\-"), QStringLiteral("-"));
    page.remove(QRegularExpression(QStringLiteral("\\\\f[RBI]|\"")));
    const auto optionsIn = [](const QString& text) {
        auto options = found(QStringLiteral("^\\.BI? (--?[a-z-]+)"), text);
        return options | found(QStringLiteral("^\\.BI? -o, (--[a-z-]+)"), text) |
               found(QStringLiteral("^\\.BR -h ,  (--help)"), text);
    };
    EXPECT_EQ(listed(found(QStringLiteral("^\\.SS ([a-z-]+)"), page)), listed(commands()));
    const auto everywhere = optionsOfEveryCommand() | Words{QStringLiteral("--version")};
    for (const auto& option : everywhere)
        EXPECT_TRUE(optionsIn(page.section(QStringLiteral(".SH COMMANDS"), 0, 0)).contains(option))
            << option.toStdString();
    const auto all = commands();
    for (const auto& command : all) {
        const QRegularExpression section(QStringLiteral("^\\.SS %1\\b(?!-)(.*?)^\\.S").arg(command),
                                         QRegularExpression::MultilineOption |
                                             QRegularExpression::DotMatchesEverythingOption);
        const auto own = optionsOf(command) - optionsOfEveryCommand();
        EXPECT_EQ(listed(optionsIn(section.match(page).captured(1))), listed(own)) << command.toStdString();
        // The line of its name says how it is called.
        const auto usage =
            helpOf(command).section(u'\n', 0, 0).mid(QStringLiteral("Usage: ridelog-cli ").size());
        EXPECT_TRUE(page.contains(QStringLiteral(".SS ") + usage + u'\n')) << usage.toStdString();
    }
}

TEST_F(InstalledWords, AreOfferedByBash)
{
    EXPECT_EQ(listed(completed("")),
              listed(commands() + Words{QStringLiteral("--help"), QStringLiteral("--version")}));
    const auto all = commands();
    for (const auto& command : all)
        EXPECT_EQ(listed(completed({command, QStringLiteral("-")})), listed(optionsOf(command)));
    EXPECT_EQ(listed(completed("export --form")), "--format");
}

TEST_F(InstalledWords, AreKnownToZshAndFish)
{
    const auto zsh = resource("completions/ridelog-cli.zsh");
    const auto fish = resource("completions/ridelog-cli.fish");
    EXPECT_EQ(listed(found(QStringLiteral("^        '([a-z-]+):"), zsh)), listed(commands()));
    EXPECT_EQ(listed(found(QStringLiteral("\\$first -a ([a-z-]+)"), fish)), listed(commands()));
    const auto all = commands();
    for (const auto& command : all) {
        const auto section = zsh.section(QStringLiteral("\n        %1)\n").arg(command), 1, 1)
                                 .section(QStringLiteral(";;"), 0, 0);
        EXPECT_EQ(listed(found(QStringLiteral("'(--?[a-z-]+)\\["), section) |
                         found(QStringLiteral("\\{(-o),"), section) |
                         found(QStringLiteral(",(--output)\\}"), section)),
                  listed(optionsOf(command) - optionsOfEveryCommand()));
        Words known;
        for (const auto& line : fish.split(u'\n')) {
            if (!found(QStringLiteral("__ridelog_cli_is ([a-z -]+)'"), line).isEmpty() &&
                found(QStringLiteral("__ridelog_cli_is ([a-z -]+)'"), line)
                    .values()[0]
                    .split(u' ')
                    .contains(command)) {
                for (const auto& word : found(QStringLiteral(" -l ([a-z-]+)"), line))
                    known << QStringLiteral("--") + word;
                for (const auto& word : found(QStringLiteral(" -s ([a-z])"), line))
                    known << QStringLiteral("-") + word;
            }
        }
        EXPECT_EQ(listed(known), listed(optionsOf(command))) << command.toStdString();
    }
}

TEST_F(InstalledWords, ValuesOfClosedSetsAreOffered)
{
    EXPECT_EQ(listed(completed("export t.ridelog --format ")),
              listed(found(QStringLiteral("(?:FORM +|; )([a-z-]+): "), helpOf(QStringLiteral("export")))));
    EXPECT_EQ(
        listed(completed("simulate --fault ")),
        listed(found(QStringLiteral("(?:with it: |\\), )([a-z]+) \\("), helpOf(QStringLiteral("simulate")))));
    EXPECT_EQ(listed(completed("export --period ")), "month week year");
    EXPECT_EQ(listed(completed("stats --week-start = m")), "monday");
    EXPECT_EQ(listed(completed("list --log ")), "errors none trace");
    EXPECT_EQ(listed(completed("chart t.ridelog 1 -x ")), "distance time");
    EXPECT_EQ(listed(completed("chart t.ridelog 1 -y altitude,sp")), "altitude,speed");
    // Any text may follow: nothing is offered, files least of all.
    write("t.ridelog", {});
    EXPECT_EQ(listed(completed("edit t.ridelog 1 --title ")), "");
}

TEST_F(InstalledWords, FilesAreOfferedByTheirEndings)
{
    write("my rides.ridelog", {});
    write("spring.odo", {});
    write("chart.png", {});
    QDir(path()).mkdir(QStringLiteral("folder"));
    EXPECT_EQ(listed(completed("import ")), "folder spring.odo");
    EXPECT_EQ(listed(completed("import spring.odo --into ")), "folder my rides.ridelog");
    EXPECT_EQ(listed(completed("inspect ")), "folder my rides.ridelog spring.odo");
    EXPECT_EQ(listed(completed("chart t.ridelog 1 -o ")), "chart.png folder");
    EXPECT_EQ(listed(completed("export t.ridelog -o ")), "folder");
    qputenv("RIDELOG_PORTS", "/dev/null");
    EXPECT_TRUE(completed("receive --port ").contains(QStringLiteral("/dev/null")));
    qunsetenv("RIDELOG_PORTS");
}

} // namespace
} // namespace ridelog
