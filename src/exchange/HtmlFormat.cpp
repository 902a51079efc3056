#include "exchange/HtmlFormat.h"

#include "exchange/HtmlPage.h"
#include "exchange/PeriodReport.h"
#include "exchange/TourReport.h"

#include <QCoreApplication>

namespace ridelog {

QString HtmlFormat::name() const
{
    return QStringLiteral("html");
}

QString HtmlFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "Report for the browser (HTML)");
}

QString HtmlFormat::ending() const
{
    return QStringLiteral("html");
}

void HtmlFormat::write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const
{
    if (tours.size() > 1 || source.period) {
        writePeriodReport(tours, source, _defaults, sink);
        return;
    }
    const auto& tour = *tours.front();
    const auto heading = reportHeading(tour);
    sink.write(pageBegin(heading, _defaults) + "<h1>" + escaped(heading) + "</h1>\n" +
               tourReport(tour, _defaults, Readouts::some));
    if (sink.tourDone())
        sink.write(pageEnd(Readouts::some));
}

} // namespace ridelog
