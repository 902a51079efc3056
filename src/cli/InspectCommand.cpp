#include "cli/InspectCommand.h"

#include "cli/TextTable.h"
#include "cli/TourListJson.h"
#include "cli/TourSource.h"
#include "cli/TourTable.h"

namespace ridelog {
namespace {

/// The general data in two columns, down the first and then down the second.
QString generalDataText(const TourSource& source)
{
    const auto& fields = source.generalData;
    if (fields.empty())
        return QStringLiteral("No general data\n");
    const auto rows = (fields.size() + 1) / 2;
    TextTable table({{.align = TextTable::Align::left},
                     {.align = TextTable::Align::right},
                     {.align = TextTable::Align::left},
                     {.align = TextTable::Align::right}});
    for (std::size_t row = 0; row < rows; ++row) {
        QStringList cells;
        for (auto field = row; field < fields.size(); field += rows)
            cells << fields[field].first << QString::number(fields[field].second);
        table.addRow(cells);
    }
    return QStringLiteral("General data\n\n") + table.text();
}

QString toursText(const TourSource& source, const ReadableUnits& units)
{
    if (source.tours.empty())
        return QStringLiteral("No tours\n");
    auto text = QStringLiteral("Tours\n\n") + tourTable(source.tours, units);
    if (source.kind == TourSource::Kind::document)
        text += QStringLiteral("\n  in the order of the file; show and edit take the numbers of list\n");
    return text;
}

} // namespace

QString InspectCommand::name() const
{
    return QStringLiteral("inspect");
}

QString InspectCommand::description() const
{
    return QStringLiteral("Shows the general data and tours of a raw dump or a document, in its order.");
}

QList<Command::Argument> InspectCommand::arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("A raw dump, as the device sends it, or a document.")}};
}

QString InspectCommand::synopsis() const
{
    return QStringLiteral("FILE [--json] [--series] [--raw]");
}

QList<QCommandLineOption> InspectCommand::options() const
{
    return TourListJson::options();
}

ExitStatus InspectCommand::execute(const CommandContext& context) const
{
    const auto json = TourListJson::fromOptions(context.options);
    if (!json)
        return wrongWords(*this, TourListJson::fault());
    const auto file = context.arguments.constFirst();
    const auto source = TourSource::read(file, context.now);
    if (!source.refusal.isEmpty())
        return refuse(file, source.refusal);
    if (json->isWanted())
        return json->print(source, source.tours);
    return print(generalDataText(source) + u'\n' + toursText(source, ReadableUnits(context.miles)));
}

} // namespace ridelog
