#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Writes a plausible raw dump for trying things out.
class MakeDumpCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
