#include "cli/MakeDumpCommand.h"

#include "cli/DumpTarget.h"
#include "library/MyDocument.h"
#include "platform/WholeFile.h"
#include "simulator/RideGenerator.h"

#include <QCommandLineParser>

namespace ridelog {
namespace {

const QString toursName = QStringLiteral("tours");
const QString seedName = QStringLiteral("seed");
const QString wrapName = QStringLiteral("wrap");
const QString outputName = QStringLiteral("output");

} // namespace

QString MakeDumpCommand::name() const
{
    return QStringLiteral("make-dump");
}

QString MakeDumpCommand::description() const
{
    return QStringLiteral("Writes a plausible raw dump for trying things out.");
}

QString MakeDumpCommand::synopsis() const
{
    return QStringLiteral("[--tours N] [--seed S] [--wrap] -o DUMP");
}

QList<QCommandLineOption> MakeDumpCommand::options() const
{
    return {
        {toursName, QStringLiteral("How many tours, 0 to %1; 8 if not told.").arg(RideGenerator::mostTours),
         QStringLiteral("N"), QStringLiteral("8")},
        {seedName, QStringLiteral("Which rides: the same number makes the same dump; 1 if not told."),
         QStringLiteral("S"), QStringLiteral("1")},
        {wrapName, QStringLiteral("Lets the last tour go on at the front of the ring memory.")},
        {{QStringLiteral("o"), outputName}, QStringLiteral("The file to write."), QStringLiteral("DUMP")}};
}

ExitStatus MakeDumpCommand::execute(const CommandContext& context) const
{
    const auto& options = context.options;
    RideGenerator generator{.wrapped = options.isSet(wrapName)};
    bool toursOk = false;
    bool seedOk = false;
    generator.tours = options.value(toursName).toInt(&toursOk);
    generator.seed = options.value(seedName).toUInt(&seedOk);
    if (!toursOk || generator.tours < 0 || generator.tours > RideGenerator::mostTours)
        return wrongWords(*this, QStringLiteral("--tours takes a number from 0 to %1, what the memory holds")
                                     .arg(RideGenerator::mostTours));
    if (!seedOk)
        return wrongWords(*this, QStringLiteral("--seed takes a whole number from 0 to 4294967295"));
    if (generator.wrapped && generator.tours == 0)
        return wrongWords(*this, QStringLiteral("--wrap needs a tour to wrap"));
    const auto path = options.value(outputName);
    if (path.isEmpty())
        return wrongWords(*this, QStringLiteral("-o is missing: the file to write"));

    if (MyDocument::isDocumentFile(path))
        return refuse(path, *whyNoDumpTarget(path));
    if (const auto error = writeWholeFile(path, generator.dump()))
        return fail(path, *error);
    return ExitStatus::done;
}

} // namespace ridelog
