#include "simulator/RideGenerator.h"
#include "tests/cli/CommandLine.h"

#include <QJsonArray>

namespace ridelog {
namespace {

class ChartCommand : public CommandLine {
protected:
    void SetUp() override { dump = write("ride.odo", RideGenerator{.tours = 2}.dump()); }
    Outcome chart(const QString& words) const
    {
        return run(QStringLiteral("chart %1 2 %2").arg(dump, words));
    }

    QString dump;
};

TEST_F(ChartCommand, DrawsAPictureOfTheTypeThatItsNameSays)
{
    for (const auto* name : {"a.png", "a.jpg", "a.svg", "a.pdf"}) {
        const auto outcome = chart(QStringLiteral("--y altitude,speed,pulse --x time -o ") + path(name));
        EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
        EXPECT_TRUE(outcome.out.isEmpty() && outcome.err.isEmpty());
        EXPECT_GT(read(name).size(), 1000) << name;
    }
    EXPECT_EQ(chart(QStringLiteral("--size 400x200 -o ") + path("small.svg")).status, 0);
    EXPECT_TRUE(read("small.svg").contains("viewBox=\"0 0 400 200\""));
    const auto kilometres = read("small.svg");
    EXPECT_EQ(chart(QStringLiteral("--miles --size 400x200 -o ") + path("small.svg")).status, 0);
    EXPECT_NE(read("small.svg"), kilometres);
}

TEST_F(ChartCommand, TheLayoutIsTheSameEverywhere)
{
    const auto layout = chart(QStringLiteral("--layout-json --y altitude,pulse,speed --size 700x300 "
                                             "--manual-range 100,900"))
                            .json();
    EXPECT_EQ(layout[u"chartOffsetX"].toDouble(), 31);
    EXPECT_EQ(layout[u"chartOffsetY"].toDouble(), 25);
    EXPECT_TRUE(layout[u"draw2ndAxis"].toBool());
    EXPECT_EQ(layout[u"xTics"].toArray().size(), layout[u"xTicCount"].toInt() + 1);
    const auto series = layout[u"series"].toArray();
    ASSERT_EQ(series.size(), 3);
    EXPECT_EQ(series[0][u"minYAxisValue"].toDouble(), 100);
    EXPECT_EQ(series[0][u"maxYAxisValue"].toDouble(), 900);
    EXPECT_EQ(series[0][u"yFactor"].toDouble(), 0.3125);
    EXPECT_EQ(series[0][u"tics"].toArray().first()[u"label"].toString(), QStringLiteral("100"));
    EXPECT_FALSE(series[1].toObject().contains(u"tics")) << "no axis of its own";
    EXPECT_TRUE(series[2].toObject().contains(u"tics"));

    // Labels are for people: in miles, miles per hour and feet at the same places
    const auto imperial =
        chart(QStringLiteral("--miles --layout-json --y altitude,pulse,speed --size 700x300 "
                             "--manual-range 100,900"))
            .json();
    const auto label = [](const QJsonValue& tics, int index) {
        return tics.toArray().at(index)[u"label"].toString();
    };
    const auto toMiles = [](double value) { return QString::number(value * 0.6213712, 'f', 1); };
    EXPECT_EQ(imperial[u"chartOffsetX"].toDouble(), 38) << "room for 2953";
    EXPECT_EQ(label(imperial[u"series"][0][u"tics"], 0), QStringLiteral("328"));
    const auto road = label(layout[u"xTics"], 3).toDouble();
    EXPECT_EQ(label(imperial[u"xTics"], 3), toMiles(road));
    const auto pace = label(series[2][u"tics"], 4).toDouble();
    EXPECT_EQ(label(imperial[u"series"][2][u"tics"], 4), toMiles(pace));
}

TEST_F(ChartCommand, NeverTakesThePlaceOfTours)
{
    const auto recording = write("ride.png", RideGenerator{}.dump());
    EXPECT_EQ(chart(QStringLiteral("-o ") + recording).status, 1);
    EXPECT_EQ(read("ride.png"), RideGenerator{}.dump());
}

TEST_F(ChartCommand, SaysWhatIsWrong)
{
    const auto picture = QStringLiteral("-o ") + path("x.png");
    const std::pair<QString, int> cases[]{
        {QString(), 2},
        {QStringLiteral("-o ") + path("x.gif"), 2},
        {picture + QStringLiteral(" --size 0x100"), 2},
        {picture + QStringLiteral(" --size 99999x100"), 2},
        {picture + QStringLiteral(" --size 100"), 2},
        {picture + QStringLiteral(" --x pulse"), 2},
        {picture + QStringLiteral(" --y altitude,power"), 2},
        {picture + QStringLiteral(" --y altitude,altitude"), 2},
        {picture + QStringLiteral(" --manual-range 9,5"), 2},
        {picture + QStringLiteral(" --manual-range 5"), 2},
        {picture + QStringLiteral(" -platform xcb"), 2},
        {QStringLiteral("-o ") + path("none/x.png"), 3},
    };
    for (const auto& [words, status] : cases) {
        const auto outcome = chart(words);
        EXPECT_EQ(outcome.status, status) << qPrintable(words);
        EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.constData();
    }
    EXPECT_EQ(run(QStringLiteral("chart %1 3 %2").arg(dump, picture)).status, 1);
    EXPECT_EQ(names(), QStringList{QStringLiteral("ride.odo")});
}

} // namespace
} // namespace ridelog
