#include "ui/MenuEntries.h"

#include "ui/ApplicationWindows.h"
#include "ui/ManualHelp.h"
#include "ui/SegmentedControl.h"

#include <QCoreApplication>
#include <QMenu>
#include <QToolButton>

namespace ridelog {

QAction* addEntry(QMenu& menu, const QString& text, const QKeySequence& keys)
{
    auto* action = menu.addAction(text);
    action->setShortcut(keys);
    return action;
}

void addButtonEntry(QMenu& menu, const QString& text, QAbstractButton& button, const QKeySequence& keys)
{
    auto* action = addEntry(menu, text, keys);
    action->setCheckable(true);
    const auto show = [action, &button] { action->setChecked(button.isChecked()); };
    QObject::connect(&menu, &QMenu::aboutToShow, action, show);
    QObject::connect(action, &QAction::triggered, &button, [&button, show] {
        button.click();
        show();
    });
}

void addSegments(QMenu& menu, const SegmentedControl& control, int first)
{
    for (int index = 0; index < control.count(); ++index)
        addButtonEntry(menu, control.segment(index).text(), control.segment(index),
                       Qt::CTRL | static_cast<Qt::Key>(first + index));
    menu.addSeparator();
}

void addCloseAndQuit(QMenu& menu, QWidget& window, ApplicationWindows& windows)
{
    QObject::connect(
        addEntry(menu, QCoreApplication::translate("MenuEntries", "&Close"), QKeySequence::Close),
        &QAction::triggered, &window, &QWidget::close);
    auto* action = addEntry(menu, QCoreApplication::translate("MenuEntries", "&Quit"), Qt::CTRL | Qt::Key_Q);
    action->setMenuRole(QAction::QuitRole);
    QObject::connect(action, &QAction::triggered, &windows, &ApplicationWindows::quit);
}

void addPreferences(QMenu& menu, ApplicationWindows& windows)
{
    auto* action =
        addEntry(menu, QCoreApplication::translate("MenuEntries", "&Preferences…"), Qt::CTRL | Qt::Key_Comma);
    action->setMenuRole(QAction::PreferencesRole);
    QObject::connect(action, &QAction::triggered, &windows, &ApplicationWindows::showPreferences);
}

void addManual(QMenu& menu, QWidget& window)
{
    auto* action = addEntry(menu, QCoreApplication::translate("MenuEntries", "&Manual"), Qt::Key_F1);
    QObject::connect(action, &QAction::triggered, &window, [&window] {
        auto* place = window.focusWidget();
        askForManual(place ? *place : window);
    });
}

} // namespace ridelog
