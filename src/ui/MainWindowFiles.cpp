// The document's file, and dumps.

#include "library/AppController.h"
#include "ui/ApplicationWindows.h"
#include "ui/Counted.h"
#include "ui/MainWindowController.h"
#include "ui/TourTableView.h"

#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

namespace ridelog {
namespace {

/// The local files that something dragged here consists of; none if one of them is something else.
QStringList localFiles(const QMimeData& dragged)
{
    QStringList paths;
    const auto urls = dragged.urls();
    for (const auto& url : urls) {
        if (!url.isLocalFile())
            return {};
        paths << url.toLocalFile();
    }
    return paths;
}

} // namespace

// Opening

void MainWindowController::newDocument()
{
    _windows.controller().newDocument();
}

void MainWindowController::openDocument()
{
    _windows.askForDocument(this);
}

void MainWindowController::takeFile(const QString& path)
{
    if (MyDocument::isDocumentFile(path))
        _windows.openDocument(path, this);
    else
        importDump(path);
}

// Importing

void MainWindowController::importFile()
{
    auto* panel = new QFileDialog(this, tr("Import Dump"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setLabelText(QFileDialog::Accept, tr("Import"));
    connect(panel, &QFileDialog::fileSelected, this, &MainWindowController::importDump);
    panel->open();
}

void MainWindowController::importDump(const QString& path)
{
    finishEditing();
    const auto import = _document.importFile(path);
    _document.undoManager().closeGroup();
    if (!import.refusal.isEmpty()) {
        showMessage(tr("%1 was not imported: %2").arg(QFileInfo(path).fileName(), import.refusal));
        return;
    }
    _tourController.showNewestFirst();
    _tourController.selectRow(0);
    _tableView->scrollToSelection();
    const auto added =
        counted(static_cast<qsizetype>(import.added), tr("1 tour added"), tr("%1 tours added"));
    showMessage(
        tr("%1: %2, %3 already there.").arg(QFileInfo(path).fileName(), added).arg(import.alreadyThere));
}

void MainWindowController::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindowController::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    const auto paths = localFiles(*event->mimeData());
    for (const auto& path : paths)
        takeFile(path);
}

// Saving

void MainWindowController::showError(const QString& what, const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, QString(), what, QMessageBox::Ok, this);
    box.setInformativeText(reason);
    box.setTextFormat(Qt::PlainText);
    box.exec();
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
    QMessageBox box(QMessageBox::Question, QString(),
                    tr("Another program has changed %1 since you opened it.").arg(documentName()),
                    QMessageBox::Cancel, this);
    box.setInformativeText(tr("If you overwrite it, what the other program wrote is lost."));
    box.setTextFormat(Qt::PlainText);
    const auto* overwrite = box.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == static_cast<const QAbstractButton*>(overwrite);
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
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
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
    finishEditing();
    QMessageBox box(QMessageBox::Question, QString(), tr("Go back to what %1 holds?").arg(documentName()),
                    QMessageBox::Cancel, this);
    box.setInformativeText(tr("All changes since it was saved are lost, and cannot be brought back."));
    box.setTextFormat(Qt::PlainText);
    const auto* revert = box.addButton(tr("&Revert"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() != static_cast<const QAbstractButton*>(revert))
        return;
    if (const auto error = _document.revert())
        showError(tr("%1 could not be read.").arg(documentName()), *error);
    else
        showMessage(tr("The document is as it was saved."));
    showTitle();
}

// Closing

bool MainWindowController::mayClose()
{
    finishEditing();
    if (!_document.isChanged())
        return true;
    QMessageBox box(QMessageBox::Question, QString(),
                    tr("Save the changes of %1 before it is closed?").arg(documentName()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setInformativeText(tr("They are lost if you do not save them."));
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Discard)->setText(tr("&Don't Save"));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

} // namespace ridelog
