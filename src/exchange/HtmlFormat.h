#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// A report to be read in a browser and printed: of one tour, or of several or a period with a section for
/// each tour. In the units and colours that the rider has chosen, with the locale's dates and numbers.
class HtmlFormat final : public ExportFormat {
public:
    /// `defaults` have to outlive it.
    explicit HtmlFormat(const Defaults& defaults) : _defaults(defaults) {}

    QString name() const override;
    QString description() const override;
    QString ending() const override;
    bool tellsOfPeriods() const override { return true; }
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;

private:
    const Defaults& _defaults;
};

} // namespace ridelog
