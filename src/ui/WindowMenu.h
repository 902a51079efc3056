#pragma once

#include <QMenu>

namespace ridelog {

class ApplicationWindows;

/// The menu of all open windows of the application. Each can be brought to the front; that of the menu is
/// marked.
class WindowMenu : public QMenu {
    Q_OBJECT

public:
    /// `windows` have to outlive it. `first` stand above the windows; they are the owner's.
    WindowMenu(const ApplicationWindows& windows, QWidget& owner, const QList<QAction*>& first = {});

private:
    void fill();

    const ApplicationWindows& _windows;
    QList<QAction*> _first;
};

} // namespace ridelog
