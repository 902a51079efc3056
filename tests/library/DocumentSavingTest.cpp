// A disk that fails at every point of every way to save a document, and files that others have their hands
// on.

#include "tests/support/Documents.h"
#include "tests/support/FailingDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <ostream>

namespace ridelog {
namespace {

using Call = FailingDisk::Call;

const QString newTitle = QStringLiteral("Home over the pass");

/// A document of one small tour.
QByteArray smallDocument()
{
    MyDocument document;
    document.addNewToursFromArray({tourThrough({500, 510})});
    return stored(document);
}

/// Whether a save may end with success although this has failed: there is another way to do the same.
bool maySucceed(std::optional<Call> failed, int cause)
{
    return !failed || failed == Call::open || failed == Call::link || failed == Call::setOwner ||
           (cause == EINTR && failed != Call::setMode && failed != Call::rename);
}

/// Whether it may end with an error because of it.
bool mayFail(std::optional<Call> failed, int cause)
{
    return failed == Call::open || !maySucceed(failed, cause);
}

struct SavingCase {
    const char* name;
    bool saveAs;
    FailingDisk::FileSystem knows = {};

    friend std::ostream& operator<<(std::ostream& out, const SavingCase& saving)
    {
        return out << saving.name;
    }
};

class DocumentSaving : public testing::TestWithParam<SavingCase>, protected TemporaryFolder {
protected:
    DocumentSaving() : TemporaryFolder(memoryFolder()) {}

    /// One save over an older document on a disk that works as `harm` makes it. False if nothing failed.
    template <typename Harm>
    bool failsSaving(const Harm& harm, int causeOfFailure)
    {
        const bool saveAs = GetParam().saveAs;
        const char* target = saveAs ? "copy.ridelog" : "tours.ridelog";
        const char* backup = saveAs ? "copy.ridelog~" : "tours.ridelog~";
        write("tours.ridelog", old);
        write(target, old);
        write(backup, olderBackup);
        MyDocument document;
        EXPECT_EQ(document.open(path("tours.ridelog")), std::nullopt);
        document.toursArray().front()->setTitle(newTitle);
        const auto edited = stored(document);
        const auto save = [&] { return saveAs ? document.saveAs(path(target)) : document.save(); };
        const auto namesBefore = names();
        FailingDisk disk(path(), GetParam().knows);

        harm(disk);
        const auto error = save();
        const auto failed = disk.failed();
        const bool inPlace = !error || failed == Call::syncFolder;
        EXPECT_EQ(read(target), inPlace ? edited : old);
        const auto kept = read(backup);
        EXPECT_TRUE(kept == old || (!inPlace && kept == olderBackup));
        EXPECT_EQ(document.isChanged(), error.has_value());
        EXPECT_EQ(read("tours.ridelog") == edited, inPlace && !saveAs);
        EXPECT_TRUE(error ? mayFail(failed, causeOfFailure) : maySucceed(failed, causeOfFailure));
        if (error) {
            EXPECT_EQ(names(), namesBefore);
            EXPECT_TRUE(error->contains(QString::fromLocal8Bit(std::strerror(causeOfFailure))))
                << qPrintable(*error);
        }

        disk.work();
        EXPECT_EQ(save(), std::nullopt);
        EXPECT_EQ(read(target), edited);
        document.undoManager().undo();
        EXPECT_EQ(save(), std::nullopt);
        EXPECT_EQ(read(target), old);
        return failed.has_value();
    }

