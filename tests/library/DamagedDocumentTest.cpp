// A document cut anywhere, or with any byte changed, is refused with its place or opened: it never costs
// anything else. All changes are tried where RIDELOG_ALL_DAMAGES is set, else every truncation and some
// changes of each byte.

#include "bench/PeakMemory.h"
#include "tests/support/Archives.h"
#include "tests/support/Documents.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool measuresMemory = false; // sanitizers need much of their own
#else
constexpr bool measuresMemory = true;
#endif

struct Outcomes {
    int refused = 0;
    int opened = 0;
    qint64 slowest = 0; ///< milliseconds

    void add(const QByteArray& bytes)
    {
        QElapsedTimer timer;
        timer.start();
        MyDocument document;
        const auto refusal = refusalOf(document, bytes);
        if (refusal.empty()) {
            // What was opened is a document like any other: stored, it comes back.
            const auto again = stored(document);
            MyDocument reopened;
            ASSERT_EQ(refusalOf(reopened, again), "");
            ASSERT_EQ(stored(reopened), again);
            ++opened;
        } else {
            ASSERT_NE(refusal.find(" at byte "), std::string::npos) << refusal;
            ASSERT_TRUE(document.toursArray().empty());
            ++refused;
        }
        slowest = std::max(slowest, timer.elapsed());
    }
};

const ArchiveClass tourClass{"OdoTour", 2, &ArchiveClasses::object};

/// A library of so many tours, and of something that a later version may have put there.
template <typename WriteTour, typename WriteOther>
QByteArray library(int tours, WriteTour&& writeTour, WriteOther&& writeOther)
{
    return written([&](TypedStreamWriter& out) {
        out.beginDictionary(3);
        out.writeConstant(QStringLiteral("generalData"));
        out.beginDictionary(0);
        out.endObject();
        out.writeConstant(QStringLiteral("toursArray"));
        out.beginArray(tours);
        for (int tour = 0; tour < tours; ++tour) {
            out.beginObject(tourClass);
            out.writeNil();
            writeTour(out);
            out.endObject();
        }
        out.endObject();
        out.writeConstant(QStringLiteral("other"));
        writeOther(out);
        out.endObject();
    });
}

/// Loads the library with the memory that it may take, and answers why it was refused, or nothing.
std::string refusalInMemory(MyDocument& document, const QByteArray& bytes)
{
    const PeakMemory memory;
    auto refusal = refusalOf(document, bytes);
    EXPECT_TRUE(!measuresMemory || memory.risen() < 64 << 20) << memory.risen();
    return refusal;
}

void writeNil(TypedStreamWriter& out)
{
    out.writeNil();
}

void writeNames(TypedStreamWriter& out)
{
    out.writeConstant(QStringLiteral("title"));
    out.writeConstant(QStringLiteral("description"));
}

TEST(DamagedDocument, ALongTextOfManyToursIsHeldOnce)
{
    const QString text(1 << 20, u'x');
    const auto writeTexts = [&](TypedStreamWriter& out) {
        out.writeConstant(text);
        out.writeConstant(text);
    };
    MyDocument document;
    EXPECT_EQ(refusalInMemory(document, library(500, writeTexts, writeNil)), "");
    EXPECT_EQ(document.toursArray().back()->tourDescription().text(), text);
}

TEST(DamagedDocument, MillionsOfSmallThingsTakeLittleMemory)
{
    const ArchiveClass root{"Later", 1, nullptr};
    const auto many = [&](int count, const char* type, auto&& put) {
        MyDocument document;
        const auto bytes = library(1, writeNames, [&](TypedStreamWriter& out) {
            out.beginObject(root);
            out.group('[' + QByteArray::number(count) + type + ']');
            for (int value = 0; value < count; ++value)
                put(out);
            out.endObject();
        });
        EXPECT_EQ(refusalInMemory(document, bytes), "") << type;
    };
    many(3'000'000, "@", [](TypedStreamWriter& out) { out.putNil(); });
    many(3'000'000, "i", [](TypedStreamWriter& out) { out.putInteger(7); });
    many(800'000, "@", [&](TypedStreamWriter& out) {
        out.putObject(root);
        out.endObject();
    });
}

