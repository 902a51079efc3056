#pragma once

#include "exchange/ExportFormat.h"

#include <QString>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

/// Says what came of it, in a sentence.
using TellExported = std::function<void(const QString&)>;

/// Asks over a window which of the tours are to be exported, in which format and where, and exports them:
/// some that are selected, or all, of which there is one at least. `tell` is not called once the window has
/// gone, which ends the export.
void askToExport(QWidget& over, Defaults& defaults, ExportSource source, const Tours& selected,
                 const Tours& all, TellExported tell);

/// The format of reports: the word of the command line.
inline const QString reportFormat = QStringLiteral("html");
/// Asks over a window where a report of these tours, one at least, is to be saved, and saves it.
void askToSaveReport(QWidget& over, Defaults& defaults, ExportSource source, const Tours& tours,
                     TellExported tell);

/// Whether files are being written for this window.
bool isExporting(const QWidget& window);

} // namespace ridelog
