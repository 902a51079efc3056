// The document's file, and dumps.

#include "library/AppController.h"
#include "ui/ApplicationWindows.h"
#include "ui/MainWindowController.h"
#include "ui/Sheet.h"
#include "ui/TourTableView.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScopedValueRollback>

namespace ridelog {

// Opening

void MainWindowController::newDocument()
{
    _windows.controller().newDocument();
}

void MainWindowController::openDocument()
{
    _windows.askForDocument(this);
}

// Importing

void MainWindowController::importFile()
{
    auto* panel = new QFileDialog(this, tr("Import Dump"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setLabelText(QFileDialog::Accept, tr("Import"));
    connect(panel, &QFileDialog::fileSelected, this, [this](const QString& path) { importDumps({path}); });
    panel->open();
}

/// What came of it, in words.
QString MainWindowController::importedFrom(const QString& path)
{
    const auto name = QFileInfo(path).fileName();
    const auto import = _document.importFile(path);
    _document.undoManager().closeGroup();
    if (!import.refusal.isEmpty())
        return tr("%1 was not imported: %2").arg(name, import.refusal);
    _tourController.showNewestFirst();
    _tourController.selectRow(0);
    return tr("%1: %Ln tour(s) added, %2 already there.", "file, number of tours",
              static_cast<int>(import.added))
        .arg(name, QLocale().toString(import.alreadyThere));
}

void MainWindowController::importDumps(const QStringList& paths, QStringList told)
{
    finishEditing();
    // Tours that have just come are not to be missed for what was looked for before.
    _searchField->clear();
    for (const auto& path : paths)
        told << importedFrom(path);
    _tableView->scrollToSelection();
    showMessage(told.join(u' '));
}

// Saving

/// Until it is answered the window stays, and the other windows can be worked with.
int MainWindowController::ask(QDialog& question)
{
    const QScopedValueRollback asking(_isAsking, true);
    question.setWindowModality(Qt::WindowModal);
    return question.exec();
}

bool MainWindowController::agrees(Sheet& sheet, const QString& button)
{
    const QAbstractButton* agreement = sheet.addButton(button, QMessageBox::DestructiveRole);
    sheet.setDefaultButton(sheet.addButton(QMessageBox::Cancel));
    ask(sheet);
    return sheet.clickedButton() == agreement;
}

void MainWindowController::showError(const QString& what, const QString& reason)
{
    Sheet sheet(this, QMessageBox::Warning, what, reason);
    sheet.addButton(QMessageBox::Ok);
    ask(sheet);
}

void MainWindowController::saveDocument()
{
    save();
}

void MainWindowController::saveDocumentAs()
{
    saveAs();
}

bool MainWindowController::save()
{
    if (_isAsking) {
        ApplicationWindows::bringToFront(*this);
        return false;
    }
    finishEditing();
    if (_document.path().isEmpty())
        return saveAs();
    if (_document.isReadOnly()) {
        showMessage(tr("The document can only be read (%1). Save it under another name.")
                        .arg(_document.readOnlyReason()));
        return saveAs();
    }
    if (_document.fileWasChangedByOthers()) {
        if (!askWhetherToOverwrite())
            return false;
        _document.acceptChangesOfOthers();
    }
    if (const auto error = _document.save()) {
        showError(tr("%1 was not saved.").arg(documentName()), *error);
        return false;
    }
    showTitle();
    showMessage(tr("Saved."));
    return true;
}

bool MainWindowController::askWhetherToOverwrite()
{
    Sheet sheet(this, QMessageBox::Question,
                tr("Another program has changed %1 since you opened it.").arg(documentName()),
                tr("If you overwrite it, what the other program wrote is lost."));
    return agrees(sheet, tr("&Overwrite"));
}

bool MainWindowController::saveAs()
{
    finishEditing();
    QFileDialog panel(this, tr("Save As"));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setNameFilters({tr("Tours (*.%1)").arg(MyDocument::extension), tr("All files (*)")});
    panel.setDefaultSuffix(MyDocument::extension);
    panel.selectFile(_document.path().isEmpty() ? tr("Tours") + u'.' + MyDocument::extension
                                                : _document.path());
    if (ask(panel) != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return false;
    const auto path = panel.selectedFiles().constFirst();
    if (const auto error = _windows.controller().saveDocumentAs(_document, path)) {
        showError(tr("%1 was not saved.").arg(QFileInfo(path).fileName()), *error);
        return false;
    }
    showTitle();
    showMessage(tr("Saved as %1.").arg(QDir::toNativeSeparators(path)));
    return true;
}

void MainWindowController::revertDocument()
{
    const auto& undo = _document.undoManager();
    const auto asked = undo.state();
    Sheet sheet(this, QMessageBox::Question, tr("Go back to what %1 holds?").arg(documentName()),
                tr("All changes since it was saved are lost, and cannot be brought back."));
    if (!agrees(sheet, tr("&Revert")))
        return;
    // A transfer may have ended meanwhile.
    if (undo.state() != asked) {
        showMessage(tr("The document was not reverted: it has changed since you were asked."));
        return;
    }
    const auto row = _tourController.selectedRows().empty() ? 0 : _tourController.selectedRows().front();
    if (const auto error = _document.revert()) {
        showError(tr("%1 could not be read.").arg(documentName()), *error);
    } else {
        _tourController.selectRow(row);
        showMessage(tr("The document is as it was saved."));
    }
    showTitle();
}

// Closing

/// A transfer that is under way is ended, if the user wants; what arrived is kept.
bool MainWindowController::mayEndTransfer()
{
    if (!isConnected() || _odoCom->odoData().isEmpty())
        return true;
    Sheet sheet(this, QMessageBox::Question, tr("A transfer from the device is under way."),
                tr("If you close the window now, it ends before the tours have arrived."));
    if (!agrees(sheet, tr("&Stop Transfer")))
        return false;
    stopTransfer();
    return true;
}

bool MainWindowController::mayClose()
{
    finishEditing();
    if (!mayEndTransfer())
        return false;
    while (_document.isChanged()) {
        const auto asked = _document.undoManager().state();
        Sheet sheet(this, QMessageBox::Question,
                    tr("Save the changes of %1 before it is closed?").arg(documentName()),
                    tr("They are lost if you do not save them."));
        sheet.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        sheet.button(QMessageBox::Discard)->setText(tr("&Don't Save"));
        sheet.setDefaultButton(QMessageBox::Save);
        switch (ask(sheet)) {
        case QMessageBox::Save:
            return save();
        case QMessageBox::Discard:
            // The answer is for what was there when it was asked.
            if (_document.undoManager().state() == asked)
                return true;
            break;
        default:
            return false;
        }
    }
    return true;
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    auto* busy = _isAsking ? this : exportingWindow();
    if (busy) {
        ApplicationWindows::bringToFront(*busy);
        event->ignore();
        return;
    }
    event->setAccepted(mayClose());
}

} // namespace ridelog