TEST(DamagedDocument, ManyRunsOfManyToursTakeLittleMemory)
{
    constexpr int runs = 500'000;
    std::optional<std::uint32_t> description;
    const auto bytes = library(
        300,
        [&](TypedStreamWriter& out) {
            out.writeConstant(QStringLiteral("title"));
            if (description)
                return out.writeReference(*description);
            description = out.beginObject(ArchiveClasses::attributedString);
            out.writeString(QString(runs, u'x'));
            for (int run = 0; run < runs; ++run) {
                out.group("iI");
                out.putInteger(run % 2 + 1);
                out.putInteger(1);
                if (run > 1)
                    continue;
                out.beginDictionary(1);
                out.writeConstant(QStringLiteral("key"));
                out.writeNil();
                out.endObject();
            }
            out.endObject();
        },
        writeNil);
    MyDocument document;
    EXPECT_EQ(refusalInMemory(document, bytes), "");
    EXPECT_EQ(document.toursArray().back()->tourDescription().runs().size(), std::size_t{runs});
}

TEST(DamagedDocument, WhatTakesMoreMemoryThanItMayIsRefused)
{
    const auto bytes = library(300'000, writeNames, writeNil);
    MyDocument document;
    const auto refusal = refusalInMemory(document, bytes);
    EXPECT_EQ(refusal.substr(0, refusal.rfind(' ')),
              "not a readable document: what it holds takes more than 56 MiB of memory at byte");
    EXPECT_TRUE(document.toursArray().empty());
}

TEST(DamagedDocument, ManyToursWithNotesAndUnknownThingsAreOpened)
{
    StyledText note(QString(500, u'x'));
    const auto bytes = library(
        3000,
        [&](TypedStreamWriter& out) {
            for (int link = 0; link < 10; ++link)
                note.setLink(link * 50, 20, QStringLiteral("https://example.org/pass"));
            out.writeConstant(QStringLiteral("title"));
            note.write(out);
        },
        [](TypedStreamWriter& out) {
            out.beginArray(300'000);
            for (int number = 0; number < 300'000; ++number)
                out.writeNumber(ArchiveNumber(number % 100));
            out.endObject();
        });
    MyDocument document;
    EXPECT_EQ(refusalInMemory(document, bytes), "");
    EXPECT_EQ(document.toursArray().back()->tourDescription(), note);
}

TEST(DamagedDocument, IsRefusedOrOpenedWhateverHappenedToIt)
{
    MyDocument document;
    fill(document);
    const auto whole = stored(document);
    const bool all = qEnvironmentVariableIsSet("RIDELOG_ALL_DAMAGES");
    Outcomes outcomes;
    const PeakMemory memory;
    for (qsizetype length = 0; length < whole.size(); ++length)
        outcomes.add(whole.first(length));
    EXPECT_EQ(outcomes.refused, whole.size()) << "no part of a document is a document";

    std::mt19937 random(4711);
    for (qsizetype place = 0; place < whole.size(); ++place) {
        for (int change = 1; change < 256; ++change) {
            if (!all && random() % 16 != 0)
                continue;
            auto damaged = whole;
            damaged[place] = static_cast<char>(damaged[place] ^ change);
            ASSERT_NO_FATAL_FAILURE(outcomes.add(damaged)) << "byte " << place << ", changed by " << change;
        }
    }
    std::printf("%lld bytes; %d refused, %d opened, the slowest in %lld ms\n",
                static_cast<long long>(whole.size()), outcomes.refused, outcomes.opened,
                static_cast<long long>(outcomes.slowest));
    EXPECT_LT(outcomes.slowest, 1000);
    EXPECT_TRUE(!measuresMemory || memory.risen() < 64 << 20) << memory.risen();
}

} // namespace
} // namespace ridelog
