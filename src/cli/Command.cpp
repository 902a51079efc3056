#include "cli/Command.h"

#include "cli/InspectCommand.h"
#include "cli/MakeDumpCommand.h"

#include <QFile>

#include <cstdio>

namespace ridelog {
namespace {

/// The text without anything that would end its line or move a terminal's cursor.
QString printable(const QString& text)
{
    QString line;
    for (const auto character : text) {
        if (character.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line;
}

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
        return fail(QStringLiteral("standard output"), output.errorString());
    return ExitStatus::done;
}

} // namespace ridelog
