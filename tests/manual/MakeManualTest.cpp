// The manual as HTML: what the tool makes of files, and what it made of ours.

#include "tests/support/TemporaryFolder.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace ridelog {
namespace {

/// The tool over a folder of the test's own.
class MakeManual : public testing::Test, protected TemporaryFolder {
protected:
    MakeManual()
    {
        for (const auto* folder : {"source/pictures", "source/de/pictures"})
            QDir(path()).mkpath(QString::fromLatin1(folder));
        write("source/manual.css", "p {}");
        write("source/pictures/a.png", "a");
        write("source/index.md", "# Manual & more\n\n[Rides](rides.md), ![Word](pictures/a.png)\n");
        write("source/rides.md", "# Rides\n\n## Über `x`, y\n\n## Über x, y\n");
    }
    /// What it complains of; empty if it made the pages.
    QString made()
    {
        QProcess tool;
        tool.start(QStringLiteral(RIDELOG_MAKE_MANUAL), {path("source"), path("html")});
        EXPECT_TRUE(tool.waitForFinished());
        auto error = QString::fromUtf8(tool.readAllStandardError()).trimmed();
        EXPECT_EQ(tool.exitCode(), error.isEmpty() ? 0 : 1) << qPrintable(error);
        return error;
    }
};

TEST_F(MakeManual, LinksLeadToTheSectionsOfPages)
{
    write("source/rides.md",
          "# Rides\n\n[here](#über-x-y-1) [there](index.md#manual--more) <https://example.org/a.md>\n\n"
          "## Über `x`, y\n\n## Über x, y\n\n|a|b|\n|-|-|\n|1|2|\n");
    ASSERT_EQ(made(), QString());
    const auto page = read("html/rides.html");
    for (const auto* part :
         {"<html lang=\"en\">", "<meta charset=\"utf-8\">", "<title>Rides – ridelog</title>",
          "<h2><a id=\"über-x-y\"></a>Über <code>x</code>, y</h2>", "<a id=\"über-x-y-1\">",
          "\"index.html#manual--more\"", "\"https://example.org/a.md\"", "<td>2</td>",
          "rel=\"prev\">Manual &amp; more</a>"})
        EXPECT_TRUE(page.contains(part)) << part << " is not in " << page.constData();
    EXPECT_TRUE(page.contains("href=\"#%C3%BCber-x-y-1\"")) << page.constData();
    EXPECT_EQ(read("html/pictures/a.png"), "a");
}

TEST_F(MakeManual, WhatLeadsNowhereIsAnError)
{
    const std::pair<const char*, const char*> pages[] = {
        {"# R\n\n[x](ride.md)\n", "there is no page ride.md"},
        {"# R\n\n[x](rides.html)\n", "there is no page rides.html"},
        {"# R\n\n[x](index.md#rides)\n", "there is no section index.md#rides"},
        {"# R\n\n[x](#S)\n\n## S\n", "there is no section #S"},
        {"# R\n\n![x](pictures/b.png)\n", "there is no picture pictures/b.png"},
        {"# R\n\n![](pictures/a.png)\n", "pictures/a.png has no words for who does not see it"},
        {"R\n", "it does not begin with a title"},
    };
    for (const auto& [page, complaint] : pages) {
        const auto file = write("source/rides.md", page);
        EXPECT_EQ(made(), QStringLiteral("make-manual: %1: %2").arg(file, QString::fromUtf8(complaint)));
    }
    write("source/rides.md", "# R\n");
    write("source/lost.md", "# Lost\n");
    EXPECT_TRUE(made().endsWith(QStringLiteral("it does not lead to lost.md")));
    QFile::remove(path("source/lost.md"));
    write("source/pictures/lost.png", "b");
    EXPECT_TRUE(made().endsWith(QStringLiteral("lost.png: it is on no page")));
}

TEST_F(MakeManual, AnotherLanguageHasAllPagesAndTheSameSections)
{
    write("source/de/index.md", "# Handbuch\n\n[Fahrten](rides.md#über-x-y) ![Wort](pictures/a.png)\n");
    ASSERT_EQ(made(), QString());
    EXPECT_TRUE(read("html/de/index.html").contains("<html lang=\"de\">"));
    EXPECT_TRUE(read("html/de/index.html").contains("src=\"../pictures/a.png\""));
    EXPECT_TRUE(read("html/de/index.html").contains("href=\"../manual.css\""));
    EXPECT_TRUE(read("html/de/rides.html").contains("<html lang=\"en\">")) << "it is not translated";
    EXPECT_TRUE(read("html/de/rides.html").contains(">Handbuch</a>"));
    EXPECT_TRUE(read("html/index.html").contains("<html lang=\"en\">"));

    write("source/de/rides.md", "# Fahrten\n\n## Eins\n\n## Zwei\n");
    write("source/de/pictures/a.png", "de");
    ASSERT_EQ(made(), QString());
    EXPECT_TRUE(read("html/de/rides.html").contains("<a id=\"über-x-y-1\"></a>Zwei"));
    EXPECT_TRUE(read("html/de/index.html").contains("src=\"pictures/a.png\""));
    EXPECT_EQ(read("html/de/pictures/a.png"), "de");

    write("source/de/rides.md", "# Fahrten\n\n## Eins\n");
    EXPECT_TRUE(made().contains(QStringLiteral("it has fewer sections than")));
    write("source/de/rides.md", "# Fahrten\n\n### Eins\n\n## Zwei\n");
    EXPECT_TRUE(made().contains(QStringLiteral("\"Eins\" is not a section of")));
}

/// Every file below the folder by its path in it.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

TEST(Manual, HasWhatItsPagesAndTheWindowsLeadTo)
{
    const auto pages = filesBelow(QStringLiteral(RIDELOG_MANUAL));
    const auto isThere = [&pages](const QString& target) {
        const auto page = target.section(u'#', 0, 0);
        const auto id = target.section(u'#', 1);
        return pages.contains(page) &&
               (id.isEmpty() || pages[page].contains(QStringLiteral("id=\"%1\"").arg(id).toUtf8()));
    };
    static const QRegularExpression reference(QStringLiteral("(?:href|src)=\"([^\":]+)\""));
    static const QRegularExpression section(QStringLiteral("\"([a-z-]+\\.html[^\"]*)\""));
    int links = 0;
    for (auto [name, text] : pages.asKeyValueRange()) {
        if (!name.endsWith(QStringLiteral(".html")))
            continue;
        auto found = reference.globalMatch(QString::fromUtf8(text));
        while (found.hasNext()) {
            const auto target = found.next().captured(1);
            EXPECT_TRUE(isThere(target.startsWith(u'#') ? name + target : target))
                << qPrintable(name) << " leads to " << qPrintable(target);
            ++links;
        }
    }
    EXPECT_GT(links, 100);

    int sections = 0;
    for (auto [name, text] : filesBelow(QStringLiteral(RIDELOG_SOURCE "/src/ui")).asKeyValueRange()) {
        auto found = section.globalMatch(QString::fromUtf8(text));
        while (found.hasNext()) {
            const auto target = found.next().captured(1);
            EXPECT_TRUE(target == QStringLiteral("index.html") || isThere(target))
                << qPrintable(name) << " leads to " << qPrintable(target);
            ++sections;
        }
    }
    EXPECT_GT(sections, 10);
}

/// What stands between two lines of ``` in the file.
QStringList blocksOf(const QString& page)
{
    QFile file(QStringLiteral(RIDELOG_SOURCE "/docs/manual/") + page);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList blocks;
    const auto parts = QString::fromUtf8(file.readAll()).split(QStringLiteral("```\n"));
    for (qsizetype part = 1; part < parts.size(); part += 2)
        blocks << parts[part];
    return blocks;
}

TEST(Manual, ExamplesPrintWhatItSays)
{
    const TemporaryFolder folder;
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), folder.path());
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("PATH"),
                       QFileInfo(QStringLiteral(RIDELOG_CLI)).path() + u':' + qEnvironmentVariable("PATH"));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(folder.path());
    shell.setProcessChannelMode(QProcess::MergedChannels);
    int examples = 0;
    for (const auto& block : blocksOf(QStringLiteral("command-line.md"))) {
        QString printed;
        for (const auto& line : block.split(u'\n')) {
            if (!line.startsWith(QStringLiteral("$ ")))
                continue;
            shell.start(QStringLiteral("bash"), {QStringLiteral("-c"), line.mid(2)});
            ASSERT_TRUE(shell.waitForFinished());
            printed += line + u'\n' + QString::fromUtf8(shell.readAll()).remove(u'\r');
            ++examples;
        }
        if (!printed.isEmpty()) {
            EXPECT_EQ(printed.toStdString(), block.toStdString());
        }
    }
    EXPECT_GT(examples, 20);
}

} // namespace
} // namespace ridelog
