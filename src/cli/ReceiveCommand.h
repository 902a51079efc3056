#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Waits for the device and takes one raw dump from it.
class ReceiveCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
