// How long three series of 12,000 values take to become a picture, against Qt Charts drawing the same lines
// into the same kind of picture (its scene built once, outside of what is timed); and how the time grows with
// the number of values.

#include "bench/RatioReport.h"
#include "chart/ChartDrawing.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "platform/Log.h"
#include "tests/support/ChartData.h"

#include <QApplication>
#include <QChart>
#include <QGraphicsScene>
#include <QImage>
#include <QLineSeries>
#include <QPainter>
#include <QValueAxis>

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

using namespace ridelog;
using namespace ridelog::SeriesNames;

constexpr double promisedRatio = 1.0 / 4;
constexpr QSize pictureSize(1600, 800);
constexpr int usualCount = 12'000;

/// Hills, speeds and pulses as on a long tour: no two neighbours are alike.
ChartData ride(int count)
{
    std::vector<float> x;
    std::map<QString, std::vector<float>> y;
    for (int i = 0; i < count; ++i) {
        const auto part = static_cast<float>(i) / static_cast<float>(count);
        const auto noise = [i](int step, int range) {
            return static_cast<float>(static_cast<std::int64_t>(i) * step % range);
        };
        x.push_back(part * 400);
        y[altitude].push_back(700 + 300 * std::sin(part * 40) + noise(7919, 23));
        y[speed].push_back(25 + 15 * std::sin(part * 300) + noise(31, 7));
        y[pulse].push_back(140 + 20 * std::sin(part * 170) + noise(104'729, 11));
    }
    return {x, QMap<QString, std::vector<float>>(y)};
}

void draw(QImage& picture, const NamedXYChartArray& data, const Defaults& defaults)
{
    const auto formatterX = UnitFormatters::chartXAxis(defaults);
    const auto formatterY = UnitFormatters::chartYAxis(defaults, altitude);
    QPainter painter(&picture);
    ChartDrawing(painter,
                 {.dataProvider = &data,
                  .showNames = {altitude, speed, pulse},
                  .width = static_cast<float>(pictureSize.width()),
                  .height = static_cast<float>(pictureSize.height()),
                  .settings = ChartSettings::fromDefaults(defaults),
                  .formatterForXAxis = &formatterX,
                  .formatterForYAxis = &formatterY,
                  .measure = chartLabelMeasure()},
                 std::nullopt)
        .draw();
}

void OurChart(benchmark::State& state)
{
    Defaults defaults{QString()};
    DefaultsKeys::registerApplicationDefaults(defaults);
    const auto data = ride(static_cast<int>(state.range(0)));
    QImage picture(pictureSize, QImage::Format_RGB32);
    for (auto _ : state) {
        draw(picture, data, defaults);
        benchmark::DoNotOptimize(picture.constBits());
    }
}
BENCHMARK(OurChart)
    ->Arg(usualCount)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Repetitions(7)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);

void QtChart(benchmark::State& state)
{
    const auto data = ride(usualCount);
    const auto xValues = data.xValues();
    QGraphicsScene scene;
    auto* chart = new QChart;
    scene.addItem(chart);
    chart->resize(pictureSize);
    chart->legend()->hide();
    auto* xAxis = new QValueAxis;
    xAxis->setRange(0, 400);
    chart->addAxis(xAxis, Qt::AlignBottom);
    // Each over the range that it has in our chart, so that as much is painted.
    struct Line {
        QString name;
        Qt::GlobalColor color;
        double bottom;
        double top;
        Qt::Alignment side;
    };
    for (const auto& [name, color, bottom, top, side] : {Line{altitude, Qt::blue, 400, 1030, Qt::AlignLeft},
                                                         {speed, Qt::green, 0, 50, Qt::AlignRight},
                                                         {pulse, Qt::gray, 0, 170, Qt::AlignRight}}) {
        auto* series = new QLineSeries;
        QList<QPointF> points;
        const auto values = data.yValuesForName(name);
        for (std::size_t i = 0; i < values.size(); ++i)
            points.append({xValues[i], values[i]});
        series->replace(points);
        series->setPen(QPen(color, 1));
        chart->addSeries(series);
        auto* yAxis = new QValueAxis;
        yAxis->setRange(bottom, top);
        yAxis->setVisible(name != pulse);
        chart->addAxis(yAxis, side);
        series->attachAxis(xAxis);
        series->attachAxis(yAxis);
    }
    QCoreApplication::processEvents();
    QImage picture(pictureSize, QImage::Format_RGB32);
    for (auto _ : state) {
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        scene.render(&painter, QRectF(QPointF(), pictureSize), QRectF(QPointF(), pictureSize));
        painter.end();
        benchmark::DoNotOptimize(picture.constBits());
    }
}
BENCHMARK(QtChart)->Repetitions(7)->ReportAggregatesOnly()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    setLogLevel(LogLevel::none);
    RatioReport report(argc, argv);
    report.run();
    const auto ratio = report.ratioOf("OurChart/12000", "QtChart", promisedRatio);
    return ratio <= promisedRatio ? 0 : 1;
}
