#pragma once

#include "chart/ChartScaling.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)

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

/// What there is to be seen on a picture.
struct PictureContent {
    QSize size;          ///< view units
    QString description; ///< in words, for the types that hold it
    std::function<void(QPainter& painter)> draw;
};

/// A chart of series, as wide and high as it is; what it refers to has to outlive the content.
PictureContent chartContent(const ChartScaling::Chart& chart, std::optional<float> indicator);

/// Draws a picture of the type that the file's name ends with. One of points has one pixel for a view unit.
ChartPicture chartPicture(const PictureContent& content, const QString& fileName);

} // namespace ridelog
