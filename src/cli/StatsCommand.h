#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Shows totals and averages of all tours, and of those in the year, month and week of a date.
class StatsCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QList<Argument> arguments() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
