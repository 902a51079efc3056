#pragma once

#include "format/MultipFormatter.h"
#include "model/SeriesEntry.h"

#include <QString>

namespace ridelog {

class Defaults;

/// What is told of each entry of a tour's series, in the order in which people read it.
enum class SampleColumn { time, distance, altitude, speed, pulse, power, grade, temperature, cadence };
inline constexpr int sampleColumns = static_cast<int>(SampleColumn::cadence) + 1;

/// The values of series entries as people read them, in the user's units. Another one is made when those
/// change.
class SampleTexts {
public:
    /// `defaults` have to outlive it.
    explicit SampleTexts(const Defaults& defaults);

    QString text(SampleColumn column, const SeriesEntry& entry) const;
    /// The name of a column, with the unit if its texts have none.
    QString name(SampleColumn column) const;

private:
    MultipFormatter _distance;
    MultipFormatter _speed;
    MultipFormatter _altitude;
    QString _altitudeUnit;
};

} // namespace ridelog
