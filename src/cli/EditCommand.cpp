#include "cli/EditCommand.h"

#include "cli/DocumentChange.h"
#include "cli/TourName.h"
#include "cli/Wording.h"
#include "library/TourList.h"

#include <QCommandLineParser>

namespace ridelog {
namespace {

const QString titleName = QStringLiteral("title");
const QString descriptionName = QStringLiteral("description");
const QString removeName = QStringLiteral("remove");
const QString restoreName = QStringLiteral("restore");
const QString removedName = QStringLiteral("removed");

/// Why the options make no sense; empty if they do.
QString faultOf(const QCommandLineParser& options)
{
    const bool removes = options.isSet(removeName);
    const bool restores = options.isSet(restoreName);
    if (removes && restores)
        return QStringLiteral("--remove and --restore do not go together");
    if (!removes && !restores && !options.isSet(titleName) && !options.isSet(descriptionName))
        return QStringLiteral("nothing to change: give --title, --description, --remove or --restore");
    if (!isOneLine(options.value(titleName)))
        return QStringLiteral("--title takes one line of text");
    return {};
}

void change(MyDocument& document, const std::shared_ptr<OdoTour>& tour, const QCommandLineParser& options)
{
    if (options.isSet(titleName))
        tour->setTitle(options.value(titleName));
    // The same words may be there already, and styled.
    if (const auto description = options.value(descriptionName);
        options.isSet(descriptionName) && description != tour->tourDescription().text())
        tour->setTourDescription(description);
    if (options.isSet(removeName))
        document.deleteTour(tour);
    if (options.isSet(restoreName))
        document.undeleteTour(tour);
}

} // namespace

QString EditCommand::name() const
{
    return QStringLiteral("edit");
}

QString EditCommand::description() const
{
    return QStringLiteral("Changes one tour of a document and saves.");
}

QList<Command::Argument> EditCommand::arguments() const
{
    return {{QStringLiteral("DOCUMENT"), QStringLiteral("The document with the tour.")},
            {QStringLiteral("TOUR"),
             QStringLiteral("Its number as list prints it, or its start: 2007-03-10T08:00.")}};
}

QString EditCommand::synopsis() const
{
    return QStringLiteral("DOCUMENT TOUR [--title T] [--description D] [--remove] [--restore] [--removed]");
}

QList<QCommandLineOption> EditCommand::options() const
{
    return {{titleName, QStringLiteral("Gives it this title, one line."), QStringLiteral("T")},
            {descriptionName, QStringLiteral("Gives it this description, plain text."), QStringLiteral("D")},
            {removeName, QStringLiteral("Marks it as removed; it stays in the document.")},
            {restoreName, QStringLiteral("Takes that mark away; implies --removed.")},
            {removedName, QStringLiteral("TOUR is a number of list --removed.")}};
}

ExitStatus EditCommand::execute(const CommandContext& context) const
{
    const auto& options = context.options;
    if (const auto fault = faultOf(options); !fault.isEmpty())
        return wrongWords(*this, fault);
    const auto name = TourName::fromText(context.arguments[1]);
    if (!name)
        return wrongWords(*this, TourName::fault());

    const auto path = context.arguments.constFirst();
    MyDocument document;
    if (const auto status = openToChange(document, path, MyDocument::Missing::refuse, context.now))
        return *status;
    // Only the list with removed tours shows one that can be restored.
    const bool countRemoved = options.isSet(removedName) || options.isSet(restoreName);
    const auto found = name->findIn(inListOrder(document.toursArray()), countRemoved);
    if (!found.tour)
        return refuse(path, found.refusal);

    change(document, found.tour, options);
    const bool changed = document.isChanged();
    if (changed) {
        if (const auto status = save(document))
            return *status;
    }
    // Its number may be that of another tour now.
    return print(QStringLiteral("%1: %2\n")
                     .arg(found.tour->description(),
                          changed ? QStringLiteral("saved") : QStringLiteral("nothing to change")));
}

} // namespace ridelog
