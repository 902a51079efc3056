#include "cli/Command.h"

#include "cli/InspectCommand.h"
#include "cli/MakeDumpCommand.h"

#include <QFile>

#include <cstdio>

namespace ridelog {
namespace {

void complain(const QString& line)
{
    const auto bytes = QStringLiteral("ridelog-cli: %1\n").arg(line).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

} // namespace

const std::vector<std::unique_ptr<const Command>>& allCommands()
{
    static const auto commands = [] {
        std::vector<std::unique_ptr<const Command>> list;
        list.push_back(std::make_unique<InspectCommand>());
        list.push_back(std::make_unique<MakeDumpCommand>());
        return list;
    }();
    return commands;
}

ExitStatus wrongWords(const QString& message)
{
    complain(message);
    return ExitStatus::wrongWords;
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
        return fail(QStringLiteral("standard output"), output.errorString());
    return ExitStatus::done;
}

} // namespace ridelog
