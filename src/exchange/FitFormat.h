#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// An activity as cycle computers record it and services take it: a record for each entry of the series, one
/// lap, one session. What the device has not recorded, and values that have no room in the format, are left
/// out or marked as not recorded.
class FitFormat final : public ExportFormat {
public:
    QString name() const override;
    QString description() const override;
    QString ending() const override;
    Files files() const override { return Files::onePerTour; }
    /// Tours outside the years that the format has dates for.
    QString refusal(const Tours& tours) const override;
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;
};

} // namespace ridelog
