// The pictures of the manual.

#include "simulator/DeviceSimulator.h"
#include "simulator/RideGenerator.h"
#include "tests/app/OnDesktop.h"

#include <QDir>

#include <algorithm>
#include <cstdlib>

namespace ridelog {
namespace {

/// What a dark desktop says of its colours.
const char darkColours[] = R"([Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
ForegroundInactive=161,169,177
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
)";

/// The pictures of the manual are those of this build. With RIDELOG_UPDATE_PICTURES they become so.
class Pictures : public OnDesktop {
protected:
    /// What the program finds as settings of an earlier run.
    void setUp(const QByteArray& settings)
    {
        QDir(path()).mkpath(QStringLiteral("ridelog"));
        write("ridelog/ridelog.ini", "[General]\n" + settings);
    }
    /// How much the two differ where they do most, from 0 to 255. Places are as large as a letter or two, so
    /// that a word, a button or a column that is missing counts, and the edges of letters do not.
    static int difference(const QImage& one, const QImage& other)
    {
        if (one.size() != other.size())
            return 255;
        const auto coarse = [](const QImage& image) {
            return image.scaled(image.size() / 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB888);
        };
        const auto a = coarse(one);
        const auto b = coarse(other);
        int largest = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width() * 3; ++x)
                largest = std::max(largest, std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
        }
        return largest;
    }
    /// Takes the picture of the window in front once it stays as it is.
    void take(const QString& name, QSize size = {1280, 720})
    {
        const QRect frame(QPoint(20, 40), size);
        desktop.setFrame(frame);
        ASSERT_TRUE(eventually([&] { return desktop.frame() == frame; }));
        desktop.moveMouseTo(corner);

        const QString manual = QStringLiteral(RIDELOG_SOURCE "/docs/manual/pictures/") + name;
        const bool isUpdate = qEnvironmentVariableIsSet("RIDELOG_UPDATE_PICTURES");
        const QImage wanted(manual);
        QImage taken;
        QElapsedTimer unchanged;
        const bool isThere = eventually([&] {
            const auto now = desktop.picture().copy(frame);
            if (now != taken)
                unchanged.start();
            taken = now;
            return unchanged.hasExpired(500) && (isUpdate || difference(taken, wanted) <= limit);
        });
        const QDir folder(QStringLiteral(RIDELOG_PICTURES));
        EXPECT_TRUE(folder.mkpath(QStringLiteral(".")) && taken.save(folder.filePath(name)));
        EXPECT_TRUE(isThere) << qPrintable(folder.filePath(name)) << " differs from the manual's picture by "
                             << difference(taken, wanted) << "; see CONTRIBUTING.md";
        // As small as PNG makes it: all of them are in the program.
        EXPECT_TRUE(!isUpdate || taken.save(manual, "PNG", 0));
        EXPECT_LE(QFileInfo(folder.filePath(name)).size(), 250'000);
    }

    static constexpr int limit = 20;
    static constexpr QPoint corner{Desktop::size.width() - 1, Desktop::size.height() - 1};
    /// Of one that has these colours.
    const QStringList darkDesktop{QStringLiteral("XDG_CURRENT_DESKTOP=KDE"),
                                  QStringLiteral("KDE_SESSION_VERSION=5")};
};

TEST_F(Pictures, MainWindow)
{
    const auto edit = [this](const char* tour, const char* title) {
        cli({QStringLiteral("edit"), demo, QString::fromLatin1(tour), QStringLiteral("--title"),
             QString::fromLatin1(title)});
    };
    edit("2", "Over the pass");
    edit("4", "Three lakes");
    edit("8", "First snow");
    setUp("drawerOpen=false\nselectedRow=1\n");
    start({demo});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    take(QStringLiteral("main-window.png"));
    end();

    write("kdeglobals", darkColours);
    start({demo}, darkDesktop);
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    take(QStringLiteral("main-window-dark.png"));
}

TEST_F(Pictures, TourWindow)
{
    cli({QStringLiteral("edit"), demo, QStringLiteral("2"), QStringLiteral("--title"),
         QStringLiteral("Over the pass"), QStringLiteral("--description"),
         QStringLiteral("Fog until the hut, then sun on the whole way down.")});
    const auto show = [this](const QByteArray& settings, const char* axis, const QStringList& variables,
                             const QString& name) {
        setUp("drawerOpen=false\nselectedRow=1\n" + settings);
        start({demo}, variables);
        ASSERT_TRUE(isInFront("Demo — ridelog"));
        // Out of the chart, whose values it would read.
        desktop.moveMouseTo(corner);
        desktop.press("Return");
        ASSERT_TRUE(eventually([this] { return desktop.title().contains(QStringLiteral("Over the pass")); }));
        for (const auto* keys : {axis, "ctrl+4", "ctrl+5", "ctrl+d", "ctrl+shift+d", "End", "Prior", "Prior"})
            desktop.press(keys);
        take(name, {1280, 840});
        end();
    };
    show({}, "ctrl+1", {}, QStringLiteral("tour-window.png"));
    show("useMiles=true\n", "ctrl+2", {}, QStringLiteral("tour-window-miles.png"));
    write("kdeglobals", darkColours);
    show({}, "ctrl+2", darkDesktop, QStringLiteral("tour-window-dark.png"));
}

TEST_F(Pictures, Statistics)
{
    const auto show = [this](const QByteArray& settings, const char* quantity, const QStringList& variables,
                             const QString& name) {
        setUp("drawerOpen=false\nodoStatDate=2007-08-15T12:00:00+02:00\nstatTabViewIdentifier=2\n" +
              settings);
        start({demo}, variables);
        ASSERT_TRUE(isInFront("Demo — ridelog"));
        // Out of the chart, whose bars it would read.
        desktop.moveMouseTo(corner);
        desktop.press("ctrl+shift+t");
        ASSERT_TRUE(isInFront("Statistics – Demo — ridelog"));
        desktop.press(quantity);
        take(name, {960, 560});
        end();
    };
    show({}, "ctrl+5", {}, QStringLiteral("statistics.png"));
    write("kdeglobals", darkColours);
    show("useMiles=true\n", "ctrl+7", darkDesktop, QStringLiteral("statistics-dark.png"));
}

TEST_F(Pictures, Preferences)
{
    const auto show = [this](const QStringList& variables) {
        setUp("drawerOpen=false\nuseManualRange=true\n");
        start({demo}, variables);
        ASSERT_TRUE(isInFront("Demo — ridelog"));
        desktop.press("ctrl+comma");
        ASSERT_TRUE(isInFront("Preferences — ridelog"));
    };
    const auto takePage = [this](const char* keys, const char* name) {
        desktop.press(keys);
        take(QString::fromLatin1(name), {480, 360});
    };
    show({});
    takePage("alt+g", "preferences-general.png");
    takePage("alt+c", "preferences-chart.png");
    takePage("alt+p", "preferences-pulse.png");
    takePage("alt+v", "preferences-device.png");
    end();
    write("kdeglobals", darkColours);
    show(darkDesktop);
    takePage("alt+c", "preferences-dark.png");
}

TEST_F(Pictures, EmptyDocument)
{
    setUp("drawerOpen=false\n");
    start({});
    ASSERT_TRUE(isInFront("Untitled — ridelog"));
    take(QStringLiteral("empty-document.png"));
}

TEST_F(Pictures, SimulatedDevice)
{
    setUp("drawerOpen=false\n");
    start({});
    ASSERT_TRUE(isInFront("Untitled — ridelog"));
    desktop.press("ctrl+shift+d");
    take(QStringLiteral("simulated-device.png"), {960, 480});
}

TEST_F(Pictures, Export)
{
    setUp("drawerOpen=false\nexportFolder=/home/rider/diary\n");
    start({demo});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    desktop.press("ctrl+e");
    ASSERT_TRUE(isInFront("Export — ridelog"));
    take(QStringLiteral("export.png"), {520, 180});
}

TEST_F(Pictures, ManualWindow)
{
    const auto show = [this](const QStringList& variables, const QString& name) {
        setUp("drawerOpen=false\n");
        start({demo}, variables);
        ASSERT_TRUE(isInFront("Demo — ridelog"));
        desktop.press("ctrl+comma");
        ASSERT_TRUE(isInFront("Preferences — ridelog"));
        desktop.press("alt+p");
        desktop.press("F1");
        ASSERT_TRUE(isInFront("Manual — ridelog"));
        take(name, {800, 560});
        end();
    };
    show({}, QStringLiteral("manual-window.png"));
    write("kdeglobals", darkColours);
    show(darkDesktop, QStringLiteral("manual-window-dark.png"));
}

TEST_F(Pictures, Transfer)
{
    // It stops half way, so that there is time for a picture.
    DeviceSimulator device({.dump = RideGenerator().dump(), .speed = 10, .fault = Fault::silence});
    ASSERT_EQ(device.start(), std::nullopt);
    setUp("drawerOpen=true\nselectedInterfacePort=" + device.path().toLatin1() + '\n');
    start({demo}, {QStringLiteral("RIDELOG_PORTS=") + device.path()});
    ASSERT_TRUE(isInFront("Demo — ridelog"));
    desktop.press("ctrl+t");
    take(QStringLiteral("transfer.png"));
}

} // namespace
} // namespace ridelog
