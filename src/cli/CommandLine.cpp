#include "cli/CommandLine.h"

#include "platform/CalendarDate.h"
#include "platform/Log.h"
#include "update/ApplicationInfo.h"

#include <QCommandLineParser>
#include <QMap>

#include <algorithm>
#include <optional>
#include <utility>

namespace ridelog {
namespace {

QString programHelp()
{
    QString text =
        QStringLiteral("Usage: %1 COMMAND [OPTIONS] ARGUMENTS\n\n"
                       "Reads, keeps and shows the tours of a cycle computer, without a window.\n\n"
                       "Commands:\n")
            .arg(programName);
    for (const auto& command : allCommands())
        text += QStringLiteral("  %1 %2\n").arg(command->name().leftJustified(12), command->description());
    text += QStringLiteral("\nEvery command takes:\n"
                           "  --help            Shows the help of the command\n"
                           "  --miles           Shows miles, mph and feet\n"
                           "  --now TIME        Stands in for the current date\n"
                           "  --log LEVEL       none, errors or trace\n"
                           "\nAlone: --help, --version\n");
    return text;
}

/// Options and arguments as they stand in a help: the word, then what it means.
QString helpLines(const QList<std::pair<QString, QString>>& words)
{
    qsizetype widest = 0;
    for (const auto& [word, meaning] : words)
        widest = std::max(widest, word.size());
    QString text;
    for (const auto& [word, meaning] : words)
        text += QStringLiteral("  %1  %2\n").arg(word.leftJustified(widest), meaning);
    return text;
}

QCommandLineOption helpOption()
{
    return {{QStringLiteral("help"), QStringLiteral("h")}, QStringLiteral("Shows this help.")};
}

QCommandLineOption logOption()
{
    return {QStringLiteral("log"),
            QStringLiteral("What of the log goes to standard error: none (the default), errors or trace."),
            QStringLiteral("LEVEL"), QStringLiteral("none")};
}

QCommandLineOption nowOption()
{
    return {QStringLiteral("now"),
            QStringLiteral("Stands in for the current date, in local time: 2007-03-10T12:00:00."),
            QStringLiteral("TIME")};
}

QCommandLineOption milesOption()
{
    return {QStringLiteral("miles"), QStringLiteral("Shows miles, mph and feet. JSON stays metric.")};
}

/// The command's own, and those that every command takes.
QList<QCommandLineOption> optionsOf(const Command& command)
{
    return command.options() + QList{milesOption(), nowOption(), logOption(), helpOption()};
}

QString commandHelp(const Command& command)
{
    QList<std::pair<QString, QString>> words;
    for (const auto& argument : command.arguments())
        words << std::pair(argument.name, argument.description);
    for (const auto& option : optionsOf(command)) {
        const auto name = option.names().constFirst();
        auto word = (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
        if (!option.valueName().isEmpty())
            word += u' ' + option.valueName();
        words << std::pair(word, option.description());
    }
    return QStringLiteral("Usage: %1 %2 %3\n\n%4\n\n")
               .arg(programName, command.name(), command.synopsis(), command.description()) +
           helpLines(words);
}

std::optional<LogLevel> logLevelOf(const QString& name)
{
    static const QMap<QString, LogLevel> levels{{QStringLiteral("none"), LogLevel::none},
                                                {QStringLiteral("errors"), LogLevel::errors},
                                                {QStringLiteral("trace"), LogLevel::trace}};
    const auto found = levels.find(name);
    return found == levels.end() ? std::nullopt : std::optional(*found);
}

/// A local time like 2007-03-10T12:00:00, seconds may be left out.
std::optional<QDateTime> localTimeOf(const QString& text)
{
    const auto day = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    auto time = QTime::fromString(text.mid(11), QStringLiteral("HH:mm:ss"));
    if (!time.isValid())
        time = QTime::fromString(text.mid(11), QStringLiteral("HH:mm"));
    // A tour may belong to the year before, and no calendar here goes below the first.
    constexpr int earliestYear = 1900;
    if (!day.isValid() || !time.isValid() || text[10] != u'T' || day.year() < earliestYear)
        return std::nullopt;
    return CalendarDate::fromFields(day.year(), day.month(), day.day(), time.hour(), time.minute(),
                                    time.second(), CalendarDate::localTimeZone());
}

/// What is wrong with the arguments that were given, if anything is.
std::optional<QString> faultOf(const QStringList& given, const QList<Command::Argument>& wanted)
{
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (wanted[i].optional && i >= given.size())
            return std::nullopt;
        if (given.value(i).isEmpty())
            return QStringLiteral("%1 is missing").arg(wanted[i].name);
    }
    const bool repeats = !wanted.isEmpty() && wanted.constLast().repeats;
    if (repeats && given.contains(QString()))
        return QStringLiteral("%1 is missing").arg(wanted.constLast().name);
    if (!repeats && given.size() > wanted.size())
        return QStringLiteral("'%1' is one word too many").arg(given[wanted.size()]);
    return std::nullopt;
}

/// What is told twice may be told differently, and only the last would count.
std::optional<QString> faultOf(const QCommandLineParser& parser, const QList<QCommandLineOption>& options)
{
    for (const auto& option : options) {
        if (parser.values(option).size() > 1)
            return QStringLiteral("--%1 stands there twice").arg(option.names().constLast());
    }
    return std::nullopt;
}

ExitStatus runCommand(const Command& command, const QStringList& words)
{
    QCommandLineParser parser;
    const auto options = optionsOf(command);
    parser.addOptions(options);
    if (!parser.parse(words)) {
        auto error = parser.errorText();
        if (error.endsWith(u'.'))
            error.chop(1);
        return wrongWords(command, error);
    }
    if (parser.isSet(QStringLiteral("help")))
        return print(commandHelp(command));
    if (const auto fault = faultOf(parser, options))
        return wrongWords(command, *fault);

    const auto level = logLevelOf(parser.value(QStringLiteral("log")));
    if (!level)
        return wrongWords(command, QStringLiteral("--log takes none, errors or trace"));
    setLogLevel(*level);

    auto now = CalendarDate::now();
    if (parser.isSet(QStringLiteral("now"))) {
        const auto given = localTimeOf(parser.value(QStringLiteral("now")));
        if (!given)
            return wrongWords(command, QStringLiteral("--now takes a time like 2007-03-10T12:00:00"));
        now = *given;
    }

    const auto arguments = parser.positionalArguments().mid(1);
    if (const auto fault = faultOf(arguments, command.arguments()))
        return wrongWords(command, *fault);

    return command.execute({.options = parser,
                            .arguments = arguments,
                            .now = now,
                            .miles = parser.isSet(QStringLiteral("miles"))});
}

} // namespace

ExitStatus runCommandLine(const QStringList& words)
{
    const auto first = words.value(1);
    if (first == QStringLiteral("--help") || first == QStringLiteral("-h"))
        return print(programHelp());
    if (first == QStringLiteral("--version") || first == QStringLiteral("-v"))
        return print(QStringLiteral("%1 %2\n").arg(programName, runningApplication().version));

    if (const auto* command = commandNamed(first))
        return runCommand(*command, words);
    const auto hint = QStringLiteral(" (see %1 --help)").arg(programName);
    if (first.isEmpty())
        return wrongWords(QStringLiteral("a command is missing") + hint);
    return wrongWords(QStringLiteral("there is no command '%1'").arg(first) + hint);
}

} // namespace ridelog
