// The program on a desktop, with the keys and the mouse of a rider.

#include "tests/app/OnDesktop.h"

#include <QDirIterator>

namespace ridelog {
namespace {

// Places in the main window: the header of the first column, and the row below it.
constexpr QPoint dateHeader(60, 58);
constexpr QPoint firstRow(60, 80);

TEST_F(OnDesktop, SavesWhatTheDeviceSends)
{
    start({QStringLiteral("--simulated-device"), demo});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    desktop.press("ctrl+t");
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    desktop.press("ctrl+s");
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    EXPECT_EQ(saved().size(), 9 + 8);
}

TEST_F(OnDesktop, SortsByAClickOnAHeader)
{
    start({demo});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    desktop.click(dateHeader);
    desktop.click(firstRow);
    desktop.press("F2");
    desktop.type("oldest");
    desktop.press("Return");
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    desktop.press("ctrl+s");
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    EXPECT_EQ(saved().indexOf(QStringLiteral("oldest")), 8);
}

TEST_F(OnDesktop, AsksBeforeItClosesAndKnowsItsPlace)
{
    const QRect frame(150, 100, 900, 600);
    start({demo, dump()});
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    desktop.setFrame(frame);
    ASSERT_TRUE(eventually([&] { return desktop.frame() == frame; }));
    desktop.press("alt+F4");
    ASSERT_TRUE(isInFront("ridelog"));
    desktop.press("Escape");
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    EXPECT_EQ(saved().size(), 9);
    desktop.press("alt+F4");
    ASSERT_TRUE(isInFront("ridelog"));
    desktop.press("Return");
    ASSERT_TRUE(program->waitForFinished());
    EXPECT_EQ(program->exitCode(), 0);
    EXPECT_EQ(saved().size(), 9 + 5);
    start({});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    EXPECT_TRUE(eventually([&] { return desktop.frame() == frame; }));
}

TEST_F(OnDesktop, RecoversWhatACrashLeft)
{
    start({demo, dump()});
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    const auto isKept = [this] {
        return QDirIterator(path(), {QStringLiteral("recovery.json")}, QDir::Files,
                            QDirIterator::Subdirectories)
            .hasNext();
    };
    ASSERT_TRUE(eventually(isKept));
    end();
    EXPECT_EQ(saved().size(), 9);
    start({demo});
    ASSERT_TRUE(isInFront("ridelog"));
    desktop.press("alt+r");
    ASSERT_TRUE(isInFront("Demo* — ridelog"));
    desktop.press("ctrl+s");
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    EXPECT_EQ(saved().size(), 9 + 5);
    EXPECT_FALSE(isKept());
}

} // namespace
} // namespace ridelog
