#include "tests/cli/CommandLine.h"
#include "tests/support/Events.h"
#include "tests/support/HttpServer.h"

namespace ridelog {
namespace {

QByteArray description(const QByteArray& version, const QByteArray& name = "ridelog")
{
    return "<application><name>" + name + "</name><version>" + version +
           "</version><url>https://example.org/new</url><description language='en'>Faster\n charts.\x7f"
           "</description><description language='de'>Schneller.</description></application>";
}

class CheckUpdateCommand : public CommandLine {
protected:
    Outcome check(const QString& url, const char* language = "C")
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(language));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(path());
        process.start(QStringLiteral(RIDELOG_CLI),
                      {QStringLiteral("check-update"), QStringLiteral("--url"), url});
        EXPECT_TRUE(eventually([&] { return process.state() == QProcess::NotRunning; }));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    HttpServer server;
};

TEST_F(CheckUpdateCommand, SaysWhatItFound)
{
    const auto running = run(QStringLiteral("--version")).out.trimmed().split(' ').value(1);
    server.serve("other-version", description("0.0.9"));
    server.serve("same", description(running));
    server.serve("other", description("0.0.9", "walklog"));
    server.serve("bare", "<a><name>ridelog</name><version>0.0.9</version></a>");
    const auto newer = "new version found: 0.0.9 (this is " + running + ")";
    const std::pair<const char*, QByteArray> cases[]{
        {"other-version", newer + ": https://example.org/new\nFaster charts.\\x7f\n"},
        {"bare", newer + "\n"},
        {"same", "no new version: " + running + " is the newest\n"},
        {"other", "no new version: the description is of another application, walklog\n"},
    };
    for (const auto& [path, said] : cases) {
        const auto outcome = check(server.url(path));
        EXPECT_EQ(outcome.out, said);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.status, 0);
    }
    EXPECT_TRUE(check(server.url("other-version"), "de_AT.UTF-8").out.endsWith("\nSchneller.\n"));
    EXPECT_EQ(names(), QStringList()) << "the date of the last check is the application's";
}

TEST_F(CheckUpdateCommand, SaysWhyItFoundNothing)
{
    server.serve("page", "<html>\n<br>\n</html>");
    const auto missing = QUrl::fromLocalFile(path("missing.xml")).toString();
    const auto large = QUrl::fromLocalFile(write("large.xml", QByteArray(2'000'000, ' '))).toString();
    const std::tuple<QString, int, const char*> cases[]{
        {server.url("page"), 1, "not well-formed XML, line 3: Opening and ending tag mismatch"},
        {large, 1, "larger than 1 MiB"},
        {missing, 3, "No such file or directory"},
        {QStringLiteral("http://127.0.0.1:1/"), 3, "Connection refused"},
    };
    for (const auto& [url, status, reason] : cases) {
        const auto outcome = check(url);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err,
                  QStringLiteral("ridelog-cli: %1: %2\n").arg(url, QString::fromLatin1(reason)).toUtf8());
    }
    EXPECT_EQ(check(QStringLiteral("updates.xml")).status, 2);
    EXPECT_EQ(run(QStringLiteral("check-update now")).status, 2);
}

} // namespace
} // namespace ridelog
