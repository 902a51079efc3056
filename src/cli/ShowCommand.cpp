#include "cli/ShowCommand.h"

#include "cli/TourName.h"
#include "cli/TourSource.h"
#include "cli/TourText.h"
#include "exchange/TourJson.h"
#include "library/TourList.h"

#include <QCommandLineParser>

namespace ridelog {
namespace {

const QString jsonName = QStringLiteral("json");
const QString removedName = QStringLiteral("removed");

} // namespace

QString ShowCommand::name() const
{
    return QStringLiteral("show");
}

QString ShowCommand::description() const
{
    return QStringLiteral("Shows one tour: start values, summary values, description.");
}

QList<Command::Argument> ShowCommand::arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("A document or a raw dump.")},
            {QStringLiteral("TOUR"), QStringLiteral("Its number as list prints it, of a dump as inspect "
                                                    "prints it, or its start: 2007-03-10T08:00.")}};
}

QString ShowCommand::synopsis() const
{
    return QStringLiteral("FILE TOUR [--json] [--removed]");
}

QList<QCommandLineOption> ShowCommand::options() const
{
    return {{jsonName, QStringLiteral("Prints JSON with every value.")},
            {removedName, QStringLiteral("TOUR is a number of list --removed.")}};
}

ExitStatus ShowCommand::execute(const CommandContext& context) const
{
    const auto file = context.arguments.constFirst();
    const auto name = TourName::fromText(context.arguments[1]);
    if (!name)
        return wrongWords(*this, TourName::fault());
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);

    const bool isDump = source.kind == TourSource::Kind::dump;
    const auto found =
        name->findIn(isDump ? source.tours : inListOrder(source.tours), context.options.isSet(removedName));
    if (!found.tour)
        return refuse(file, found.refusal);
    if (context.options.isSet(jsonName))
        return printJson([&](JsonWriter& json) { writeTour(json, *found.tour, found.number, {}); });
    return print(tourText(*found.tour, found.number, ReadableUnits(context.miles)));
}

} // namespace ridelog