    const QByteArray old = smallDocument();
    const QByteArray olderBackup = old.chopped(1);
};

TEST_P(DocumentSaving, LosesNothingWhereverTheDiskFails)
{
    for (const int error : {ENOSPC, EIO}) {
        int bytes = 0;
        while (failsSaving([&](FailingDisk& disk) { disk.failBeyond(bytes, error); }, error))
            ++bytes;
        EXPECT_GE(bytes, old.size());
        int calls = 0;
        while (failsSaving([&](FailingDisk& disk) { disk.failCall(calls, error); }, error))
            ++calls;
        EXPECT_GE(calls, 11);
        RecordProperty(std::strerror(error), bytes + calls);
    }
}

TEST_P(DocumentSaving, GoesOnAfterInterruptionsAndShortWrites)
{
    int calls = 0;
    const auto interrupt = [&](FailingDisk& disk) {
        disk.cutWrites(7);
        disk.failCall(calls, EINTR);
    };
    while (failsSaving(interrupt, EINTR))
        ++calls;
    EXPECT_GT(calls, old.size() / 7);
}

INSTANTIATE_TEST_SUITE_P(
    , DocumentSaving,
    testing::Values(SavingCase{"save", false}, SavingCase{"save as", true},
                    SavingCase{"save without unnamed files", false, {.unnamedFiles = false}},
                    SavingCase{"save as without unnamed files", true, {.unnamedFiles = false}},
                    SavingCase{"save without hard links", false, {.hardLinks = false}},
                    SavingCase{"save as without hard links", true, {.hardLinks = false}}));

class DocumentOfOthers : public testing::Test, protected TemporaryFolder {
protected:
    const QByteArray old = smallDocument();
};

TEST_F(DocumentOfOthers, IsReadOnlyAndCanBeSavedElsewhere)
{
    const auto tours = write("tours.ridelog", old);
    const auto copy = path("copy.ridelog");
    MyDocument owner;
    EXPECT_EQ(owner.open(tours), std::nullopt);
    EXPECT_FALSE(owner.isReadOnly());

    MyDocument document;
    EXPECT_EQ(document.open(tours), std::nullopt);
    EXPECT_TRUE(document.readOnlyReason().contains(QStringLiteral("has it open")));
    document.toursArray().front()->setTitle(newTitle);
    EXPECT_EQ(document.save(), document.readOnlyReason());
    EXPECT_EQ(document.saveAs(tours), document.readOnlyReason());
    EXPECT_TRUE(document.isChanged());
    EXPECT_EQ(read("tours.ridelog"), old);

    EXPECT_EQ(document.saveAs(copy), std::nullopt);
    EXPECT_FALSE(document.isReadOnly() || document.isChanged());
    EXPECT_EQ(document.path(), copy);
    EXPECT_EQ(read("copy.ridelog"), stored(document));
    EXPECT_TRUE(owner.saveAs(copy)->contains(QStringLiteral("has it open")));
    EXPECT_EQ(owner.path(), tours);
    EXPECT_EQ(owner.save(), std::nullopt) << "the owner has noticed nothing";
}

TEST_F(DocumentOfOthers, IsNotOverwrittenByANewOne)
{
    MyDocument document;
    EXPECT_NE(document.open(path("tours.ridelog")), std::nullopt);
    EXPECT_EQ(document.save(), QStringLiteral("the document has no file yet"));
    EXPECT_EQ(document.open(path("tours.ridelog"), MyDocument::Missing::startEmpty), std::nullopt);
    document.addNewToursFromArray({tourThrough({100, 200})});
    write("tours.ridelog", old);
    EXPECT_TRUE(document.fileWasChangedByOthers());
    EXPECT_NE(document.save(), std::nullopt);
    EXPECT_TRUE(document.isChanged());
    EXPECT_EQ(read("tours.ridelog"), old);
    document.acceptChangesOfOthers();
    EXPECT_EQ(document.save(), std::nullopt);
    EXPECT_EQ(read("tours.ridelog~"), old);
}

TEST_F(DocumentOfOthers, StaysWhenItCannotBeRead)
{
    MyDocument document;
    EXPECT_EQ(document.open(write("tours.ridelog", old)), std::nullopt);
    document.toursArray().front()->setTitle(newTitle);
    write("tours.ridelog", "of a later version");
    EXPECT_NE(document.revert(), std::nullopt);
    EXPECT_EQ(document.toursArray().front()->title(), newTitle);
    EXPECT_TRUE(document.isChanged());
    EXPECT_NE(document.save(), std::nullopt);
    EXPECT_EQ(read("tours.ridelog"), "of a later version");

    write("tours.ridelog", old);
    EXPECT_EQ(document.revert(), std::nullopt);
    EXPECT_EQ(stored(document), old);
    document.toursArray().front()->setTitle(newTitle);
    EXPECT_EQ(document.save(), std::nullopt);
}

TEST_F(DocumentOfOthers, ABackupIsPutBackWithoutBeingLost)
{
    write("tours.ridelog", "damaged");
    MyDocument backup;
    EXPECT_EQ(backup.open(write("tours.ridelog~", old)), std::nullopt);
    EXPECT_EQ(backup.saveAs(path("tours.ridelog")), std::nullopt);
    EXPECT_EQ(read("tours.ridelog"), old);
    EXPECT_EQ(read("tours.ridelog~"), old);
    EXPECT_EQ(read("tours.ridelog~~"), "damaged");
}

} // namespace
} // namespace ridelog
