#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// A line for each tour, with all its summary values. What the device has not recorded is left empty.
class SummaryCsvFormat final : public ExportFormat {
public:
    QString name() const override;
    QString description() const override;
    QString ending() const override;
    Files files() const override { return Files::oneForAll; }
    QString suffix() const override;
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;
};

} // namespace ridelog
