#pragma once

#include "chart/ChartPicture.h"

#include <QSize>
#include <QString>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

class Defaults;

/// A chart that is drawn as large as the rider wants it.
using ChartOfSize = std::function<PictureContent(QSize size)>;
/// Asks where a picture of a chart is to be saved, of which type and how large, and saves it. It offers this
/// name, without an ending, and the size that the rider has chosen for all charts, else `usual`. `tell` is
/// called with what came of it, in a sentence.
void askToSaveChart(QWidget& over, Defaults& defaults, const QString& name, QSize usual, ChartOfSize chart,
                    std::function<void(const QString&)> tell);

} // namespace ridelog
