#pragma once

#include "chart/ChartScaling.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace ridelog {

/// A picture of a chart as a file's bytes.
struct ChartPicture {
    QByteArray bytes;
    QString error; ///< why there is none; empty if there is one
};

/// Pixels, or view units, of a side: the largest that all types and their readers take.
constexpr int largestChartPicture = 16'384;

/// The picture types by the endings of their files: jpg, jpeg, png, svg, pdf.
QStringList chartPictureEndings();

/// Draws the chart, as wide and high as it is, in the type that the file's name ends with. A picture of
/// points has one pixel for a view unit.
ChartPicture chartPicture(const ChartScaling::Chart& chart, std::optional<float> indicator,
                          const QString& fileName);

} // namespace ridelog
