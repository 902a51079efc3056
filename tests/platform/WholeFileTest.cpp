#include "platform/WholeFile.h"

#include "tests/support/FailingDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ridelog {
namespace {

using Call = FailingDisk::Call;

class WholeFileTest : public testing::Test, protected TemporaryFolder {
protected:
    static struct stat statusOf(const QString& path)
    {
        struct stat found {};
        EXPECT_EQ(::stat(qPrintable(path), &found), 0) << qPrintable(path);
        return found;
    }

    void link(const char* to, const char* name) const { EXPECT_EQ(::symlink(to, qPrintable(path(name))), 0); }
};

TEST_F(WholeFileTest, KeepsPermissionsAndOwner)
{
    const auto file = write("file", "old");
    const uid_t owner = ::geteuid() == 0 ? 12345 : ::geteuid();
    ASSERT_EQ(::chown(qPrintable(file), owner, static_cast<gid_t>(-1)), 0);
    for (const mode_t mode : {0600U, 0664U, 0606U}) {
        ASSERT_EQ(::chmod(qPrintable(file), mode), 0);
        EXPECT_EQ(writeWholeFile(file, "new"), std::nullopt);
        EXPECT_EQ(statusOf(file).st_mode & 07777, mode);
        EXPECT_EQ(statusOf(file).st_uid, owner);
    }
    const auto mask = ::umask(0027);
    EXPECT_EQ(writeWholeFile(path("another"), "new"), std::nullopt);
    ::umask(mask);
    EXPECT_EQ(statusOf(path("another")).st_mode & 07777, mode_t{0640});
    EXPECT_EQ(names(), (QStringList{QStringLiteral("another"), QStringLiteral("file")}));
}

TEST_F(WholeFileTest, FollowsLinks)
{
    ASSERT_TRUE(QDir(path()).mkdir(QStringLiteral("kept")));
    link("kept/second", "first");
    link("../file", "kept/second");
    write("file", "old");
    EXPECT_EQ(writeWholeFile(path("first"), "new"), std::nullopt);
    EXPECT_EQ(read("file"), "new");
    EXPECT_TRUE(QFileInfo(path("first")).isSymLink() && QFileInfo(path("kept/second")).isSymLink());
    link("kept", "folder");
    EXPECT_EQ(targetOfPath(path("folder/none")), targetOfPath(path("kept/none")));
}

TEST_F(WholeFileTest, RefusesWhatIsNoFile)
{
    ASSERT_TRUE(QDir(path()).mkdir(QStringLiteral("folder")));
    ASSERT_EQ(::mkfifo(qPrintable(path("pipe")), 0600), 0);
    link("nowhere", "dangling");
    link("round", "round");
    link("folder", "link to folder");
    const auto before = names();
    for (const auto& [name, reason] : {std::pair("folder", "it is a folder"),
                                       {"link to folder", "it is a folder"},
                                       {"pipe", "it is not a regular file"},
                                       {"dangling", "it is a link that leads nowhere"},
                                       {"round", "it is a link that leads nowhere"},
                                       {"pipe/file", "Not a directory"},
                                       {"no folder/file", "nothing can be written in its folder"}}) {
        const auto error = writeWholeFile(path(name), "new");
        ASSERT_TRUE(error) << name;
        EXPECT_TRUE(error->startsWith(QString::fromLatin1(reason))) << name << ": " << qPrintable(*error);
    }
    EXPECT_EQ(names(), before);
}

TEST_F(WholeFileTest, ForcesTheBytesToTheDiskBeforeTheyTakeThePlaceAndTheFolderAfterwards)
{
    FailingDisk disk(path(), {});
    EXPECT_EQ(writeWholeFile(path("file"), "new"), std::nullopt);
    EXPECT_EQ(disk.calls(), (std::vector{Call::open, Call::open, Call::write, Call::sync, Call::link,
                                         Call::close, Call::rename, Call::syncFolder}));
}

TEST_F(WholeFileTest, AFolderThatIsNotToBeWrittenIsSaidToBeSo)
{
    write("file", "old");
    FailingDisk disk(path(), {.unnamedFiles = false});
    for (const int call : {0, 1}) {
        disk.failCall(call, EACCES);
        EXPECT_EQ(writeWholeFile(path("file"), "new"),
                  QStringLiteral("nothing can be written in its folder: Permission denied"));
        EXPECT_EQ(read("file"), "old");
    }
    disk.work();
    EXPECT_EQ(writeWholeFile(path("file"), "new"), std::nullopt);
}

TEST_F(WholeFileTest, KeepsAFileUnderAnotherName)
{
    const auto file = write("file", "kept");
    const auto other = path("other");
    ASSERT_EQ(::chmod(qPrintable(file), 0640), 0);
    write("unrelated", "unrelated");
    for (const bool hardLinks : {true, false}) {
        const FailingDisk disk(path(), {.hardLinks = hardLinks});
        link("unrelated", "other");
        EXPECT_EQ(keepUnderName(file, other), std::nullopt);
        EXPECT_EQ(keepUnderName(file, other), std::nullopt) << "it has both names already";
        EXPECT_EQ(statusOf(other).st_ino == statusOf(file).st_ino, hardLinks);
        EXPECT_EQ(statusOf(other).st_mode & 07777, mode_t{0640});
        EXPECT_EQ(read("other"), "kept");
        EXPECT_EQ(read("unrelated"), "unrelated") << "a link is replaced, not followed";
        EXPECT_EQ(names().size(), 3);
        QFile::remove(other);
        ASSERT_TRUE(QDir(path()).mkdir(QStringLiteral("other")));
        EXPECT_NE(keepUnderName(file, other), std::nullopt) << "a folder is not replaced";
        EXPECT_EQ(names().size(), 3);
        ASSERT_TRUE(QDir(path()).rmdir(QStringLiteral("other")));
    }
}

TEST_F(WholeFileTest, TakesAFreePlaceAndNoOther)
{
    const ByteSource content = [](const ByteSink& sink) { sink("new"); };
    for (const auto knows : {FailingDisk::FileSystem{},
                             {.unnamedFiles = false},
                             {.freeNames = false},
                             {.hardLinks = false, .freeNames = false}}) {
        const FailingDisk disk(path(), knows);
        WholeFile late(path("file"));
        WholeFile first(path("file"));
        EXPECT_EQ(late.write(content), std::nullopt);
        EXPECT_EQ(first.write([](const ByteSink& sink) { sink("first"); }), std::nullopt);
        EXPECT_EQ(first.putInFreePlace(), std::nullopt);
        EXPECT_EQ(late.putInFreePlace(), QStringLiteral("it is there already"));
        EXPECT_EQ(read("file"), "first");
        QFile::remove(path("file"));
    }
    EXPECT_EQ(names(), QStringList()) << "nothing is left of the other";
}

TEST_F(WholeFileTest, WritesNothingMoreOfAFileThatIsNotWanted)
{
    FailingDisk disk(path(), {});
    {
        WholeFile file(path("file"));
        bool isWanted = true;
        const auto content = [&isWanted](const ByteSink& sink) {
            sink("some");
            isWanted = false;
            sink("more");
        };
        EXPECT_EQ(file.write(content, [&isWanted] { return isWanted; }), std::nullopt);
    }
    EXPECT_EQ(disk.calls(), (std::vector{Call::open, Call::open, Call::write, Call::close}));
    EXPECT_EQ(names(), QStringList());
}

} // namespace
} // namespace ridelog
