#include "ui/WindowFrame.h"

#include "platform/Defaults.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace ridelog {
namespace {

/// At least a part of its title bar has to be on some screen, or nobody can move the window.
bool isWithinReach(const QRect& frame)
{
    const auto screens = QGuiApplication::screens();
    const QRect titleBar(frame.topLeft(), QSize(frame.width(), 30));
    return std::ranges::any_of(screens, [&titleBar](const QScreen* screen) {
        const auto seen = screen->availableGeometry().intersected(titleBar);
        return seen.width() >= 100 && seen.height() >= 10;
    });
}

} // namespace

bool restoreFrame(QWidget& window, const Defaults& defaults, const QString& name)
{
    const auto stored = defaults.valueForKey(name).toByteArray();
    if (stored.isEmpty() || !window.restoreGeometry(stored))
        return false;
    const auto room = window.screen()->availableGeometry();
    if (!isWithinReach(window.frameGeometry())) {
        window.resize(window.size().boundedTo(room.size()));
        window.move(room.center() - window.rect().center());
    }
    return true;
}

void storeFrame(const QWidget& window, Defaults& defaults, const QString& name)
{
    defaults.setValue(name, window.saveGeometry());
}

QSize fitting(QSize usual, const QScreen& screen)
{
    // A window that is not shown yet does not know how large what the desktop puts around it is.
    constexpr QSize around(8, 40);
    return usual.boundedTo(screen.availableSize() - around);
}

void comeBackWhereItIs(QWidget& window)
{
    window.setAttribute(Qt::WA_Moved);
}

} // namespace ridelog
