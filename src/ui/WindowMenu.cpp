#include "ui/WindowMenu.h"

#include "ui/ApplicationWindows.h"
#include "ui/NumberedEntry.h"
#include "ui/WindowTitle.h"

namespace ridelog {

WindowMenu::WindowMenu(const ApplicationWindows& windows, QWidget& owner)
    : QMenu(tr("&Window"), &owner), _windows(windows)
{
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::fill);
}

void WindowMenu::fill()
{
    clear();
    for (auto* window : _windows.openWindows()) {
        auto* action = addNumberedEntry(*this, shownTitle(*window));
        action->setCheckable(true);
        action->setChecked(window == parentWidget());
        connect(action, &QAction::triggered, window, [window] { ApplicationWindows::bringToFront(*window); });
    }
}

} // namespace ridelog
