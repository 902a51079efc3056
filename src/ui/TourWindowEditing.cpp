// What the rider changes in a tour window.

#include "exchange/TourTexts.h"
#include "library/MyDocument.h"
#include "ui/AltitudeRange.h"
#include "ui/DescriptionEdit.h"
#include "ui/ElidedLabel.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"
#include "ui/WindowTitle.h"

#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>

namespace ridelog {
namespace {

/// A description that nobody has written is shown as none.
StyledText shownDescription(const OdoTour& tour)
{
    return tour.shownDescription().isEmpty() ? StyledText() : tour.tourDescription();
}

/// Of a title, as far as anybody sees it in a window's frame.
constexpr qsizetype mostOfTitle = 200;

} // namespace

// The tour, also as other windows and undo change it

void TourWindowController::tourDidChange()
{
    const auto title = _odoTour->shownTitle();
    // What is being typed is not taken away.
    if (!_title->isModified())
        _title->setText(title);
    const auto description = shownDescription(*_odoTour);
    if (description != _text->shownText() && !_text->isBeingEdited())
        _text->setStyledText(description);
    _when->setText(startAndType(*_odoTour));
    qCDebug(lcUi, "[windowTitleForDocumentDisplayName]");
    const auto start = _odoTour->date().toString(tr("yyyy/MM/dd - HH:mm"));
    setWindowTitle(title.isEmpty()
                       ? start
                       : titleWithName(QStringLiteral("%1 – %2").arg(start, title.left(mostOfTitle))));
}

void TourWindowController::finishEditing()
{
    commitTitle();
    _text->finishEditing();
    _altitudeRange->finishEditing();
}

void TourWindowController::commitTitle()
{
    if (!_title->isModified())
        return;
    _title->setModified(false);
    const auto title = _title->text().trimmed();
    if (title == _odoTour->shownTitle()) {
        _title->setText(title);
        return;
    }
    _odoTour->setTitle(title.isEmpty() ? OdoTour::untitled() : title);
    _document.undoManager().closeGroup();
}

/// Steps that are in the field are the field's, all others the document's.
bool TourWindowController::filterTitleKey(const QKeyEvent& event)
{
    if (event.type() == QEvent::ShortcutOverride)
        return (event.matches(QKeySequence::Undo) && !_title->isUndoAvailable()) ||
               (event.matches(QKeySequence::Redo) && !_title->isRedoAvailable());
    if (event.key() != Qt::Key_Escape || !_title->isModified())
        return false;
    _title->setText(_odoTour->shownTitle());
    return true;
}

void TourWindowController::commitDescription()
{
    const auto description = _text->styledText();
    _odoTour->setTourDescription(description.text().isEmpty() ? StyledText(OdoTour::untitled())
                                                              : description);
    _document.undoManager().closeGroup();
}

void TourWindowController::askForLink()
{
    auto* panel = new QInputDialog(this);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(tr("Link"));
    panel->setLabelText(tr("Address of the page that the selected words lead to, empty for none:"));
    panel->setTextValue(_text->linkAtCursor());
    connect(panel, &QInputDialog::textValueSelected, _text,
            [this](const QString& address) { _text->setLink(address.trimmed()); });
    panel->open();
}

} // namespace ridelog
