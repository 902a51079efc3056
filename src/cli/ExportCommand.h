#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Writes tours as files for other programs.
class ExportCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QList<Argument> arguments() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
