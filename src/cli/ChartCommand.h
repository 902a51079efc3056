#pragma once

#include "cli/Command.h"

namespace ridelog {

/// Draws the chart of one tour into a picture.
class ChartCommand final : public Command {
public:
    QString name() const override;
    QString description() const override;
    QList<Argument> arguments() const override;
    QString synopsis() const override;
    QList<QCommandLineOption> options() const override;
    bool drawsPictures() const override { return true; }
    ExitStatus execute(const CommandContext& context) const override;
};

} // namespace ridelog
