#include "cli/ChartCommand.h"

#include "chart/ChartDrawing.h"
#include "chart/ChartPicture.h"
#include "cli/ChartLayoutJson.h"
#include "cli/DumpTarget.h"
#include "cli/TourName.h"
#include "cli/TourSource.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "library/FileOfTours.h"
#include "library/TourList.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "platform/JsonWriter.h"
#include "platform/WholeFile.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>

namespace ridelog {
namespace {

const QString outputName = QStringLiteral("output");
const QString sizeName = QStringLiteral("size");
const QString xName = QStringLiteral("x");
const QString yName = QStringLiteral("y");
const QString rangeName = QStringLiteral("manual-range");
const QString layoutName = QStringLiteral("layout-json");

const QStringList& seriesNames()
{
    static const QStringList names{SeriesNames::altitude, SeriesNames::speed, SeriesNames::pulse};
    return names;
}

/// What was asked for, apart from tour and file.
struct Request {
    QSize size;
    QString x;
    QStringList names;
    std::optional<std::pair<float, float>> manualRange; ///< metres
};

std::optional<QSize> sizeOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})\\z"));
    const auto match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int length) { return length >= 1 && length <= largestChartPicture; };
    return fits(size.width()) && fits(size.height()) ? std::optional(size) : std::nullopt;
}

std::optional<std::pair<float, float>> rangeOf(const QString& text)
{
    const auto ends = text.split(u',');
    bool isLow = false;
    bool isHigh = false;
    const std::pair range(ends.value(0).toFloat(&isLow), ends.value(1).toFloat(&isHigh));
    return isLow && isHigh && ends.size() == 2 && std::isfinite(range.second - range.first) &&
                   range.first < range.second
               ? std::optional(range)
               : std::nullopt;
}

/// Reads the options, or answers what is wrong with them.
std::optional<QString> read(const QCommandLineParser& options, Request& request)
{
    const auto size = sizeOf(options.value(sizeName));
    if (!size)
        return QStringLiteral("--size takes width and height, 1 to %1 each, like 800x400")
            .arg(largestChartPicture);
    request.size = *size;
    request.x = options.value(xName);
    if (request.x != SeriesNames::distance && request.x != SeriesNames::time)
        return QStringLiteral("--x takes distance or time");
    request.names = options.value(yName).split(u',');
    for (const auto& name : std::as_const(request.names)) {
        if (!seriesNames().contains(name) || request.names.count(name) > 1)
            return QStringLiteral("--y takes some of altitude, speed and pulse, with commas between");
    }
    if (options.isSet(rangeName)) {
        request.manualRange = rangeOf(options.value(rangeName));
        if (!request.manualRange)
            return QStringLiteral("--manual-range takes metres like 400,1200, the lower ones first");
    }
    return std::nullopt;
}

ChartSettings settingsFor(const Request& request, const Defaults& defaults)
{
    auto settings = ChartSettings::fromDefaults(defaults);
    if (request.manualRange) {
        settings.useManualRange = true;
        std::tie(settings.minRange, settings.maxRange) = *request.manualRange;
    }
    return settings;
}

ExitStatus drawPicture(const ChartScaling::Chart& chart, const QString& path)
{
    if (const auto reason = whyNotWritable(path))
        return fail(path, *reason);
    if (!hasChartLabelFont())
        return fail(path, QStringLiteral("there is no font for the labels (fontconfig finds none)"));
    const auto picture = chartPicture(chartContent(chart, std::nullopt), path);
    if (!picture.error.isEmpty())
        return fail(path, picture.error);
    if (const auto error = writeWholeFile(path, picture.bytes))
        return fail(path, *error);
    return ExitStatus::done;
}

} // namespace

QString ChartCommand::name() const
{
    return QStringLiteral("chart");
}

QString ChartCommand::description() const
{
    return QStringLiteral("Draws the chart of one tour into a picture.");
}

