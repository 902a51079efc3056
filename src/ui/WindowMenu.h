#pragma once

#include <QMenu>

namespace ridelog {

class ApplicationWindows;

/// The menu of all open windows of the application. Each can be brought to the front; that of the menu is
/// marked.
class WindowMenu : public QMenu {
    Q_OBJECT

public:
    /// `windows` have to outlive it.
    WindowMenu(const ApplicationWindows& windows, QWidget& owner);

private:
    void fill();

    const ApplicationWindows& _windows;
};

} // namespace ridelog
