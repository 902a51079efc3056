// What the rider changes in a tour window.

#include "format/ReadableUnits.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "library/MyDocument.h"
#include "platform/Defaults.h"
#include "ui/DescriptionEdit.h"
#include "ui/ElidedLabel.h"
#include "ui/TourTexts.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"
#include "ui/WindowTitle.h"

#include <QCheckBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

namespace ridelog {
namespace {

/// A description that nobody has written is shown as none.
StyledText shownDescription(const OdoTour& tour)
{
    return tour.shownDescription().isEmpty() ? StyledText() : tour.tourDescription();
}

/// Metres: no mountain is as high, and no mine as deep.
constexpr float mostOfAltitude = 20'000;

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

// The manual range

void TourWindowController::commitRange(QLineEdit& field, const QString& key)
{
    // What nobody has typed is not read back: the text may say less than the value.
    if (!field.isModified())
        return;
    field.setModified(false);
    showMessage({});
    auto formatter = UnitFormatters::manualRange(_defaults);
    // It reads in the units that it last wrote with.
    formatter.stringForObjectValue(0);
    QVariant metres;
    const bool isNumber = formatter.getObjectValue(&metres, field.text(), nullptr);
    const bool isLowest = &field == _minRangeTextField;
    const auto lowest = isLowest ? metres.toFloat() : _defaults.floatForKey(DefaultsKeys::minRange);
    const auto highest = isLowest ? _defaults.floatForKey(DefaultsKeys::maxRange) : metres.toFloat();
    if (!isNumber || !(std::abs(metres.toFloat()) <= mostOfAltitude))
        showMessage(tr("“%1” is no altitude. Write a number, like 850.").arg(field.text()));
    else if (lowest >= highest)
        showMessage(tr("The lowest altitude has to be below the highest."));
    else
        _defaults.setValue(key, metres);
    showRanges();
}

void TourWindowController::showRanges()
{
    const bool isUsed = _defaults.boolForKey(DefaultsKeys::useManualRange);
    _useManualRange->setChecked(isUsed);
    _rangeUnit->setText(ReadableUnits(_defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit());
    auto formatter = UnitFormatters::manualRange(_defaults);
    const auto show = [&](QLineEdit& field, const QString& key) {
        field.setEnabled(isUsed);
        // What is being typed is not taken away.
        if (!field.isModified())
            field.setText(formatter.stringForObjectValue(_defaults.floatForKey(key)));
    };
    show(*_minRangeTextField, DefaultsKeys::minRange);
    show(*_maxRangeTextField, DefaultsKeys::maxRange);
}

} // namespace ridelog
