#include "ui/StartWindow.h"

#include "library/AppController.h"
#include "ui/ApplicationWindows.h"
#include "ui/Contrast.h"
#include "ui/FileDrop.h"
#include "ui/MainWindowController.h"
#include "ui/ManualHelp.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace ridelog {

StartWindow::StartWindow(ApplicationWindows& windows) : _windows(windows), _message(new QLabel)
{
    setWindowTitle(tr("ridelog"));
    new FileDrop(_windows, *this);
    setManualSection(*this, QStringLiteral("main-window.html#documents-and-files"));
    resize(560, 380);
    _message->setWordWrap(true);
    _message->setTextFormat(Qt::PlainText);
    _message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _message->setFocusPolicy(Qt::StrongFocus);

    auto* recent = new QListWidget;
    recent->setAccessibleName(tr("Recent documents"));
    const auto paths = _windows.controller().recentDocuments();
    for (const auto& path : paths) {
        auto* item = new QListWidgetItem(QDir::toNativeSeparators(path), recent);
        item->setData(Qt::UserRole, path);
        // Those that are gone can be chosen too: a stick may be plugged in again.
        if (!QFileInfo::exists(path))
            item->setForeground(subduedTextColour(palette()));
    }
    connect(recent, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        _windows.openDocument(item->data(Qt::UserRole).toString());
    });
    auto* label = new QLabel(tr("&Recent documents:"));
    label->setBuddy(recent);

    auto* buttons = new QHBoxLayout;
    const auto add = [&](const QString& text, const QKeySequence& keys, auto action) {
        auto* button = new QPushButton(text);
        button->setShortcut(keys);
        connect(button, &QPushButton::clicked, this, action);
        buttons->addWidget(button);
    };
    add(tr("New"), QKeySequence::New, [this] { _windows.controller().newDocument(); });
    add(tr("Open…"), QKeySequence::Open, [this] { _windows.askForDocument(this); });
    add(tr("Import Dump…"), Qt::CTRL | Qt::Key_I, [this] {
        _windows.controller().newDocument();
        _windows.mainWindows().back()->importFile();
    });
    buttons->addStretch();
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this, [this] { close(); });

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(_message);
    layout->addWidget(label);
    layout->addWidget(recent, 1);
    layout->addLayout(buttons);
}

void StartWindow::showMessage(const QString& message)
{
    _message->setText(message);
}

QString StartWindow::message() const
{
    return _message->text();
}

} // namespace ridelog
