#include "update/DescriptionLoader.h"

#include "tests/support/Events.h"
#include "tests/support/HttpServer.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ridelog {
namespace {

using namespace std::chrono_literals;

class DescriptionLoaderTest : public testing::Test, protected TemporaryFolder {
protected:
    /// What is loaded, or "KIND: REASON".
    QByteArray load(const QUrl& url, std::chrono::milliseconds limit = 20s)
    {
        DescriptionLoader loader;
        loader.setTimeLimit(limit);
        QByteArray outcome;
        int told = 0;
        QObject::connect(&loader, &DescriptionLoader::loaded, [&](const QByteArray& bytes) {
            outcome = bytes;
            ++told;
        });
        QObject::connect(&loader, &DescriptionLoader::failed, [&](const UpdateFailure& why) {
            const bool isLoaded = why.kind == UpdateFailure::Kind::notADescription;
            outcome = (isLoaded ? "not a description: " : "not loaded: ") + why.reason.toUtf8();
            ++told;
        });
        loader.load(url);
        EXPECT_EQ(told, 0) << "before the call has returned";
        EXPECT_TRUE(eventually([&] { return told > 0; }));
        QCoreApplication::processEvents();
        EXPECT_EQ(told, 1) << qPrintable(url.toString());
        return outcome;
    }
    QByteArray load(const QString& url) { return load(QUrl(url)); }

    HttpServer server;
};

TEST_F(DescriptionLoaderTest, LoadsFromTheWebAndFromFiles)
{
    server.serve("whole", "<a/>", "200 OK", "Content-Length: 4\r\n");
    server.serve("until-the-end", "<a/>");
    server.serve("empty", "");
    EXPECT_EQ(load(server.url("whole")), "<a/>");
    EXPECT_EQ(load(server.url("until-the-end")), "<a/>");
    EXPECT_EQ(load(server.url("empty")), "");
    EXPECT_EQ(load(QUrl::fromLocalFile(write("with blank #1.xml", "<b/>"))), "<b/>");
}

TEST_F(DescriptionLoaderTest, ReadsNoMoreThanOneMebibyte)
{
    const QByteArray largest(1'048'576, ' ');
    const QByteArray refusal = "not a description: larger than 1 MiB";
    server.serve("largest", largest);
    server.serve("larger", largest + ' ');
    server.serve("announced", QByteArray(5'242'880, ' '), "200 OK", "Content-Length: 5242880\r\n");
    server.trickle("endless", largest);
    EXPECT_TRUE(load(server.url("largest")) == largest);
    for (const char* path : {"larger", "announced", "endless"})
        EXPECT_EQ(load(server.url(path)), refusal) << path;
    EXPECT_TRUE(load(QUrl::fromLocalFile(write("largest.xml", largest))) == largest);
    EXPECT_EQ(load(QUrl::fromLocalFile(write("larger.xml", largest + ' '))), refusal);
}

TEST_F(DescriptionLoaderTest, APackedAnswerIsNotUnpacked)
{
    server.serve("packed", "small", "200 OK", "Content-Encoding: gzip\r\n");
    EXPECT_EQ(load(server.url("packed")), "small");
}

TEST_F(DescriptionLoaderTest, GivesUpInTime)
{
    server.trickle("trickle", "<a>");
    EXPECT_EQ(load(QUrl(server.url("silent")), 100ms), "not loaded: it took longer than 0.1 s");
    EXPECT_EQ(load(QUrl(server.url("trickle")), 100ms), "not loaded: it took longer than 0.1 s");
}

TEST_F(DescriptionLoaderTest, FollowsTheWebToTheWebOnly)
{
    server.serve("description", "<a/>");
    server.redirect("moved", server.url("description"));
    server.redirect("loop", server.url("loop"));
    server.redirect("to-file", QUrl::fromLocalFile(write("secret.xml", "<a/>")).toString());
    server.redirect("to-ftp", QStringLiteral("ftp://127.0.0.1/x"));
    EXPECT_EQ(load(server.url("moved")), "<a/>");
    const auto before = server.requests();
    EXPECT_EQ(load(server.url("loop")), "not loaded: Too many redirects");
    EXPECT_LT(server.requests() - before, 40);
    for (const char* path : {"to-file", "to-ftp"})
        EXPECT_TRUE(load(server.url(path)).startsWith("not loaded: "))
            << load(server.url(path)).toStdString();
}

TEST_F(DescriptionLoaderTest, SaysWhyThereIsNothing)
{
    server.serve("missing", "<html/>", "404 Not Found");
    server.serve("broken", "<a/>", "200 OK", "Content-Length: 400\r\n");
    EXPECT_EQ(load(server.url("missing")), "not loaded: the server answers 404 Not Found");
    EXPECT_EQ(load(server.url("broken")), "not loaded: Connection closed");
    EXPECT_EQ(load(QStringLiteral("http://127.0.0.1:1/")), "not loaded: Connection refused");

    ASSERT_EQ(::mkfifo(qPrintable(path("pipe")), 0600), 0);
    EXPECT_EQ(load(QUrl::fromLocalFile(path("pipe"))), "not loaded: it is not a regular file");
    EXPECT_EQ(load(QStringLiteral("file:///dev/zero")), "not loaded: it is not a regular file");
    EXPECT_EQ(load(QUrl::fromLocalFile(path())), "not loaded: it is a folder");
    EXPECT_EQ(load(QUrl::fromLocalFile(path("missing"))), "not loaded: No such file or directory");

    EXPECT_EQ(load(QString()), "not loaded: this build of ridelog has no address to look for updates at");
    for (const auto& other : {"ftp://127.0.0.1/x", "updates.xml", "http:", "http://", "data:,x", "qrc:/x"})
        EXPECT_EQ(load(QString::fromLatin1(other)),
                  "not loaded: not an address of the web (http, https) or of a file")
            << other;
}

TEST_F(DescriptionLoaderTest, MayGoWhileItWaits)
{
    auto loader = std::make_unique<DescriptionLoader>();
    QObject::connect(loader.get(), &DescriptionLoader::failed, [] { FAIL(); });
    loader->load(QUrl(server.url("silent")));
    ASSERT_TRUE(eventually([this] { return server.requests() == 1; }));
    loader.reset();
    QCoreApplication::processEvents();
}

} // namespace
} // namespace ridelog
