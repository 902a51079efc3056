#pragma once

#include <QObject>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

class ApplicationWindows;

/// Lets files be dropped on a window: they are opened or imported.
class FileDrop : public QObject {
    Q_OBJECT

public:
    /// The window owns it; the windows have to outlive it.
    FileDrop(ApplicationWindows& windows, QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ApplicationWindows& _windows;
    QWidget& _window;
};

} // namespace ridelog
