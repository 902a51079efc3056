#include "platform/DocumentFile.h"

#include "tests/support/Archives.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <QDateTime>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ridelog {
namespace {

const QString changedMeanwhile = QStringLiteral("another program has changed it meanwhile");

std::optional<QString> takeAll(const QByteArray& /*bytes*/)
{
    return std::nullopt;
}

ByteSource source(const QByteArray& bytes)
{
    return [bytes](const ByteSink& sink) { sink(bytes); };
}

class DocumentFileTest : public testing::Test, protected TemporaryFolder {
protected:
    /// The file as it is known to one who has it open.
    DocumentFile opened() const
    {
        DocumentFile file(path("file"));
        EXPECT_EQ(file.lock(), std::nullopt);
        EXPECT_EQ(file.read(takeAll, 1000).has_value(), !QFileInfo::exists(path("file")));
        return file;
    }

    void setAge(const char* name, int seconds) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-seconds),
                                     QFileDevice::FileModificationTime));
    }

    const QByteArray mine = archiveOf("mine");
    const QByteArray others = archiveOf("them"); ///< of the same size
    const QByteArray edited = archiveOf("mine, edited");
};

TEST_F(DocumentFileTest, WhatOthersWriteIsNotOverwrittenUnasked)
{
    enum class Change { inPlace, replaced, appeared };
    for (const auto change : {Change::inPlace, Change::replaced, Change::appeared}) {
        QFile::remove(path("file"));
        QFile::remove(path("file~"));
        if (change != Change::appeared)
            write("file", mine);
        auto file = opened();
        EXPECT_FALSE(file.wasChangedByOthers());
        if (change == Change::replaced)
            QFile::rename(path("file"), path("moved"));
        write("file", others);
        setAge("file", change == Change::inPlace ? 60 : 0);

        EXPECT_TRUE(file.wasChangedByOthers());
        EXPECT_EQ(file.write(source(edited)), changedMeanwhile);
        const auto refuse = [](const QByteArray&) {
            return std::optional(QStringLiteral("unknown version"));
        };
        EXPECT_EQ(file.read(refuse, 1000), QStringLiteral("unknown version"));
        EXPECT_EQ(file.write(source(edited)), changedMeanwhile)
            << "what could not be read is not known either";
        EXPECT_EQ(read("file"), others);
        EXPECT_FALSE(QFileInfo::exists(path("file~")));

        file.acceptChangesOfOthers();
        EXPECT_EQ(file.write(source(edited)), std::nullopt);
        EXPECT_EQ(read("file"), edited);
        EXPECT_EQ(read("file~"), others);
    }
}

TEST_F(DocumentFileTest, NorWhatTheyWriteMeanwhile)
{
    write("file", mine);
    auto file = opened();
    FailingDisk disk(path(), {});
    disk.at(FailingDisk::Call::sync, [&] {
        QFile::remove(path("file"));
        write("file", others);
    });
    EXPECT_EQ(file.write(source(edited)), changedMeanwhile);
    EXPECT_EQ(file.write(source(edited)), changedMeanwhile);
    EXPECT_EQ(read("file"), others);
}

TEST_F(DocumentFileTest, AFileThatHasGoneIsWrittenAgain)
{
    write("file", mine);
    auto file = opened();
    QFile::remove(path("file"));
    EXPECT_FALSE(file.wasChangedByOthers());
    EXPECT_EQ(file.write(source(edited)), std::nullopt);
    EXPECT_EQ(read("file"), edited);
}

TEST_F(DocumentFileTest, TheTimeThatAServerSetsWhenAFileIsClosedIsNoChange)
{
    write("file", mine);
    auto file = opened();
    FailingDisk disk(path(), {});
    disk.at(FailingDisk::Call::close, [&] { setAge(".file.saving", 60); });
    EXPECT_EQ(file.write(source(edited)), std::nullopt);
    EXPECT_FALSE(file.wasChangedByOthers());
}

TEST_F(DocumentFileTest, ABackupTakesNoRoomWhereAFileCanHaveTwoNames)
{
    const auto number = [&](const char* name) {
        struct stat found {};
        EXPECT_EQ(::stat(qPrintable(path(name)), &found), 0);
        return found.st_ino;
    };
    for (const bool unnamedFiles : {true, false}) {
        write("file", mine);
        const auto found = number("file");
        const FailingDisk disk(path(), {.unnamedFiles = unnamedFiles});
        EXPECT_EQ(opened().write(source(edited)), std::nullopt);
        EXPECT_EQ(number("file~"), found);
    }
}

