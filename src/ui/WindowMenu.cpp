#include "ui/WindowMenu.h"

#include "ui/ApplicationWindows.h"
#include "ui/NumberedEntry.h"
#include "ui/WindowTitle.h"

namespace ridelog {

WindowMenu::WindowMenu(const ApplicationWindows& windows, QWidget& owner, const QList<QAction*>& first)
    : QMenu(tr("&Window"), &owner), _windows(windows), _first(first)
{
    addActions(_first);
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::fill);
}

void WindowMenu::fill()
{
    clear();
    addActions(_first);
    if (!_first.isEmpty())
        addSeparator();
    int number = 0;
    for (auto* window : _windows.openWindows()) {
        auto* action = addNumberedEntry(*this, ++number, shownTitle(*window));
        action->setCheckable(true);
        action->setChecked(window == parentWidget());
        connect(action, &QAction::triggered, window, [window] { ApplicationWindows::bringToFront(*window); });
    }
}

} // namespace ridelog
