#pragma once

#include <QCommandLineOption>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QCommandLineParser)

namespace ridelog {

class JsonWriter;

/// How a command ended, as the shell sees it.
enum class ExitStatus {
    done = 0,
    refused = 1,    ///< the input is not what it should be
    wrongWords = 2, ///< the command was not understood
    failed = 3,     ///< the machine failed: cannot write, cannot open
};

/// What a command finds on its line, beside its own options.
struct CommandContext {
    const QCommandLineParser& options;
    QStringList arguments; ///< the command's own, without its name
    QDateTime now;         ///< the current date, or what stands in for it, in the local time zone
    bool miles = false;    ///< people read miles, mph and feet
};

/// One command of the command line. Its help is made from the same fields as its parser.
class Command {
public:
    struct Argument {
        QString name;
        QString description;
        bool repeats = false;  ///< may be given several times; only the last one may
        bool optional = false; ///< may be left out; only the last one may
    };

    virtual ~Command() = default;

    virtual QString name() const = 0;
    virtual QString description() const = 0;
    virtual QList<Argument> arguments() const { return {}; }
    /// What its usage line shows behind its name.
    virtual QString synopsis() const = 0;
    virtual QList<QCommandLineOption> options() const = 0;
    /// Whether it needs fonts and the like, which take a moment to start.
    virtual bool drawsPictures() const { return false; }
    virtual ExitStatus execute(const CommandContext& context) const = 0;
};

/// The command of this name; none if there is none.
const Command* commandNamed(const QString& name);

/// All commands, in the order in which the help lists them.
const std::vector<std::unique_ptr<const Command>>& allCommands();

inline const QString programName = QStringLiteral("ridelog-cli");

// One line on standard error each, beginning with the program's name.

ExitStatus wrongWords(const QString& message);
/// Points to the command's help as well.
ExitStatus wrongWords(const Command& command, const QString& message);
ExitStatus refuse(const QString& file, const QString& reason);
ExitStatus fail(const QString& file, const QString& reason);

/// Writes to standard output; what cannot be written is a failure.
ExitStatus print(const QString& text);
/// The same with the one JSON value that `write` writes.
ExitStatus printJson(const std::function<void(JsonWriter&)>& write);

} // namespace ridelog
