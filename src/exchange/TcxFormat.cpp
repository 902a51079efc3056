#include "exchange/TcxFormat.h"

#include "exchange/RecordedValues.h"
#include "platform/NumberText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace ridelog {
namespace {

// Text is put together in strings of the standard library: the toolkit's byte arrays take three times as long
// for the many small parts of a point.
//
// The elements are those of TrainingCenterDatabasev2.xsd and ActivityExtensionv2.xsd, in their order.

constexpr std::string_view head =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<TrainingCenterDatabase xmlns=\"http://www.garmin.com/xmlschemas/TrainingCenterDatabase/v2\">\n"
    "<Activities>\n";
constexpr std::string_view foot = "</Activities>\n"
                                  "</TrainingCenterDatabase>\n";
// Not every reader knows that a prefix stands for a namespace, so the element names its own.
constexpr std::string_view beginExtension =
    "<Extensions><TPX xmlns=\"http://www.garmin.com/xmlschemas/ActivityExtension/v2\">";
constexpr std::string_view endExtensionAndPoint = "</TPX></Extensions></Trackpoint>\n";

// What the form has room for.
constexpr int mostBeats = 255;
constexpr int mostRevolutions = 254;
constexpr int mostWatts = 65'535;

/// The tags of an element, ready to be copied: there are thousands of each.
struct Element {
    std::string_view begin;
    std::string_view end;
};
constexpr Element altitudeMeters{"<AltitudeMeters>", "</AltitudeMeters>"};
constexpr Element averageHeartRate{"<AverageHeartRateBpm><Value>", "</Value></AverageHeartRateBpm>"};
constexpr Element cadence{"<Cadence>", "</Cadence>"};
constexpr Element calories{"<Calories>", "</Calories>"};
constexpr Element distanceMeters{"<DistanceMeters>", "</DistanceMeters>"};
constexpr Element heartRate{"<HeartRateBpm><Value>", "</Value></HeartRateBpm>"};
constexpr Element maximumHeartRate{"<MaximumHeartRateBpm><Value>", "</Value></MaximumHeartRateBpm>"};
constexpr Element maximumSpeed{"<MaximumSpeed>", "</MaximumSpeed>"};
constexpr Element speed{"<Speed>", "</Speed>"};
constexpr Element totalTimeSeconds{"<TotalTimeSeconds>", "</TotalTimeSeconds>"};
constexpr Element watts{"<Watts>", "</Watts>"};

void appendNumber(std::string& xml, const Element& element, std::int32_t number)
{
    xml += element.begin;
    appendShortest(xml, number);
    xml += element.end;
}

void appendNumber(std::string& xml, const Element& element, double number, int decimals)
{
    xml += element.begin;
    appendFixed(xml, number, decimals);
    xml += element.end;
}

/// Leaves out a number that the form has no room for.
void appendUpTo(int most, std::string& xml, const Element& element, std::int32_t number)
{
    if (number >= 0 && number <= most)
        appendNumber(xml, element, number);
}

/// The device counts in steps of 10 m. The decimal is for sums; further ones would only show how roughly the
/// kilometres have been added up.
void appendDistance(std::string& xml, float kilometres)
{
    appendNumber(xml, distanceMeters, kilometres * metresPerKilometre, 1);
}

void appendSpeed(std::string& xml, const Element& element, float kmh)
{
    appendNumber(xml, element, kmh / kmhPerMetrePerSecond, 2);
}

void appendPulse(std::string& xml, const Element& element, std::int32_t beatsPerMinute)
{
    if (const auto pulse = recordedPulse(beatsPerMinute))
        appendUpTo(mostBeats, xml, element, *pulse);
}

/// Of a summary value, which may be any number.
void appendPulse(std::string& xml, const Element& element, float beatsPerMinute)
{
    appendPulse(xml, element,
                static_cast<std::int32_t>(std::lround(std::clamp(beatsPerMinute, -1.0F, 1e6F))));
}

void appendPoint(std::string& xml, qint64 start, const SeriesEntry& entry, bool withCadence)
{
    xml += "<Trackpoint><Time>";
    appendUtcText(xml, start + entry.time);
    xml += "</Time>";
    appendNumber(xml, altitudeMeters, entry.altitude);
    appendDistance(xml, entry.distance);
    appendPulse(xml, heartRate, entry.pulse);
    if (withCadence)
        appendUpTo(mostRevolutions, xml, cadence, entry.cadence);
    xml += beginExtension;
    appendSpeed(xml, speed, entry.speed);
    appendUpTo(mostWatts, xml, watts, entry.power);
    xml += endExtensionAndPoint;
}

void appendLap(std::string& xml, const OdoTour& tour)
{
    xml += "<Lap StartTime=\"" + utcText(tour.date()).toStdString() + "\">";
    // A tour's duration counts the start as 20 s more. Readers take the time between the points.
    appendNumber(xml, totalTimeSeconds, tour.data().back().time);
    appendDistance(xml, tour.totalDistance());
    appendSpeed(xml, maximumSpeed, tour.maxSpeed());
    appendNumber(xml, calories, 0); // nobody knows them, but they have to be there
    // That of the tour counts what was not recorded as 0. Readers know the points only.
    appendPulse(xml, averageHeartRate, static_cast<float>(averageRecordedPulse(tour).value_or(0)));
    appendPulse(xml, maximumHeartRate, tour.maxPulse());
    xml += "<Intensity>Active</Intensity><TriggerMethod>Manual</TriggerMethod>\n<Track>\n";
    const auto start = tour.date().toSecsSinceEpoch();
    const bool withCadence = hasCadence(tour);
    for (const auto& entry : tour.data())
        appendPoint(xml, start, entry, withCadence);
    xml += "</Track></Lap>\n";
}

/// Title and description, a line each. Readers would make a line end of a carriage return that is not
/// escaped.
std::string notesOf(const OdoTour& tour)
{
    QStringList texts{tour.shownTitle(), tour.shownDescription()};
    texts.removeAll(QString());
    const auto escaped = exchangeText(texts.join(u'\n')).toHtmlEscaped();
    return escaped.toUtf8().replace('\r', "&#13;").toStdString();
}

const char* sportName(const OdoTour& tour)
{
    switch (sportOf(tour)) {
    case Sport::cycling:
        return "Biking";
    case Sport::running:
        return "Running";
    case Sport::other:
        break;
    }
    return "Other";
}

void appendActivity(std::string& xml, const OdoTour& tour, const std::string& id)
{
    xml += std::string("<Activity Sport=\"") + sportName(tour) + "\"><Id>" + id + "</Id>\n";
    appendLap(xml, tour);
    if (const auto notes = notesOf(tour); !notes.empty())
        xml += "<Notes>" + notes + "</Notes>\n";
    xml += "</Activity>\n";
}

/// The starts of tours, by which activities are known. No two of a file may have the same: where tours start
/// in the same second, the later ones in the file have millionths of it.
class ActivityIds {
public:
    std::string take(const OdoTour& tour)
    {
        auto id = utcText(tour.date());
        if (const int before = _taken[id]++; before > 0)
            id.insert(id.size() - 1, '.' + QByteArray::number(before).rightJustified(6, '0'));
        return id.toStdString();
    }

private:
    QHash<QByteArray, int> _taken;
};

} // namespace

QString TcxFormat::name() const
{
    return QStringLiteral("tcx");
}

QString TcxFormat::description() const
{
    return QCoreApplication::translate("ExportFormat", "Training Center (TCX)");
}

QString TcxFormat::ending() const
{
    return QStringLiteral("tcx");
}

QString TcxFormat::refusal(const Tours& tours) const
{
    const auto isOutside = [](const QDateTime& date) {
        const auto year = date.toUTC().date().year();
        return year < 1 || year > 9999;
    };
    const auto found = std::ranges::find_if(tours, [&](const auto& tour) {
        return isOutside(tour->date()) || isOutside(timeOf(*tour, tour->data().back()));
    });
    if (found == tours.end())
        return {};
    return QCoreApplication::translate("ExportFormat",
                                       "it can tell of the years 1 to 9999 only, and a tour has the date %1")
        .arg((*found)->description());
}

void TcxFormat::write(const Tours& tours, const ExportSource&, const ExportSink& sink) const
{
    ActivityIds ids;
    std::string xml(head);
    for (const auto& tour : tours) {
        appendActivity(xml, *tour, ids.take(*tour));
        sink.write(xml);
        if (!sink.tourDone())
            return;
        xml.clear();
    }
    sink.write(foot);
}

} // namespace ridelog
