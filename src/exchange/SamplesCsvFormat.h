#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// A line for each entry of a tour's series, the start first. What the device has not recorded is left empty.
class SamplesCsvFormat final : public ExportFormat {
public:
    QString name() const override;
    QString description() const override;
    QString ending() const override;
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;
};

} // namespace ridelog
