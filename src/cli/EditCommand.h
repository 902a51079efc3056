#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Changes one tour of a document: what the rider added to it.
class EditCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QList<Argument> arguments() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
