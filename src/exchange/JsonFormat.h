#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// What the command line prints of a list of tours with their series, as a file. Zeros that mean "not
/// recorded" are there as in that list.
class JsonFormat final : public ExportFormat {
public:
    QString name() const override;
    QString description() const override;
    QString ending() const override;
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;
};

} // namespace ridelog
