#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Is a cycle computer on a port of its own until it is stopped.
class SimulateCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
