#include "exchange/JsonFormat.h"

#include "exchange/TourJson.h"
#include "platform/SinkDevice.h"

#include <QCoreApplication>

namespace ridelog {

QString JsonFormat::name() const
{
    return QStringLiteral("json");
}

QString JsonFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "All values, for programs (JSON)");
}

QString JsonFormat::ending() const
{
    return QStringLiteral("json");
}

void JsonFormat::write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const
{
    SinkDevice device(sink.bytes());
    JsonWriter json(device);
    beginTourList(json, source.generalData);
    for (const auto& tour : tours) {
        writeTour(json, *tour, source.numbers.value(tour.get(), 1), {.series = true});
        if (!sink.tourDone())
            return;
    }
    endTourList(json);
    json.finish();
}

} // namespace ridelog
