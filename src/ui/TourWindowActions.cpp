// Menus of a tour window.

#include "library/MyDocument.h"
#include "ui/AltitudeRange.h"
#include "ui/ApplicationWindows.h"
#include "ui/DescriptionEdit.h"
#include "ui/MenuEntries.h"
#include "ui/TourWindowController.h"
#include "ui/UndoActions.h"
#include "ui/WindowMenu.h"

#include <QAction>
#include <QCheckBox>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

namespace ridelog {

void TourWindowController::makeActions()
{
    // What the last action led to has been read.
    connect(menuBar(), &QMenuBar::triggered, this, [this] { showMessage({}); });
    makeFileMenu();
    makeEditMenu();
    makeFormatMenu();
    makeViewMenu();
    menuBar()->addMenu(new WindowMenu(_windows, *this));
    addManual(*menuBar()->addMenu(tr("&Help")), *this);
}

void TourWindowController::makeFileMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&File"));
    connect(addEntry(menu, tr("&Save"), QKeySequence::Save), &QAction::triggered, this,
            &TourWindowController::saveRequested);
    connect(addEntry(menu, tr("&Export…"), Qt::CTRL | Qt::Key_E), &QAction::triggered, this,
            &TourWindowController::exportRequested);
    menu.addSeparator();
    auto* saveChartAction = addEntry(menu, tr("Save C&hart…"), Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    connect(saveChartAction, &QAction::triggered, this, &TourWindowController::saveChart);
    connect(_saveChartButton, &QToolButton::clicked, saveChartAction, &QAction::trigger);
    connect(addEntry(menu, tr("&Print…"), QKeySequence::Print), &QAction::triggered, this,
            &TourWindowController::print);
    menu.addSeparator();
    addCloseAndQuit(menu, *this, _windows);
}

void TourWindowController::makeEditMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Edit"));
    auto* undo = new UndoActions(menu, _document.undoManager());
    connect(undo, &UndoActions::chosen, this, &TourWindowController::aboutToStep);
    // What is being typed is the first step that can be taken back.
    connect(&menu, &QMenu::aboutToShow, this, &TourWindowController::finishEditing);
    menu.addSeparator();
    auto* copyAction = addEntry(menu, tr("&Copy Samples"), QKeySequence::Copy);
    // In a text the same keys copy words.
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &TourWindowController::copySamples);
    connect(addEntry(menu, tr("Copy Su&mmary"), Qt::CTRL | Qt::SHIFT | Qt::Key_C), &QAction::triggered, this,
            &TourWindowController::copySummary);
    _dataTable->addAction(copyAction);
    _dataTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    menu.addSeparator();
    addPreferences(menu, _windows);
}

void TourWindowController::makeFormatMenu()
{
    auto& menu = *menuBar()->addMenu(tr("F&ormat"));
    const auto addStyle = [&](const QString& text, const QKeySequence& keys, auto isSet, auto set) {
        auto* action = addEntry(menu, text, keys);
        action->setCheckable(true);
        connect(action, &QAction::triggered, _text, set);
        connect(_text, &QTextEdit::currentCharFormatChanged, action,
                [action, isSet](const QTextCharFormat& current) { action->setChecked(isSet(current)); });
    };
    addStyle(
        tr("&Bold"), QKeySequence::Bold,
        [](const QTextCharFormat& current) { return current.fontWeight() >= QFont::DemiBold; },
        &DescriptionEdit::setBold);
    addStyle(
        tr("&Italic"), QKeySequence::Italic,
        [](const QTextCharFormat& current) { return current.fontItalic(); }, &DescriptionEdit::setItalic);
    addStyle(
        tr("&Underline"), QKeySequence::Underline,
        [](const QTextCharFormat& current) { return current.fontUnderline() && !current.isAnchor(); },
        &DescriptionEdit::setUnderlined);
    connect(addEntry(menu, tr("&List"), Qt::CTRL | Qt::SHIFT | Qt::Key_L), &QAction::triggered, _text,
            &DescriptionEdit::toggleList);
    connect(addEntry(menu, tr("Lin&k…"), Qt::CTRL | Qt::Key_K), &QAction::triggered, this,
            &TourWindowController::askForLink);
    _styleBar->addActions(menu.actions());
    menu.addSeparator();
    connect(addEntry(menu, tr("&Open Link"), Qt::CTRL | Qt::Key_Return), &QAction::triggered, _text, [this] {
        if (!_text->openLink(_text->linkAtCursor()))
            showMessage(tr("Here is no link to a page or a mail address that could be opened."));
    });
}

void TourWindowController::makeViewMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&View"));
    addSegments(menu, *_xSegmentControl, Qt::Key_1);
    addSegments(menu, *_ySegmentControl, Qt::Key_3);
    addButtonEntry(menu, tr("&Manual Range of Altitudes"), _altitudeRange->useManualRange());
    menu.addSeparator();
    addButtonEntry(menu, tr("&Data"), *_dataButton, Qt::CTRL | Qt::Key_D);
    addButtonEntry(menu, tr("S&ummary"), *_summaryButton, Qt::CTRL | Qt::SHIFT | Qt::Key_D);
}

} // namespace ridelog
