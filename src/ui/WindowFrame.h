#pragma once

#include <QSize>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QScreen)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

class Defaults;

// The frame of a window: where it stands and how large it is, under a name among the user's choices.

/// Puts the window where it was, but on a screen that is there. False without a stored frame that can be
/// read.
bool restoreFrame(QWidget& window, const Defaults& defaults, const QString& name);
void storeFrame(const QWidget& window, Defaults& defaults, const QString& name);

/// The size of a window that nobody has sized: the usual one, or what the screen has room for.
QSize fitting(QSize usual, const QScreen& screen);
/// For a window that is hidden: shown again it stands where it is, and not where a new one would.
void comeBackWhereItIs(QWidget& window);

} // namespace ridelog
