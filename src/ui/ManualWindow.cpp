#include "ui/ManualWindow.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/ApplicationWindows.h"
#include "ui/ManualHelp.h"
#include "ui/ManualPage.h"
#include "ui/MenuEntries.h"
#include "ui/MessageLine.h"
#include "ui/WindowFrame.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QWindow>

#include <algorithm>

namespace ridelog {
namespace {

constexpr QSize usualSize(820, 720);
constexpr int smallestZoom = -4; // points
constexpr int largestZoom = 20;

} // namespace

ManualWindow::ManualWindow(Defaults& defaults) : _defaults(defaults), _page(new ManualPage)
{
    setWindowTitle(tr("Manual"));
    // The application ends with its last document, whether the manual is shown or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    setManualSection(*this, {});
    setCentralWidget(_page);
    _message = new MessageLine;
    statusBar()->addWidget(_message, 1);
    makeToolBar();
    makeActions();
    if (!restoreFrame(*this, _defaults, DefaultsKeys::manualWindowFrame))
        resize(fitting(usualSize, *screen()));
    zoom(_defaults.integerForKey(DefaultsKeys::manualZoom));
    connect(_page, &ManualPage::sourceChanged, this, [this] { _message->tell({}); });
}

ManualWindow::~ManualWindow()
{
    storeFrame(*this, _defaults, DefaultsKeys::manualWindowFrame);
}

void ManualWindow::showSection(const QString& section)
{
    ApplicationWindows::bringToFront(*this);
    // What lies over a panel can be used beside it.
    const auto* panel = QApplication::activeModalWidget();
    const bool keepsOthers = panel && panel->windowModality() == Qt::ApplicationModal;
    windowHandle()->setTransientParent(keepsOthers ? panel->windowHandle() : nullptr);
    _page->showSection(section);
    _page->setFocus();
}

void ManualWindow::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    comeBackWhereItIs(*this);
}

QString ManualWindow::message() const
{
    return _message->text();
}

// Set-up

void ManualWindow::makeToolBar()
{
    auto& bar = *addToolBar(tr("Tool Bar"));
    bar.setMovable(false);
    bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    bar.setObjectName(QStringLiteral("toolBar"));
}

void ManualWindow::makeActions()
{
    auto& bar = *findChild<QToolBar*>();
    const auto add = [this](QMenu& menu, const QString& text, const QKeySequence& keys, auto act) {
        auto* action = addEntry(menu, text, keys);
        connect(action, &QAction::triggered, this, act);
        return action;
    };

    auto& file = *menuBar()->addMenu(tr("&File"));
    add(file, tr("&Close"), QKeySequence::Close, [this] { close(); });

    auto& edit = *menuBar()->addMenu(tr("&Edit"));
    add(edit, tr("&Copy"), QKeySequence::Copy, [this] { _page->copy(); });
    add(edit, tr("Select &All"), QKeySequence::SelectAll, [this] { _page->selectAll(); });
    edit.addSeparator();
    add(edit, tr("&Find"), QKeySequence::Find, [this] {
        _searchField->setFocus(Qt::ShortcutFocusReason);
        _searchField->selectAll();
    });
    add(edit, tr("Find &Next"), Qt::Key_F3, [this] { findAgain(false); });
    add(edit, tr("Find &Previous"), Qt::SHIFT | Qt::Key_F3, [this] { findAgain(true); });

    auto& view = *menuBar()->addMenu(tr("&View"));
    auto* larger = add(view, tr("&Larger Letters"), {}, [this] { zoom(1); });
    // What stands on the key differs from keyboard to keyboard.
    larger->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
    add(view, tr("&Smaller Letters"), Qt::CTRL | Qt::Key_Minus, [this] { zoom(-1); });
    add(view, tr("&Usual Letters"), Qt::CTRL | Qt::Key_0, [this] { zoom(-_zoom); });

    auto& go = *menuBar()->addMenu(tr("&Go"));
    auto* back = add(go, tr("&Back"), Qt::ALT | Qt::Key_Left, [this] { _page->backward(); });
    auto* forward = add(go, tr("&Forward"), Qt::ALT | Qt::Key_Right, [this] { _page->forward(); });
    auto* contents = add(go, tr("&Contents"), Qt::ALT | Qt::Key_Home, [this] { _page->showSection({}); });
    for (auto* action : {back, forward})
        action->setEnabled(false);
    connect(_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar.addActions({back, forward, contents});

    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(space);
    _searchField = new QLineEdit;
    _searchField->setPlaceholderText(tr("Find on this page"));
    _searchField->setAccessibleName(tr("Find on this page"));
    _searchField->setMaximumWidth(240);
    _searchField->setClearButtonEnabled(true);
    connect(_searchField, &QLineEdit::textEdited, this, &ManualWindow::find);
    connect(_searchField, &QLineEdit::returnPressed, this, [this] { findAgain(false); });
    bar.addWidget(_searchField);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &ManualWindow::leave);
}

// What they do

void ManualWindow::zoom(int steps)
{
    const auto wanted = std::clamp(_zoom + steps, smallestZoom, largestZoom);
    _page->zoomIn(wanted - _zoom);
    _zoom = wanted;
    _defaults.setValue(DefaultsKeys::manualZoom, _zoom);
}

/// From the first letter on, at the place where the last one was found.
void ManualWindow::find()
{
    auto cursor = _page->textCursor();
    cursor.setPosition(cursor.selectionStart());
    _page->setTextCursor(cursor);
    findAgain(false);
}

void ManualWindow::findAgain(bool backward)
{
    const auto words = _searchField->text();
    _message->tell({});
    if (words.isEmpty())
        return;
    const auto direction = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (_page->find(words, direction))
        return;
    // Once more from the other end.
    const auto before = _page->textCursor();
    _page->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (_page->find(words, direction))
        return;
    _page->setTextCursor(before);
    _message->tell(tr("“%1” is not on this page.").arg(words));
}

/// From the search to the page, from the page to where one came from.
void ManualWindow::leave()
{
    if (_searchField->hasFocus())
        _page->setFocus();
    else
        close();
}

} // namespace ridelog
