#pragma once

#include "tests/support/Events.h"

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QStandardPaths>
#include <QStringList>

#include <gtest/gtest.h>

namespace ridelog {

/// A desktop of the test's own, which nobody sees: an X server, a window manager, and the keys and the mouse
/// of a rider.
class Desktop {
public:
    static constexpr QSize size{1400, 900};

    /// Of the programs that it is made of.
    static QStringList missing();

    /// `folder` takes what the desktop's programs keep.
    explicit Desktop(const QString& folder);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// False if the desktop does not come up in good time.
    bool start();
    /// For programs that are to appear on it: nothing in it is of the machine's own desktop.
    const QProcessEnvironment& environment() const { return _environment; }

    // What a rider does with the window in front: keys as xdotool calls them, a place within the window

    void press(const char* keys);
    void type(const char* text);
    void click(QPoint place);

    // The window in front

    /// Empty while it does not get the keys.
    QString title();
    /// Where the window is on the screen, without what the window manager puts around it. The mouse shows it.
    QRect frame();
    void setFrame(const QRect& frame);

    // The screen

    void moveMouseTo(QPoint place);
    /// What is on the screen at this moment, the mouse pointer included.
    QImage picture() const;

private:
    QString tell(const QStringList& words);

    QString _folder;
    QProcessEnvironment _environment;
    QProcess _server;
    QProcess _windowManager;
};

/// Its process ends with the test, even if that is killed.
void endWithTest(QProcess& process);

} // namespace ridelog
