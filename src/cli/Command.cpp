#include "cli/Command.h"

#include "cli/ChartCommand.h"
#include "cli/CheckUpdateCommand.h"
#include "cli/EditCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ImportCommand.h"
#include "cli/InspectCommand.h"
#include "cli/ListCommand.h"
#include "cli/MakeDumpCommand.h"
#include "cli/PortsCommand.h"
#include "cli/ReceiveCommand.h"
#include "cli/ShowCommand.h"
#include "cli/SimulateCommand.h"
#include "cli/StatsCommand.h"
#include "cli/Wording.h"
#include "platform/JsonWriter.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace ridelog {
namespace {

const QString standardOutput = QStringLiteral("standard output");

void complain(const QString& message)
{
    const auto line = QStringLiteral("%1: %2\n").arg(programName, printable(message)).toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

} // namespace

const std::vector<std::unique_ptr<const Command>>& allCommands()
{
    static const auto commands = [] {
        std::vector<std::unique_ptr<const Command>> list;
        list.push_back(std::make_unique<InspectCommand>());
        list.push_back(std::make_unique<ImportCommand>());
        list.push_back(std::make_unique<ListCommand>());
        list.push_back(std::make_unique<ShowCommand>());
        list.push_back(std::make_unique<EditCommand>());
        list.push_back(std::make_unique<StatsCommand>());
        list.push_back(std::make_unique<ChartCommand>());
        list.push_back(std::make_unique<ExportCommand>());
        list.push_back(std::make_unique<PortsCommand>());
        list.push_back(std::make_unique<ReceiveCommand>());
        list.push_back(std::make_unique<MakeDumpCommand>());
        list.push_back(std::make_unique<SimulateCommand>());
        list.push_back(std::make_unique<CheckUpdateCommand>());
        return list;
    }();
    return commands;
}

const Command* commandNamed(const QString& name)
{
    const auto& commands = allCommands();
    const auto found = std::ranges::find(commands, name, [](const auto& one) { return one->name(); });
    return found == commands.end() ? nullptr : found->get();
}

ExitStatus wrongWords(const QString& message)
{
    complain(message);
    return ExitStatus::wrongWords;
}

ExitStatus wrongWords(const Command& command, const QString& message)
{
    return wrongWords(QStringLiteral("%1 (see %2 %3 --help)").arg(message, programName, command.name()));
}

ExitStatus refuse(const QString& file, const QString& reason)
{
    complain(QStringLiteral("%1: %2").arg(file, reason));
    return ExitStatus::refused;
}

ExitStatus fail(const QString& file, const QString& reason)
{
    complain(QStringLiteral("%1: %2").arg(file, reason));
    return ExitStatus::failed;
}

ExitStatus print(const QString& text)
{
    QFile output;
    const auto bytes = text.toUtf8();
    if (!output.open(stdout, QIODevice::WriteOnly) || output.write(bytes) != bytes.size() || !output.flush())
        return fail(standardOutput, output.errorString());
    return ExitStatus::done;
}

ExitStatus printJson(const std::function<void(JsonWriter&)>& write)
{
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return fail(standardOutput, output.errorString());
    JsonWriter json(output);
    write(json);
    if (!json.finish() || !output.flush())
        return fail(standardOutput, output.errorString());
    return ExitStatus::done;
}

} // namespace ridelog
