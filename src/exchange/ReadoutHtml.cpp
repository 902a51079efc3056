#include "exchange/ReadoutHtml.h"

#include "exchange/HtmlPage.h"
#include "exchange/RecordedValues.h"
#include "exchange/SampleTexts.h"
#include "model/OdoTour.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <vector>

namespace ridelog {
namespace {

constexpr qsizetype usualText = 12; ///< bytes of a text in the page

std::vector<SampleColumn> columnsOf(const OdoTour& tour)
{
    std::vector<SampleColumn> columns{SampleColumn::time, SampleColumn::distance, SampleColumn::altitude,
                                      SampleColumn::speed};
    if (hasPulse(tour))
        columns.push_back(SampleColumn::pulse);
    columns.insert(columns.end(), {SampleColumn::grade, SampleColumn::power});
    if (hasTemperature(tour))
        columns.push_back(SampleColumn::temperature);
    if (hasCadence(tour))
        columns.push_back(SampleColumn::cadence);
    return columns;
}

/// A text as what stands between the quotation marks of JSON that a page can hold.
QByteArray jsonText(const QString& text)
{
    constexpr QByteArrayView markup("\\\"<>&"); // the first is what the others become
    auto plain = text.toUtf8();
    // Texts of values hardly ever have any of it.
    if (std::ranges::any_of(plain, [&](char character) { return markup.contains(character); })) {
        for (const char character : markup)
            plain.replace(character, "\\u00" + QByteArray::number(character, 16));
    }
    return plain;
}

/// The texts of a column. Most values come again and again: the text of each is made once.
template <typename Value>
QByteArray textsOf(const OdoTour& tour, const SampleTexts& texts, SampleColumn column,
                   Value SeriesEntry::*value)
{
    constexpr QByteArrayView between("\",\"");
    QHash<Value, QByteArray> made;
    QByteArray json;
    json.reserve(static_cast<qsizetype>(tour.data().size()) * usualText);
    json += "[\"";
    for (const auto& entry : tour.data()) {
        auto& text = made[entry.*value];
        if (text.isEmpty()) {
            const bool isMissing = column == SampleColumn::pulse && !recordedPulse(entry.pulse);
            text = jsonText(isMissing ? QStringLiteral("–") : texts.text(column, entry));
        }
        json += text;
        json += between;
    }
    json.chop(between.size());
    return json + "\"]";
}

QByteArray textsOf(const OdoTour& tour, const SampleTexts& texts, SampleColumn column)
{
    const auto of = [&](auto value) { return textsOf(tour, texts, column, value); };
    switch (column) {
    case SampleColumn::time:
        return of(&SeriesEntry::time);
    case SampleColumn::distance:
        return of(&SeriesEntry::distance);
    case SampleColumn::altitude:
        return of(&SeriesEntry::altitude);
    case SampleColumn::speed:
        return of(&SeriesEntry::speed);
    case SampleColumn::pulse:
        return of(&SeriesEntry::pulse);
    case SampleColumn::power:
        return of(&SeriesEntry::power);
    case SampleColumn::grade:
        return of(&SeriesEntry::climbingPercentage);
    case SampleColumn::temperature:
        return of(&SeriesEntry::temperature);
    case SampleColumn::cadence:
        return of(&SeriesEntry::cadence);
    }
    return {};
}

QByteArray jsonOf(const OdoTour& tour, const SampleTexts& texts, const std::vector<SampleColumn>& columns)
{
    QByteArray json("[");
    for (const auto column : columns)
        json += textsOf(tour, texts, column) + ",\n";
    json.chop(2);
    return json + ']';
}

} // namespace

QByteArray readoutHtml(const OdoTour& tour, const Defaults& defaults)
{
    const SampleTexts texts(defaults);
    const auto columns = columnsOf(tour);
    QByteArray html("<p class=\"hint\" hidden=\"\">");
    html += escaped(QCoreApplication::translate(
        "ReadoutHtml", "Point at the chart, or use the arrow keys in it, to see the values there."));
    html += "</p>\n<dl class=\"readout\" hidden=\"\">\n";
    for (const auto column : columns)
        html += namedValue(texts.name(column), {});
    return html + "</dl>\n<script type=\"application/json\">" + jsonOf(tour, texts, columns) + "</script>\n";
}

} // namespace ridelog
