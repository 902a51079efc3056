#include "platform/UndoManager.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <random>

namespace ridelog {
namespace {

/// Numbers whose setter registers itself with the value that it replaces.
class Numbers {
public:
    explicit Numbers(UndoManager& undo) : _undo(undo) {}

    void set(std::size_t index, int value)
    {
        _undo.registerUndo([this, index, old = _values[index]] { set(index, old); });
        _undo.setActionName(QStringLiteral("set %1").arg(index));
        _values[index] = value;
    }

    /// Registers both directions; the setter's own registration is beside the point then.
    void add(std::size_t index, int amount)
    {
        _undo.registerUndo(
            QStringLiteral("add"), [this, index, amount] { set(index, _values[index] - amount); },
            [this, index, amount] { set(index, _values[index] + amount); });
        _values[index] += amount;
    }

    /// As a command of a window does it: registers its own opposite, then calls a setter that does so too.
    void mark(bool on)
    {
        _undo.registerUndo([this, on] { mark(!on); });
        set(0, on ? 1 : 0);
        _undo.setActionName(QStringLiteral("mark"));
    }

    int at(std::size_t index) const { return _values[index]; }
    const std::vector<int>& values() const { return _values; }

private:
    UndoManager& _undo;
    std::vector<int> _values = std::vector<int>(4);
};

class UndoManagerTest : public testing::Test {
protected:
    void set(std::size_t index, int value)
    {
        numbers.set(index, value);
        undo.closeGroup();
    }

    UndoManager undo;
    Numbers numbers{undo};
};

TEST_F(UndoManagerTest, StartsCleanWithNothingToUndo)
{
    EXPECT_FALSE(undo.canUndo());
    EXPECT_FALSE(undo.canRedo());
    EXPECT_FALSE(undo.undo());
    EXPECT_FALSE(undo.redo());
    EXPECT_TRUE(undo.isClean());
    undo.setActionName(QStringLiteral("nothing"));
    EXPECT_TRUE(undo.undoActionName().isEmpty());
}

TEST_F(UndoManagerTest, InverseCallsAlternate)
{
    set(1, 10);
    set(1, 20);
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(undo.undo());
        EXPECT_EQ(numbers.at(1), 10);
        EXPECT_EQ(undo.redoActionName(), QStringLiteral("set 1"));
        EXPECT_TRUE(undo.undo());
        EXPECT_EQ(numbers.at(1), 0);
        EXPECT_FALSE(undo.undo());
        EXPECT_TRUE(undo.redo());
        EXPECT_TRUE(undo.redo());
        EXPECT_EQ(numbers.at(1), 20);
        EXPECT_FALSE(undo.redo());
    }
}

TEST_F(UndoManagerTest, BothDirectionsIgnoreWhatTheyRegister)
{
    numbers.add(2, 5);
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("add"));
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(undo.undo());
        EXPECT_EQ(numbers.at(2), 0);
        EXPECT_FALSE(undo.canUndo());
        EXPECT_TRUE(undo.redo());
        EXPECT_EQ(numbers.at(2), 5);
    }
}

TEST_F(UndoManagerTest, ACommandAndItsSetterAreOneStep)
{
    numbers.mark(true);
    undo.closeGroup();
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(undo.undoActionName(), QStringLiteral("mark"));
        ASSERT_TRUE(undo.undo());
        EXPECT_EQ(numbers.at(0), 0);
        EXPECT_FALSE(undo.canUndo());
        EXPECT_EQ(undo.redoActionName(), QStringLiteral("mark"));
        ASSERT_TRUE(undo.redo());
        EXPECT_EQ(numbers.at(0), 1);
        EXPECT_FALSE(undo.canRedo());
    }
}

TEST_F(UndoManagerTest, ANewRegistrationGivesUpTheRedo)
{
    set(0, 1);
    undo.undo();
    set(0, 2);
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(numbers.at(0), 0);
}

