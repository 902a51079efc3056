#pragma once

#include <QByteArray>
#include <QString>

namespace ridelog {

// Pieces of the pictures in a report. Lengths are in units of the picture, written to a tenth.

/// Appends a length, which has to be finite.
void appendLength(QByteArray& svg, double length);
/// A line of text. `place` is "begin", "middle" or "end": where in the text (x, y) lies.
QByteArray svgText(const char* place, double x, double y, const QString& text);
/// Begins a picture that shows what `label` says; `attributes` come with it.
QByteArray svgBegin(double width, double height, const QString& label, const char* attributes = "");
/// The attributes of a rectangle's place.
QByteArray svgBox(double x, double y, double width, double height);
/// Of the path of a straight line.
QByteArray horizontalLine(double x, double y, double width);
QByteArray verticalLine(double x, double y, double height);

} // namespace ridelog
