#include "exchange/PeriodReport.h"

#include "exchange/BarsSvg.h"
#include "exchange/HtmlPage.h"
#include "exchange/StatValues.h"
#include "exchange/TourReport.h"
#include "exchange/TourSummary.h"
#include "exchange/TourTexts.h"
#include "format/ReadableUnits.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace ridelog {
namespace {

/// In reports of more tours charts do not tell the values under the mouse: their texts would make three
/// quarters of a page that browsers can hardly hold then. The lines have all points nevertheless.
constexpr std::size_t mostReadouts = 100;

struct PeriodReport {
    Q_DECLARE_TR_FUNCTIONS(PeriodReport)
};

QByteArray linkTo(const QByteArray& anchor, const QByteArray& html)
{
    return "<a href=\"#" + anchor + "\">" + html + "</a>";
}

QByteArray anchorOf(std::size_t tour)
{
    return "tour-" + QByteArray::number(tour + 1);
}

/// The period, or the source where that is all tours.
QString titleOf(const ExportSource& source)
{
    if (source.period && source.period->period != Period::all)
        return periodTitle(source.period->period, source.period->day, source.period->weekRule, QLocale());
    return source.name.trimmed().isEmpty() ? PeriodReport::tr("Tours") : source.name;
}

/// "spring, 12 tours, 3/10/2007 – 5/2/2007"
QString subtitleOf(const Tours& tours, const ExportSource& source)
{
    QStringList parts;
    if (titleOf(source) != source.name && !source.name.trimmed().isEmpty())
        parts << source.name;
    parts << PeriodReport::tr("%Ln tour(s)", nullptr, static_cast<int>(tours.size()));
    const auto day = [](const auto& tour) { return tour->date().date(); };
    const auto [first, last] = std::ranges::minmax(tours, {}, day);
    const auto text = [&](const auto& tour) { return QLocale().toString(day(tour), shortDateFormat()); };
    parts << (day(first) == day(last) ? text(first) : QStringLiteral("%1 – %2").arg(text(first), text(last)));
    return parts.join(QStringLiteral(", "));
}

/// What the tours add up to.
class Totals {
public:
    Totals(const Tours& tours, const ExportSource& source, const Defaults& defaults)
        : _defaults(defaults),
          _period(source.period ? source.period->period : Period::all),
          _stat(source.period ? source.period->weekRule : WeekRule(),
                noonOf(source.period ? source.period->day : tours.front()->date().date()))
    {
        _stat.setToursArray(tours);
    }

    QByteArray html() { return valuesHtml() + barsHtml(); }

private:
    /// A time that no change of the clocks skips.
    static QDateTime noonOf(QDate day) { return QDateTime(day, QTime(12, 0), Qt::UTC); }

    QByteArray valuesHtml()
    {
        QByteArray html("<div class=\"summary\">\n<dl>\n");
        for (const auto& value : statValues(_stat, _period, _defaults)) {
            if (!value.text.isEmpty())
                html += namedValue(value.name, value.text);
        }
        html += "</dl>\n</div>\n";
        const auto& tours = _stat.toursArray();
        if (std::ranges::any_of(tours, [](const auto& tour) { return tour->removed(); }))
            html +=
                "<p class=\"note\">" + escaped(PeriodReport::tr("Removed tours are not counted.")) + "</p>\n";
        return html;
    }

    QByteArray barsHtml()
    {
        auto period = _period;
        auto parts = partsOf(period, _stat);
        // One bar tells nothing. The months of an only year do.
        if (period == Period::all && parts.size() == 1) {
            period = Period::year;
            _stat.setDate(noonOf(parts.front().firstDay));
            parts = partsOf(period, _stat);
        }
        if (parts.empty())
            return {};
        QByteArray html("<div class=\"bars\">\n");
        for (const auto quantity : {StatQuantity::distance, StatQuantity::elevationGain})
            html += barsSvg(period, parts, quantity, _defaults);
        return html + "</div>\n";
    }

    const Defaults& _defaults;
    Period _period;
    OdoStat _stat;
};

/// The tours as a table, a line for each.
class TourTable {
public:
    TourTable(const Tours& tours, const Defaults& defaults)
        : _tours(tours), _defaults(defaults), _hasTitles(std::ranges::any_of(tours, [](const auto& tour) {
              return !tour->shownTitle().isEmpty();
          }))
    {
    }