TEST_F(UndoManagerTest, AGroupIsOneStepInReverseOrder)
{
    std::string order;
    {
        const UndoGroup outer(undo);
        undo.registerUndo([&] { order += 'a'; });
        {
            const UndoGroup inner(undo);
            undo.registerUndo([&] { order += 'b'; });
            undo.registerUndo([&] { order += 'c'; });
        }
        undo.registerUndo([&] { order += 'd'; });
        EXPECT_FALSE(undo.undo()) << "the group is still open";
    }
    EXPECT_TRUE(undo.undo());
    EXPECT_EQ(order, "dcba");
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(UndoManagerTest, AnEmptyGroupLeavesNothingBehind)
{
    set(0, 1);
    undo.undo();
    {
        const UndoGroup group(undo);
        undo.setActionName(QStringLiteral("adding 0 tours"));
    }
    undo.setActionName(QStringLiteral("adding 0 tours"));
    undo.endGroup();
    EXPECT_FALSE(undo.canUndo());
    EXPECT_EQ(undo.redoActionName(), QStringLiteral("set 0")) << "nothing was registered: the redo stands";
    EXPECT_TRUE(undo.isClean());
    undo.registerUndo([] {});
    EXPECT_EQ(undo.undoActionName(), QString());
}

TEST_F(UndoManagerTest, TheEventLoopEndsAGroup)
{
    numbers.set(0, 1);
    numbers.set(1, 1);
    QCoreApplication::processEvents();
    numbers.set(2, 1);
    EXPECT_TRUE(undo.undo());
    EXPECT_EQ(numbers.values(), (std::vector{1, 1, 0, 0}));
    EXPECT_TRUE(undo.undo());
    EXPECT_EQ(numbers.values(), (std::vector{0, 0, 0, 0}));
}

TEST_F(UndoManagerTest, AGroupMayLastSeveralEvents)
{
    undo.beginGroup();
    numbers.set(0, 1);
    QCoreApplication::processEvents();
    numbers.set(1, 1);
    undo.endGroup();
    QCoreApplication::processEvents();
    numbers.set(2, 1);
    undo.undo();
    EXPECT_EQ(numbers.values(), (std::vector{1, 1, 0, 0})) << "it ended with the event of its end";
    undo.undo();
    EXPECT_EQ(numbers.values(), (std::vector{0, 0, 0, 0}));
}

TEST_F(UndoManagerTest, DisabledRegistrationsAreIgnored)
{
    set(0, 1);
    undo.undo();
    undo.disableUndoRegistration();
    undo.disableUndoRegistration();
    undo.enableUndoRegistration();
    set(1, 7);
    EXPECT_FALSE(undo.canUndo());
    EXPECT_TRUE(undo.canRedo());
    EXPECT_TRUE(undo.isClean());
    undo.enableUndoRegistration();
    undo.enableUndoRegistration();
    set(1, 8);
    undo.disableUndoRegistration();
    EXPECT_FALSE(undo.isUndoRegistrationEnabled()) << "one call too many must not count";
    EXPECT_TRUE(undo.canUndo());
}

TEST_F(UndoManagerTest, CleanIsTheSavedStateAndNoOther)
{
    set(0, 1);
    EXPECT_FALSE(undo.isClean());
    numbers.set(0, 2);
    undo.setClean();
    EXPECT_TRUE(undo.isClean());
    numbers.set(0, 3);
    EXPECT_FALSE(undo.isClean()) << "registered by the event that saved";
    undo.undo();
    EXPECT_TRUE(undo.isClean());
    undo.undo();
    EXPECT_FALSE(undo.isClean());
    undo.redo();
    EXPECT_TRUE(undo.isClean());
    undo.redo();
    EXPECT_FALSE(undo.isClean());
    undo.undo();
    undo.undo();
    set(0, 9);
    undo.undo();
    EXPECT_FALSE(undo.isClean());
    undo.redo();
    EXPECT_FALSE(undo.isClean()) << "as many steps from the start as the saved state, yet another one";
    undo.setClean();
    undo.setUnclean();
    set(0, 1);
    undo.undo();
    EXPECT_FALSE(undo.isClean()) << "no step leads there";
}

TEST_F(UndoManagerTest, EachRegistrationAndStepTellsAnotherState)
{
    std::vector<UndoManager::State> told;
    QObject::connect(&undo, &UndoManager::stateChanged, [&] { told.push_back(undo.state()); });
    const auto saved = undo.state();
    undo.beginGroup();
    set(0, 1);
    set(0, 2);
    undo.endGroup();
    EXPECT_TRUE(undo.undo());
    EXPECT_TRUE(undo.redo());
    ASSERT_EQ(told.size(), 4U);
    EXPECT_NE(told[0], told[1]) << "also within a step, which may take several events";
    EXPECT_EQ(told[2], saved);
    EXPECT_EQ(told[3], told[1]);
}

TEST_F(UndoManagerTest, SavingWithinAGroup)
{
    undo.beginGroup();
    numbers.set(0, 1);
    undo.setClean();
    numbers.set(0, 2);
    undo.endGroup();
    EXPECT_FALSE(undo.isClean());
    undo.undo();
    EXPECT_FALSE(undo.isClean());
    undo.redo();
    EXPECT_FALSE(undo.isClean());
}

TEST_F(UndoManagerTest, AStepWithoutInverseCannotBeRedone)
{
    undo.registerUndo([] {});
    undo.closeGroup();
    set(0, 1);
    undo.undo();
    EXPECT_TRUE(undo.canRedo());
    undo.undo();
    EXPECT_FALSE(undo.canRedo());
    EXPECT_TRUE(undo.isClean());
}

TEST_F(UndoManagerTest, UndoWithinUndoIsRefused)
{
    set(0, 1);
    bool nested = true;
    undo.registerUndo([&] { nested = undo.undo(); });
    undo.undo();
    EXPECT_FALSE(nested);
    EXPECT_EQ(numbers.at(0), 1);
}

TEST_F(UndoManagerTest, ForgettingKeepsTheCleanState)
{
    set(0, 1);
    set(0, 2);
    undo.undo();
    undo.removeAllActions();
    EXPECT_FALSE(undo.canUndo());
    EXPECT_FALSE(undo.canRedo());
    EXPECT_FALSE(undo.isClean());
    undo.setClean();
    numbers.set(0, 3);
    undo.undo();
    EXPECT_TRUE(undo.isClean());
}

TEST_F(UndoManagerTest, SignalsTellWhatMenusShow)
{
    int changes = 0;
    std::vector<bool> clean;
    QObject::connect(&undo, &UndoManager::changed, [&] { ++changes; });
    QObject::connect(&undo, &UndoManager::cleanChanged, [&](bool now) {
        EXPECT_EQ(now, undo.isClean());
        clean.push_back(now);
    });
    undo.beginGroup();
    for (int i = 0; i < 1000; ++i)
        numbers.set(0, i);
    undo.endGroup();
    EXPECT_EQ(changes, 2) << "there is a step, it has a name";
    undo.undo();
    EXPECT_EQ(changes, 3);
    undo.setClean();
    undo.redo();
    EXPECT_EQ(changes, 4);
    undo.undo();
    EXPECT_EQ(clean, (std::vector{false, true, false, true}));
}

/// Sixty random calls, then everything redone, undone and redone again.
void playSequence(unsigned seed)
{
    std::mt19937 random(seed);
    const auto pick = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    UndoManager undo;
    Numbers numbers(undo);
    std::vector<int> saved = numbers.values();
    int depth = 0;
    for (int step = 0; step < 60; ++step) {
        const auto index = std::size_t{1} + random() % 3;
        switch (pick(9)) {
        case 0:
        case 1:
            numbers.set(index, pick(100));
            break;
        case 2:
            numbers.add(index, pick(100));
            break;
        case 3:
            numbers.mark(numbers.at(0) == 0);
            break;
        case 4:
            undo.closeGroup();
            break;
        case 5:
            undo.beginGroup();
            ++depth;
            break;
        case 6:
            undo.endGroup();
            depth = std::max(0, depth - 1);
            break;
        case 7:
            EXPECT_TRUE(!undo.undo() || depth == 0);
            break;
        case 8:
            if (pick(2) == 1) {
                EXPECT_TRUE(!undo.redo() || depth == 0);
            } else if (depth == 0) {
                undo.setClean();
                saved = numbers.values();
            }
            break;
        }
        if (undo.isClean()) {
            EXPECT_EQ(numbers.values(), saved);
        }
    }
    for (; depth > 0; --depth)
        undo.endGroup();
    while (undo.canRedo())
        ASSERT_TRUE(undo.redo());

    const auto end = numbers.values();
    std::vector<std::vector<int>> passed;
    while (undo.canUndo()) {
        passed.push_back(numbers.values());
        ASSERT_TRUE(undo.undo());
    }
    EXPECT_EQ(numbers.values(), std::vector<int>(4));
    for (; undo.canRedo(); passed.pop_back()) {
        ASSERT_TRUE(undo.redo());
        ASSERT_FALSE(passed.empty());
        EXPECT_EQ(numbers.values(), passed.back());
    }
    EXPECT_TRUE(passed.empty());
    EXPECT_EQ(numbers.values(), end);
}

TEST(UndoSequences, UndoneIsTheStartRedoneIsTheEnd)
{
    for (unsigned seed = 0; seed < 500 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        playSequence(seed);
    }
}

} // namespace
} // namespace ridelog
