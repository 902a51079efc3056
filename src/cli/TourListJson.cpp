#include "cli/TourListJson.h"

#include <QCommandLineParser>

namespace ridelog {
namespace {

const QString jsonName = QStringLiteral("json");
const QString seriesName = QStringLiteral("series");
const QString rawName = QStringLiteral("raw");

} // namespace

QList<QCommandLineOption> TourListJson::options()
{
    return {{jsonName, QStringLiteral("Prints JSON with every value.")},
            {seriesName, QStringLiteral("With --json: the series of each tour as well.")},
            {rawName, QStringLiteral("With --json: the sample records of each tour as well.")}};
}

std::optional<TourListJson> TourListJson::fromOptions(const QCommandLineParser& options)
{
    TourListJson json;
    json._wanted = options.isSet(jsonName);
    json._parts = {.series = options.isSet(seriesName), .raw = options.isSet(rawName)};
    if (!json._wanted && (json._parts.series || json._parts.raw))
        return std::nullopt;
    return json;
}

ExitStatus TourListJson::print(const TourSource& source, const Tours& tours) const
{
    return printJson([&](JsonWriter& json) {
        beginTourList(json, source.generalData);
        int number = 0;
        for (const auto& tour : tours)
            writeTour(json, *tour, ++number, _parts);
        endTourList(json);
    });
}

} // namespace ridelog
