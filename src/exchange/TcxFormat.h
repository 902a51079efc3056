#pragma once

#include "exchange/ExportFormat.h"

namespace ridelog {

/// Training Center XML, version 2, with the activity extension's speed and power: an activity of one lap for
/// each tour, a track point for each entry of its series. What has not been recorded, and what the form has
/// no room for, is left out.
class TcxFormat final : public ExportFormat {
public:
    QString name() const override;
    QString description() const override;
    QString ending() const override;
    /// Tours outside the years 1 to 9999 have no date there.
    QString refusal(const Tours& tours) const override;
    void write(const Tours& tours, const ExportSource& source, const ExportSink& sink) const override;
};

} // namespace ridelog
