#pragma once

#include <QIcon>
#include <QString>

namespace ridelog {

/// A symbol of resources/icons/actions in the colour of the palette's texts, whichever palette there is when
/// it is drawn, and as sharp as the screen is.
QIcon actionIcon(const QString& name);

/// The application's icon: that of the desktop's theme where ridelog is installed, else the one it brings.
QIcon applicationIcon();

} // namespace ridelog
