// Whatever a rider does to a document can be taken back to the very bytes it began with.

#include "tests/support/Documents.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

/// Dumps of no to three tours of a few riders.
std::vector<QByteArray> madeUpDumps()
{
    std::vector<QByteArray> dumps;
    for (std::uint32_t seed = 1; seed <= 5; ++seed) {
        for (int tours = 0; tours < 4; ++tours)
            dumps.push_back(RideGenerator{.seed = seed, .tours = tours}.dump());
    }
    return dumps;
}

/// Does something random to a document, as one step.
class Rider {
public:
    Rider(MyDocument& document, std::uint32_t seed) : _document(document), _random(seed) {}

    void act()
    {
        const auto action = number(8);
        if (action == 0 || _document.toursArray().empty())
            merge();
        else if (action == 1)
            tour()->setTitle(QStringLiteral("🚴 %1").arg(number(100)));
        else if (action == 2)
            describe(*tour());
        else if (action == 3)
            _document.deleteTour(tour());
        else if (action == 4)
            _document.undeleteTour(tour());
        else if (action == 5)
            tour()->setDate(tour()->date().addSecs(60 * number(1000)));
        else
            wander();
        _document.undoManager().closeGroup();
    }

private:
    int number(int below) { return static_cast<int>(_random() % static_cast<unsigned>(below)); }

    std::shared_ptr<OdoTour> tour()
    {
        const auto& tours = _document.toursArray();
        return tours[_random() % tours.size()];
    }

    void merge()
    {
        static const auto dumps = madeUpDumps();
        _document.importFile(_folder.write("dump", dumps[static_cast<std::size_t>(number(20))]),
                             berlin(2007, 12, 31, 23));
    }

    void describe(OdoTour& tour)
    {
        auto description = tour.tourDescription();
        description.replace(number(5), number(9), QStringLiteral("wind %1").arg(number(100)));
        description.setUnderline(number(9), number(9), number(2) == 0);
        description.setFont(number(9), number(9), QStringLiteral("Example-Bold"), 12);
        tour.setTourDescription(description);
    }

    /// Goes back and forth in what was done, and perhaps not all the way.
    void wander()
    {
        for (int steps = number(6); steps > 0; --steps)
            _document.undoManager().undo();
        for (int steps = number(6); steps > 0; --steps)
            _document.undoManager().redo();
    }

    MyDocument& _document;
    std::mt19937 _random;
    TemporaryFolder _folder;
};

TEST(DocumentUndo, AnySequenceGoesBackAndForthToTheByte)
{
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
        MyDocument document;
        if (seed % 2 == 0)
            fill(document);
        const auto begun = stored(document);
        Rider rider(document, seed);
        for (int act = 0; act < 30; ++act)
            rider.act();

        auto& undo = document.undoManager();
        const auto ended = stored(document);
        for (int round = 0; round < 2; ++round) {
            while (undo.undo()) {
            }
            ASSERT_EQ(stored(document), begun) << "seed " << seed;
            ASSERT_FALSE(document.isChanged()) << "seed " << seed;
            std::vector<QByteArray> states{begun};
            while (undo.redo())
                states.push_back(stored(document));
            // What could still be redone when it ended may lead beyond it.
            ASSERT_TRUE(std::ranges::find(states, ended) != states.end()) << "seed " << seed;
        }
    }
}

} // namespace
} // namespace ridelog