QList<Command::Argument> ChartCommand::arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("A document or a raw dump.")},
            {QStringLiteral("TOUR"), QStringLiteral("Its number as list prints it, of a dump as inspect "
                                                    "prints it, or its start: 2007-03-10T08:00.")}};
}

QString ChartCommand::synopsis() const
{
    return QStringLiteral("FILE TOUR -o PICTURE [--size WxH] [--x distance|time] [--y altitude,speed,pulse] "
                          "[--manual-range MIN,MAX] [--layout-json]");
}

QList<QCommandLineOption> ChartCommand::options() const
{
    return {{{QStringLiteral("o"), outputName},
             QStringLiteral("The picture; its type follows its name: .%1.")
                 .arg(chartPictureEndings().join(u", .")),
             QStringLiteral("PICTURE")},
            {sizeName, QStringLiteral("Width and height; 800x400 if not told."), QStringLiteral("WxH"),
             QStringLiteral("800x400")},
            {xName, QStringLiteral("What goes to the right: distance (if not told) or time."),
             QStringLiteral("NAME"), SeriesNames::distance},
            {yName, QStringLiteral("What is drawn, the first one with the left axis: altitude if not told."),
             QStringLiteral("NAMES"), SeriesNames::altitude},
            {rangeName, QStringLiteral("Ends of the altitude axis in metres; else they follow the tour."),
             QStringLiteral("MIN,MAX")},
            {layoutName, QStringLiteral("Prints where everything stands as JSON instead of drawing.")}};
}

ExitStatus ChartCommand::execute(const CommandContext& context) const
{
    Request request;
    if (const auto fault = read(context.options, request))
        return wrongWords(*this, *fault);
    const auto path = context.options.value(outputName);
    const bool wantsLayout = context.options.isSet(layoutName);
    if (!wantsLayout && path.isEmpty())
        return wrongWords(*this, QStringLiteral("-o is missing: the picture to draw"));
    if (!wantsLayout && !chartPictureEndings().contains(QFileInfo(path).suffix().toLower()))
        return wrongWords(
            *this,
            QStringLiteral("-o takes a name that ends with .%1").arg(chartPictureEndings().join(u", .")));
    const auto name = TourName::fromText(context.arguments[1]);
    if (!name)
        return wrongWords(*this, TourName::fault());

    if (!wantsLayout && holdsTours(path))
        return refuse(path, QStringLiteral("holds tours, which a picture would replace"));

    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);
    const bool isDump = source.kind == TourSource::Kind::dump;
    const auto found = name->findIn(isDump ? source.tours : inListOrder(source.tours), false);
    if (!found.tour)
        return refuse(file, found.refusal);
    found.tour->setNameForXValue(request.x);

    // Nobody's own choices, so that the same words draw the same picture.
    Defaults defaults{QString()};
    DefaultsKeys::registerApplicationDefaults(defaults);
    defaults.registerDefaults({{DefaultsKeys::useMiles, context.miles}});
    const auto formatterForX = UnitFormatters::chartXAxis(defaults);
    const auto formatterForY = UnitFormatters::chartYAxis(defaults, request.names.constFirst());
    ChartScaling::Chart chart{.dataProvider = found.tour.get(),
                              .showNames = request.names,
                              .width = static_cast<float>(request.size.width()),
                              .height = static_cast<float>(request.size.height()),
                              .useTimeFormatForX = request.x == SeriesNames::time,
                              .settings = settingsFor(request, defaults),
                              .formatterForXAxis = &formatterForX,
                              .formatterForYAxis = &formatterForY,
                              .measure = chartLabelMeasure()};
    if (!wantsLayout)
        return drawPicture(chart, path);
    // No font's measures and nobody's digits: the layout is the same on every machine.
    QLocale::setDefault(QLocale::c());
    chart.measure = [](const QString& label) {
        return QSizeF(7.0 * static_cast<double>(label.size()), 14.0);
    };
    return printJson([&](JsonWriter& json) { writeChartLayout(json, chart); });
}

} // namespace ridelog
