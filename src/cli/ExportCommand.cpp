#include "cli/ExportCommand.h"

#include "cli/PeriodOptions.h"
#include "cli/ProgressBar.h"
#include "cli/TourName.h"
#include "cli/TourSource.h"
#include "cli/TourTable.h"
#include "cli/Wording.h"
#include "exchange/TourExport.h"
#include "library/DefaultsKeys.h"
#include "library/TourList.h"
#include "platform/Defaults.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMap>

#include <algorithm>

namespace ridelog {
namespace {

const QString formatName = QStringLiteral("format");
const QString outputName = QStringLiteral("output");
const QString oneFileName = QStringLiteral("one-file");
const QString forceName = QStringLiteral("force");
const QString removedName = QStringLiteral("removed");
const QString periodName = QStringLiteral("period");

QStringList namesOf(const ExportFormats& formats)
{
    QStringList names;
    for (const auto& format : formats)
        names << format->name();
    return names;
}

QString helpOf(const ExportFormats& formats)
{
    QStringList meanings;
    for (const auto& format : formats)
        meanings << QStringLiteral("%1: %2").arg(format->name(), format->description());
    return meanings.join(u"; ");
}

std::optional<Period> periodOf(const QString& text)
{
    static const QMap<QString, Period> periods{{QStringLiteral("year"), Period::year},
                                               {QStringLiteral("month"), Period::month},
                                               {QStringLiteral("week"), Period::week}};
    const auto found = periods.find(text);
    return found == periods.end() ? std::nullopt : std::optional(*found);
}

/// What the words ask for, apart from the file.
struct Request {
    const ExportFormat* format = nullptr;
    QString folder;
    TourExport::Layout layout = TourExport::Layout::filePerTour;
    TourExport::Existing existing = TourExport::Existing::keep;
    bool withRemoved = false;
    std::vector<TourName> names; ///< none: all tours, or those of the period
    std::optional<ChosenPeriod> period;
};

/// Reads the words, or answers what is wrong with them.
std::optional<QString> read(const CommandContext& context, const ExportFormats& formats, Request& request)
{
    const auto& options = context.options;
    const auto known = namesOf(formats).join(u", ");
    if (!options.isSet(formatName))
        return QStringLiteral("--format is missing: one of %1").arg(known);
    request.format = formatNamed(formats, options.value(formatName));
    if (!request.format)
        return QStringLiteral("--format takes one of %1").arg(known);
    request.folder = options.value(outputName);
    if (request.folder.isEmpty())
        return QStringLiteral("-o is missing: the folder to write into");
    if (options.isSet(oneFileName)) {
        if (!mayHoldSeveralTours(*request.format))
            return QStringLiteral("--one-file: a file of the form %1 holds one tour")
                .arg(request.format->name());
        request.layout = TourExport::Layout::oneFile;
    }
    if (options.isSet(forceName))
        request.existing = TourExport::Existing::replace;
    request.withRemoved = options.isSet(removedName);

    for (const auto& word : context.arguments.mid(1)) {
        const auto name = TourName::fromText(word);
        if (!name)
            return TourName::fault();
        request.names.push_back(*name);
    }
    const PeriodOptions chosen(options, context.now);
    if (!chosen.fault().isEmpty())
        return chosen.fault();
    if (!options.isSet(periodName)) {
        return PeriodOptions::areSet(options)
                   ? std::optional(QStringLiteral("--date and --week-start go with --period"))
                   : std::nullopt;
    }
    const auto period = periodOf(options.value(periodName));
    if (!period)
        return QStringLiteral("--period takes year, month or week");
    if (!request.names.empty())
        return QStringLiteral("TOUR and --period do not go together");
    request.period = ChosenPeriod{*period, chosen.date().date(), chosen.weekRule()};
    return std::nullopt;
}

/// The tours that were asked for, with their numbers, or why there are none.
struct Selection {
    Tours tours = {};
    QHash<const OdoTour*, int> numbers = {};
    QString refusal = {};
};

Selection namedTours(const Tours& listed, const Request& request)
{
    Selection selection;
    for (const auto& name : request.names) {
        const auto found = name.findIn(listed, request.withRemoved);
        if (!found.tour)
            return {.refusal = found.refusal};
        // Who names a tour twice wants it once.
        if (selection.numbers.contains(found.tour.get()))
            continue;
        selection.numbers.insert(found.tour.get(), found.number);
        selection.tours.push_back(found.tour);
    }
    return selection;
}

Selection allTours(const Tours& listed, const Request& request)
{
    auto tours = request.withRemoved ? listed : withoutRemoved(listed);
    Selection selection{.numbers = numbersOf(tours)};
    if (const auto& period = request.period) {
        const PeriodDays days(period->period, period->day, period->weekRule);
        std::erase_if(tours, [&days](const auto& tour) { return !days.contain(tour->date().date()); });
    }
    if (tours.empty()) {
        selection.refusal = QStringLiteral("no tours");
        if (const auto& period = request.period)
            selection.refusal += QStringLiteral(" in %1").arg(
                periodTitle(period->period, period->day, period->weekRule, QLocale::c()));
        if (tours.size() < listed.size() && !request.withRemoved && !request.period)
            selection.refusal += QStringLiteral(" that are not removed (see --removed)");
    }
    selection.tours = std::move(tours);
    return selection;
}

/// Writes the files with a progress bar, and says what came of it.
ExitStatus write(const TourExport& tourExport, TourExport::Existing existing, const QString& notes)
{
    constexpr int quickly = 500; // milliseconds, in which nobody needs a bar
    constexpr int redraw = 100;
    std::optional<ProgressBar> bar;
    QElapsedTimer sinceStart;
    sinceStart.start();
    qint64 next = quickly;
    const auto outcome = tourExport.write(existing, [&](std::size_t done) {
        if (sinceStart.elapsed() < next)
            return true;
        if (!bar)
            bar.emplace();
        bar->show(static_cast<double>(done) / static_cast<double>(tourExport.countTours()),
                  QStringLiteral("%1 of %2 tours").arg(done).arg(tourExport.countTours()));
        next = sinceStart.elapsed() + redraw;
        return true;
    });
    bar.reset();
    auto status = ExitStatus::done;
    for (const auto& [path, reason, isRefusal] : outcome.failures) {
        const auto ended = isRefusal ? refuse(path, reason) : fail(path, reason);
        status = std::max(status, ended);
    }
    if (outcome.written == 0)
        return status;
    const auto printed =
        print(QStringLiteral("%1 written\n")
                  .arg(counted(static_cast<qsizetype>(outcome.written), QStringLiteral("file"))) +
              notes);
    return printed == ExitStatus::done ? status : printed;
}

} // namespace

QString ExportCommand::name() const
{
    return QStringLiteral("export");
}

QString ExportCommand::description() const
{
    return QStringLiteral("Writes tours for other programs.");
}

QList<Command::Argument> ExportCommand::arguments() const
{
    return {{.name = QStringLiteral("FILE"), .description = QStringLiteral("A document or a raw dump.")},
            {.name = QStringLiteral("TOUR"),
             .description = QStringLiteral("Its number as list prints it, of a dump as inspect prints it, or "
                                           "its start: 2007-03-10T08:00. There may be several; without any "
                                           "all tours are written."),
             .repeats = true,
             .optional = true}};
}

QString ExportCommand::synopsis() const
{
    return QStringLiteral("FILE [TOUR...] --format FORM -o DIR [--one-file] [--force] [--removed] "
                          "[--period year|month|week [--date YYYY-MM-DD] [--week-start sunday|monday]]");
}

QList<QCommandLineOption> ExportCommand::options() const
{
    const Defaults nobodys{QString()};
    return QList<QCommandLineOption>{
               {formatName, helpOf(exportFormats(nobodys)), QStringLiteral("FORM")},
               {{QStringLiteral("o"), outputName},
                QStringLiteral("The folder of the files; made if there is none."),
                QStringLiteral("DIR")},
               {oneFileName,
                QStringLiteral("All tours in one file, named after FILE, where the form has it.")},
               {forceName, QStringLiteral("Replaces files that are there already; else they are left as they "
                                          "are.")},
               {removedName, QStringLiteral("Removed tours as well; TOUR is a number of list --removed.")},
               {periodName,
                QStringLiteral("Only the tours of the year, month or week of a day; as html one report of "
                               "it."),
                QStringLiteral("PERIOD")}} +
           PeriodOptions::options();
}

ExitStatus ExportCommand::execute(const CommandContext& context) const
{
    // Nobody's own choices, so that the same words write the same files.
    Defaults defaults{QString()};
    DefaultsKeys::registerApplicationDefaults(defaults);
    defaults.registerDefaults({{DefaultsKeys::useMiles, context.miles}});
    const auto formats = exportFormats(defaults);
    Request request;
    if (const auto fault = read(context, formats, request))
        return wrongWords(*this, *fault);

    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);
    const auto listed = source.kind == TourSource::Kind::dump ? source.tours : inListOrder(source.tours);
    const auto selection = request.names.empty() ? allTours(listed, request) : namedTours(listed, request);
    if (!selection.refusal.isEmpty())
        return refuse(file, selection.refusal);

    const ExportSource from{.name = QFileInfo(file).completeBaseName(),
                            .generalData = source.generalData,
                            .numbers = selection.numbers,
                            .period = request.period};
    return write(TourExport(*request.format, from, selection.tours, request.folder, request.layout),
                 request.existing, notesOn(selection.tours));
}

} // namespace ridelog
