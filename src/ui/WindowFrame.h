#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

class Defaults;

// The frame of a window: where it stands and how large it is, under a name among the user's choices.

/// Puts the window where it was, but on a screen that is there. False without a stored frame that can be
/// read.
bool restoreFrame(QWidget& window, const Defaults& defaults, const QString& name);
void storeFrame(const QWidget& window, Defaults& defaults, const QString& name);

} // namespace ridelog
