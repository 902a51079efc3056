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

TEST(DamagedDocument, ALongTextOfManyToursIsHeldOnce)
{
    const QString text(1 << 20, u'x');
    const ArchiveClass tourClass{"OdoTour", 2, &ArchiveClasses::object};
    const auto bytes = written([&](TypedStreamWriter& out) {
        out.beginDictionary(2);
        out.writeConstant(QStringLiteral("generalData"));
        out.beginDictionary(0);
        out.endObject();
        out.writeConstant(QStringLiteral("toursArray"));
        out.beginArray(500);
        for (int tour = 0; tour < 500; ++tour) {
            out.beginObject(tourClass);
            out.writeNil();
            out.writeConstant(text);
            out.writeConstant(text);
            out.endObject();
        }
        out.endObject();
        out.endObject();
    });
    const PeakMemory memory;
    MyDocument document;
    EXPECT_EQ(refusalOf(document, bytes), "");
    EXPECT_EQ(document.toursArray().back()->tourDescription().text(), text);
    EXPECT_TRUE(!measuresMemory || memory.risen() < 64 << 20) << memory.risen();
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
