#pragma once

#include <QKeySequence>
#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QAction;
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace ridelog {

class ApplicationWindows;
class SegmentedControl;

QAction* addEntry(QMenu& menu, const QString& text, const QKeySequence& keys);
/// An entry that presses a button, and shows whether it is down.
void addButtonEntry(QMenu& menu, const QString& text, QAbstractButton& button, const QKeySequence& keys = {});
/// An entry for each button of the control, with the shortcuts Ctrl+`first` and so on.
void addSegments(QMenu& menu, const SegmentedControl& control, int first);
/// Close for this window, and Quit.
void addCloseAndQuit(QMenu& menu, QWidget& window, ApplicationWindows& windows);
void addPreferences(QMenu& menu, ApplicationWindows& windows);
/// Shows the part of the manual that belongs to where the keys of this window go.
void addManual(QMenu& menu, QWidget& window);

} // namespace ridelog
