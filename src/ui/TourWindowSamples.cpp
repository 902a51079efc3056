// The samples of a tour: the table, the mark in the chart, the values under the mouse.

#include "exchange/TourSummary.h"
#include "model/SeriesNames.h"
#include "ui/ElidedLabel.h"
#include "ui/SampleTableModel.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QClipboard>
#include <QDockWidget>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ridelog {
namespace {

constexpr int samplesOfPage = 15; ///< five minutes

} // namespace

// Drawers

void TourWindowController::toggleDrawer(QDockWidget& drawer)
{
    drawer.setVisible(drawer.isHidden());
}

void TourWindowController::drawerDidChange(QDockWidget& drawer)
{
    // A window that is minimised or closed hides the drawer with it, which nobody has closed.
    const bool isOpen = !drawer.isHidden();
    auto& wasOpen = &drawer == _summaryDrawer ? _isSummaryOpen : _showIndicator;
    if (std::exchange(wasOpen, isOpen) == isOpen)
        return;
    qCDebug(lcUi, "[%s] %s", isOpen ? "drawerDidOpen" : "drawerDidClose", qPrintable(drawer.objectName()));
    if (&drawer == _summaryDrawer) {
        _summaryButton->setChecked(isOpen);
        return;
    }
    _dataButton->setChecked(isOpen);
    _chart->setMouseDelegate(isOpen ? this : nullptr);
    showIndicator();
}

// The selected sample

int TourWindowController::selectedIndex() const
{
    const auto& rows = *_dataTable->selectionModel();
    if (rows.isSelected(rows.currentIndex()))
        return rows.currentIndex().row();
    const auto selection = rows.selection();
    return selection.isEmpty() ? -1 : selection.constFirst().top();
}

float TourWindowController::xValueOf(const SeriesEntry& entry) const
{
    return _selectedXAxisValue == SeriesNames::time ? static_cast<float>(entry.time) : entry.distance;
}

void TourWindowController::showIndicator()
{
    const auto row = _showIndicator ? selectedIndex() : -1;
    if (row >= 0)
        _chart->showXIndicatorUsingValue(xValueOf(_samples->entryAt(row)));
    else
        _chart->hideXIndicator();
}

void TourWindowController::tableViewSelectionDidChange()
{
    qCDebug(lcUi, "[tableViewSelectionDidChange] %d", selectedIndex());
    showIndicator();
}

// Clicks and keys

std::optional<int> TourWindowController::nearestIndex(double x) const
{
    std::optional<int> nearest;
    auto best = 1e9;
    int index = 0;
    for (const auto& entry : _odoTour->data()) {
        const auto distance = std::abs(x - static_cast<double>(xValueOf(entry)));
        if (distance < best) {
            best = distance;
            nearest = index;
        }
        ++index;
    }
    return nearest;
}

void TourWindowController::clickAtXValue(double x)
{
    qCDebug(lcUi, "- (void)clickAtXValue:(float)%f", x);
    if (const auto index = nearestIndex(x))
        indexClicked(*index);
}

void TourWindowController::indexClicked(int index)
{
    qCDebug(lcUi, "- (void)indexClicked:%d", index);
    _dataTable->selectRow(index);
    _dataTable->scrollTo(_samples->index(index, 0));
}

/// The sample that a key leads to; none for other keys.
std::optional<int> TourWindowController::indexAfterKey(int key) const
{
    const int last = _samples->rowCount() - 1;
    const auto from = [this, last](int step) { return std::clamp(selectedIndex() + step, 0, last); };
    switch (key) {
    case Qt::Key_Left:
        return from(-1);
    case Qt::Key_Right:
        return from(1);
    case Qt::Key_PageUp:
        return from(-samplesOfPage);
    case Qt::Key_PageDown:
        return from(samplesOfPage);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

bool TourWindowController::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
        return QMainWindow::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (watched == _title)
        return filterTitleKey(key);
    // In the table all keys but two lead somewhere already.
    const bool isTaken = watched == _chart || key.key() == Qt::Key_Home || key.key() == Qt::Key_End;
    if (type != QEvent::KeyPress || key.modifiers() != Qt::NoModifier || !isTaken)
        return false;
    const auto index = indexAfterKey(key.key());
    if (!index)
        return false;
    indexClicked(*index);
    showReadout(index);
    _chart->setAccessibleDescription(readout());
    return true;
}

// The values under the mouse

void TourWindowController::showReadout(std::optional<int> index)
{
    QStringList values;
    if (index) {
        for (const auto column :
             {SampleColumn::time, SampleColumn::distance, SampleColumn::altitude, SampleColumn::speed,
              SampleColumn::pulse, SampleColumn::grade, SampleColumn::power})
            values << QStringLiteral("%1: %2").arg(_samples->name(column), _samples->text(*index, column));
    }
    _readout->setText(values.join(QStringLiteral("   ")));
}

QString TourWindowController::readout() const
{
    return _readout->text();
}

// Copying

/// The selected rows as lines of columns with tabs between them, the headers first.
void TourWindowController::copySamples()
{
    auto rows = _dataTable->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        showMessage(tr("No samples are selected."));
        return;
    }
    QStringList lines;
    const auto addLine = [&lines](const auto& textOf) {
        QStringList cells;
        for (int column = 0; column < sampleColumns; ++column)
            cells << textOf(column);
        lines << cells.join(u'\t');
    };
    addLine([this](int column) {
        return _samples->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    });
    std::ranges::sort(rows, {}, &QModelIndex::row);
    for (const auto& row : std::as_const(rows))
        addLine([&row](int column) { return row.siblingAtColumn(column).data().toString(); });
    QGuiApplication::clipboard()->setText(lines.join(u'\n') + u'\n');
    showMessage(tr("%Ln sample(s) copied.", nullptr, static_cast<int>(rows.size())));
}

/// All summary values as lines of name and value with a tab between, a blank line between groups.
void TourWindowController::copySummary()
{
    QStringList groups;
    for (const auto& group : tourSummary(*_odoTour, _defaults)) {
        auto lines = group.name + u'\n';
        for (const auto& value : group.values)
            lines += value.name + u'\t' + value.text + u'\n';
        groups << lines;
    }
    QGuiApplication::clipboard()->setText(groups.join(u'\n'));
    showMessage(tr("The summary is copied."));
}

} // namespace ridelog
