#include "cli/ChartLayoutJson.h"

#include "platform/JsonWriter.h"

#include <optional>

namespace ridelog {
namespace {

/// None for an axis without extent.
std::optional<float> factor(float value)
{
    return value == 0 ? std::nullopt : std::optional(value);
}

void writeTics(JsonWriter& json, QStringView name, QStringView position,
               const std::vector<ChartScaling::Tic>& tics)
{
    json.key(name);
    json.beginArray();
    for (const auto& tic : tics) {
        json.beginObject();
        json.entry(position, tic.position);
        json.entry(u"label", tic.label);
        json.endObject();
    }
    json.endArray();
}

} // namespace

void writeChartLayout(JsonWriter& json, const ChartScaling::Chart& chart)
{
    ChartScaling scaling(chart);
    scaling.calcValues();
    scaling.calcXAxis();
    json.beginObject();
    json.entry(u"chartOffsetX", scaling.chartOffsetX());
    json.entry(u"2ndChartOffsetX", scaling.secondChartOffsetX());
    json.entry(u"chartOffsetY", scaling.plotBottom());
    json.entry(u"draw2ndAxis", scaling.draw2ndAxis());
    json.entry(u"xFactor", factor(scaling.xFactor()));
    json.entry(u"maxXAxisValue", scaling.maxXAxisValue());
    json.entry(u"majorXTicDistance", scaling.majorXTicDistance());
    json.entry(u"xTicCount", scaling.xTicCount());
    writeTics(json, u"xTics", u"x", scaling.xTics());
    json.key(u"series");
    json.beginArray();
    for (qsizetype series = 0; series < chart.showNames.size(); ++series) {
        scaling.calcYAxisForName(chart.showNames[series]);
        json.beginObject();
        json.entry(u"name", chart.showNames[series]);
        json.entry(u"minYAxisValue", scaling.minYAxisValue());
        json.entry(u"maxYAxisValue", scaling.maxYAxisValue());
        json.entry(u"yFactor", factor(scaling.yFactor()));
        const bool isSecond = scaling.isOn2ndAxis(series);
        if (series == 0 || isSecond)
            writeTics(json, u"tics", u"y", scaling.yTics(isSecond));
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

} // namespace ridelog
