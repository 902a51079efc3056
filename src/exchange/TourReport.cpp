#include "exchange/TourReport.h"

#include "exchange/DescriptionHtml.h"
#include "exchange/ReadoutHtml.h"
#include "exchange/SeriesSvg.h"
#include "exchange/TourSummary.h"
#include "exchange/TourTexts.h"

#include <QCoreApplication>

namespace ridelog {
namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("TourReport", text);
}

QByteArray paragraph(const char* cssClass, const QString& text)
{
    return QByteArray("<p class=\"") + cssClass + "\">" + escaped(text) + "</p>\n";
}

QByteArray chartHtml(const OdoTour& tour, const Defaults& defaults, Readouts readouts)
{
    if (tour.data().size() < 2)
        return paragraph("note", translated(QT_TRANSLATE_NOOP("TourReport", "The tour has no samples.")));
    const bool hasReadout = readouts == Readouts::some;
    const auto readout = hasReadout ? readoutHtml(tour, defaults) : QByteArray();
    return "<figure class=\"tour\">\n" + readout + "<div class=\"scroll\">\n" +
           seriesSvg(tour, defaults, hasReadout ? " tabindex=\"0\"" : "") + "</div>\n</figure>\n";
}

/// What the tour does not have is left out.
QByteArray summaryHtml(const OdoTour& tour, const Defaults& defaults)
{
    QByteArray html("<div class=\"summary\">\n");
    for (const auto& group : tourSummary(tour, defaults)) {
        QByteArray values;
        for (const auto& value : group.values) {
            if (!value.text.isEmpty())
                values += namedValue(value.name, value.text);
        }
        if (!values.isEmpty())
            html += "<div class=\"group\">\n<h3>" + escaped(group.name) + "</h3>\n<dl>\n" + values +
                    "</dl>\n</div>\n";
    }
    return html + "</div>\n";
}

bool hasTitle(const OdoTour& tour)
{
    return !tour.shownTitle().trimmed().isEmpty();
}

} // namespace

QString reportHeading(const OdoTour& tour)
{
    return hasTitle(tour) ? tour.shownTitle() : startAndType(tour);
}

QByteArray tourReport(const OdoTour& tour, const Defaults& defaults, Readouts readouts)
{
    QByteArray html;
    if (hasTitle(tour))
        html += paragraph("when", startAndType(tour));
    if (tour.removed())
        html += paragraph(
            "note", translated(QT_TRANSLATE_NOOP("TourReport", "This tour is removed from its document.")));
    html += chartHtml(tour, defaults, readouts) + summaryHtml(tour, defaults);
    if (!tour.shownDescription().isEmpty())
        html += "<div class=\"description\">\n" + descriptionHtml(tour.tourDescription()) + "</div>\n";
    return html;
}

} // namespace ridelog
