#include "cli/ListCommand.h"

#include "cli/TourListJson.h"
#include "cli/TourSource.h"
#include "cli/TourTable.h"
#include "cli/Wording.h"
#include "library/TourList.h"

#include <QCommandLineParser>

#include <algorithm>

namespace ridelog {
namespace {

const QString removedName = QStringLiteral("removed");

/// What the reader of the table may miss.
QString notes(const TourSource& source, const Tours& listed)
{
    QString text;
    if (const auto removed = static_cast<qsizetype>(source.tours.size() - listed.size()); removed > 0)
        text += QStringLiteral("\n  %1 left out (see --removed)\n")
                    .arg(counted(removed, QStringLiteral("removed tour")));
    if (std::ranges::any_of(listed, [](const auto& tour) { return tour->removed(); }))
        text += QStringLiteral("\n  show and edit take these numbers with --removed\n");
    if (source.kind == TourSource::Kind::dump && !listed.empty())
        text += QStringLiteral("\n  newest first; show takes the numbers of inspect\n");
    return text;
}

} // namespace

QString ListCommand::name() const
{
    return QStringLiteral("list");
}

QString ListCommand::description() const
{
    return QStringLiteral("Lists the tours of a document or a raw dump, newest first.");
}

QList<Command::Argument> ListCommand::arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("A document or a raw dump.")}};
}

QString ListCommand::synopsis() const
{
    return QStringLiteral("FILE [--json] [--removed] [--series] [--raw]");
}

QList<QCommandLineOption> ListCommand::options() const
{
    return TourListJson::options() +
           QList{QCommandLineOption(removedName, QStringLiteral("Lists removed tours among the others."))};
}

ExitStatus ListCommand::execute(const CommandContext& context) const
{
    const auto json = TourListJson::fromOptions(context.options);
    if (!json)
        return wrongWords(*this, TourListJson::fault());
    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);

    auto tours = inListOrder(source.tours);
    if (!context.options.isSet(removedName))
        tours = withoutRemoved(tours);
    if (json->isWanted())
        return json->print(source, tours);
    const auto table =
        tours.empty() ? QStringLiteral("No tours\n") : tourTable(tours, ReadableUnits(context.miles));
    return print(table + notes(source, tours));
}

} // namespace ridelog
