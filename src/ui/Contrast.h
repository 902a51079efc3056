#pragma once

#include <QColor>
#include <QPalette>

namespace ridelog {

/// The ratio of two opaque colours' luminances, 1 to 21, as WCAG 2.1 defines it (success criterion 1.4.3).
double contrast(const QColor& one, const QColor& other);

/// What texts need against what is behind them to be read by everybody (WCAG 2.1, level AA).
constexpr double readableContrast = 4.5;

/// The colour of texts that count less than others: as near to what is behind them as can still be read.
QColor subduedTextColour(const QPalette& palette);

/// These colours, and where they are too like each other, for links, selected and subdued texts, nearby ones
/// that can be read.
QPalette readable(QPalette palette);

/// Keeps the application's colours readable, in every theme: not all say how each kind of text is written.
void keepColoursReadable();

} // namespace ridelog
