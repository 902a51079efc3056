#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Looks for a newer version of the application.
class CheckUpdateCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