    void write(const ExportSink& sink) const
    {
        sink.write("<h2 id=\"tours\">" + escaped(PeriodReport::tr("Tours")) +
                   "</h2>\n<div class=\"scroll\">\n<table>\n<thead><tr>" + header() +
                   "</tr></thead>\n<tbody>\n");
        for (std::size_t index = 0; index < _tours.size(); ++index)
            sink.write("<tr>" + row(index) + "</tr>\n");
        sink.write("</tbody>\n</table>\n</div>\n");
    }

private:
    QByteArray header() const
    {
        QByteArray html;
        const auto add = [&html](const QString& name, const char* cssClass = "") {
            html += QByteArray("<th scope=\"col\"") + cssClass + ">" + escaped(name) + "</th>";
        };
        const char* text = " class=\"text\"";
        const auto unit = ReadableUnits(_defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit();
        add(PeriodReport::tr("Start"), text);
        add(PeriodReport::tr("Type"), text);
        if (_hasTitles)
            add(PeriodReport::tr("Title"), text);
        add(PeriodReport::tr("Distance"));
        add(PeriodReport::tr("Duration"));
        add(PeriodReport::tr("Elevation gain (%1)").arg(unit));
        add(PeriodReport::tr("Average speed"));
        add(PeriodReport::tr("Highest speed"));
        add(PeriodReport::tr("Average pulse"));
        return html;
    }

    QByteArray row(std::size_t index) const
    {
        const auto& tour = *_tours[index];
        const QLocale locale;
        auto start = locale.toString(tour.date().date(), shortDateFormat()) + u' ' +
                     locale.toString(tour.date().time(), QLocale::ShortFormat);
        auto html = "<td class=\"text\">" + linkTo(anchorOf(index), escaped(start));
        if (tour.removed())
            html += ' ' + escaped(PeriodReport::tr("(removed)"));
        html += "</td><td class=\"text\">" + escaped(tour.type().value_or(QString())) + "</td>";
        if (_hasTitles)
            html += "<td class=\"text title\">" + escaped(tour.shownTitle()) + "</td>";
        const auto summary = tourSummary(tour, _defaults);
        for (const char* key : {"distance", "duration", "elevationGain", "avgSpeed", "maxSpeed", "avgPulse"})
            html += "<td>" + escaped(textOf(summary, QLatin1StringView(key))) + "</td>";
        return html;
    }

    static QString textOf(const std::vector<SummaryGroup>& summary, QLatin1StringView key)
    {
        for (const auto& group : summary) {
            for (const auto& value : group.values) {
                if (value.key == key)
                    return value.text;
            }
        }
        return {};
    }

    const Tours& _tours;
    const Defaults& _defaults;
    bool _hasTitles;
};

/// The tour by its number in the report, from 0.
QByteArray sectionHtml(const OdoTour& tour, std::size_t index, const Defaults& defaults, Readouts readouts)
{
    const auto back = escaped(PeriodReport::tr("Back to the list of tours"));
    return "<section class=\"tour\" id=\"" + anchorOf(index) + "\">\n<h2>" + escaped(reportHeading(tour)) +
           "</h2>\n" + tourReport(tour, defaults, readouts) + "<p class=\"back\">" + linkTo("tours", back) +
           "</p>\n</section>\n";
}

} // namespace

void writePeriodReport(const Tours& tours, const ExportSource& source, const Defaults& defaults,
                       const ExportSink& sink)
{
    const auto readouts = tours.size() > mostReadouts ? Readouts::none : Readouts::some;
    const auto title = titleOf(source);
    sink.write(pageBegin(title, defaults) + "<h1>" + escaped(title) + "</h1>\n<p class=\"when\">" +
               escaped(subtitleOf(tours, source)) + "</p>\n" + Totals(tours, source, defaults).html());
    TourTable(tours, defaults).write(sink);
    for (std::size_t index = 0; index < tours.size(); ++index) {
        sink.write(sectionHtml(*tours[index], index, defaults, readouts));
        if (!sink.tourDone())
            return;
    }
    sink.write(pageEnd(readouts));
}

} // namespace ridelog