TEST_F(DocumentFileTest, KeepsWhatTheSessionFound)
{
    for (int session = 0; session < 3; ++session) {
        auto file = opened();
        const auto found = read("file"); // nothing the first time
        for (int save = 0; save < 3; ++save) {
            EXPECT_EQ(file.write(source(archiveOf(QByteArray::number(10 * session + save)))), std::nullopt);
            EXPECT_EQ(read("file~"), found);
        }
    }
}

TEST_F(DocumentFileTest, TheBackupTakesThePlaceOfNothingElse)
{
    const auto backup = path("file~");
    const auto unrelated = write("unrelated", others);
    const std::function<void()> obstacles[] = {
        [&] { QDir().mkdir(backup); },
        [&] { QFile::link(unrelated, backup); },
        [&] { write("file~", "a letter to the club"); },
        [&] { ASSERT_EQ(::mkfifo(qPrintable(backup), 0600), 0); },
    };
    for (const auto& obstacle : obstacles) {
        write("file", mine);
        obstacle();
        EXPECT_EQ(opened().write(source(edited)), std::nullopt);
        EXPECT_EQ(read("file~~"), mine);
        EXPECT_EQ(read("unrelated"), others);
        QFile::remove(backup);
        QDir().rmdir(backup);
        QFile::remove(path("file~~"));
    }
}

TEST_F(DocumentFileTest, OneProcessAtATime)
{
    write("file", mine);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const auto owner = ::fork();
    if (owner == 0) {
        const auto file = opened();
        ::close(ends[0]);
        ::close(ends[1]);
        for (;;)
            ::pause();
    }
    ::close(ends[1]);
    char byte = 0;
    EXPECT_EQ(::read(ends[0], &byte, 1), 0) << "the other one has it open now";
    ::close(ends[0]);

    DocumentFile file(path("file"));
    const auto reason = file.lock();
    EXPECT_TRUE(reason && reason->contains(QString::number(owner)));
    EXPECT_EQ(file.read(takeAll, 1000), std::nullopt);
    EXPECT_EQ(file.write(source(edited)), reason);
    EXPECT_EQ(read("file"), mine);

    ::kill(owner, SIGKILL);
    EXPECT_EQ(::waitpid(owner, nullptr, 0), owner);
    EXPECT_EQ(file.write(source(edited)), std::nullopt);
    EXPECT_NE(DocumentFile(path("file")).lock(), std::nullopt);
}

TEST_F(DocumentFileTest, ALockOfNobodyIsTakenOver)
{
    write(".file.lock", "");
    write(".file.saving", "half of");
    write(".file.backup", "half of");
    EXPECT_EQ(DocumentFile(path("file")).lock(), QStringLiteral("another program has it open"));
    setAge(".file.lock", 60);
    EXPECT_EQ(DocumentFile(path("file")).lock(), std::nullopt);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(DocumentFileTest, OfANameThatNoFileCanHaveNoPartIsTaken)
{
    DocumentFile file(path("a") + QChar(QChar::Null) + u'b');
    const std::optional<QString> reason = QStringLiteral("no file can have this name");
    EXPECT_EQ(file.lock(), reason);
    EXPECT_EQ(file.read(takeAll, 1000), reason);
    EXPECT_EQ(file.write(source(mine)), reason);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DocumentFileTest, ReadsOnlyFilesOfItsSize)
{
    const auto reasonFor = [&](const char* name) { return DocumentFile(path(name)).read(takeAll, 1000); };
    write("large", QByteArray(1001, 'x'));
    ASSERT_EQ(::mkfifo(qPrintable(path("pipe")), 0600), 0);
    EXPECT_EQ(reasonFor("large"), QStringLiteral("it is too large: 1,001 bytes, at most 1,000 are read"));
    EXPECT_EQ(reasonFor("pipe"), QStringLiteral("it is not a regular file"));
    EXPECT_EQ(reasonFor(""), QStringLiteral("it is a folder"));
    EXPECT_NE(reasonFor("none"), std::nullopt);
}

} // namespace
} // namespace ridelog
