#include "ui/TourTableView.h"

#include "library/DefaultsKeys.h"
#include "library/TourArrayController.h"
#include "platform/Defaults.h"
#include "ui/TourColumns.h"
#include "ui/TourTableModel.h"

#include <QDateTime>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <algorithm>
#include <limits>
#include <utility>

namespace ridelog {
namespace {

constexpr int titleWidth = 150;
constexpr int columnMargin = 9; ///< beside a header's text, for the arrow of the order

/// Edits titles, which may be longer than a field takes by itself.
class TitleDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        auto* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* field = qobject_cast<QLineEdit*>(editor))
            field->setMaxLength(std::numeric_limits<int>::max());
        return editor;
    }
};

QString widestDate()
{
    return QLocale().toString(QDateTime(QDate(2008, 12, 28), QTime(20, 48, 48)), QLocale::ShortFormat);
}

} // namespace

TourTableView::TourTableView(TourArrayController& controller, TourTableModel& model, Defaults& defaults,
                             QWidget* parent)
    : QTableView(parent), _controller(controller), _defaults(defaults)
{
    setModel(&model);
    setItemDelegate(new TitleDelegate(this));
    setAccessibleName(tr("Tours"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);

    auto& header = *horizontalHeader();
    header.setSectionsMovable(true);
    header.setHighlightSections(false);
    header.setSortIndicatorShown(true);
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &QWidget::customContextMenuRequested, this, &TourTableView::askForColumns);
    restoreColumns();
    showOrder();
    connect(&header, &QHeaderView::sortIndicatorChanged, &model, &TourTableModel::sort);
    // Rows that move would take the field away, and what was typed with it.
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &TourTableView::finishEditing);
    connect(&model, &QAbstractItemModel::modelReset, this, &TourTableView::showOrder);
    connect(&model, &QAbstractItemModel::modelReset, this, &TourTableView::showSelection);
    connect(&_controller, &TourArrayController::selectionChanged, this, &TourTableView::showSelection);
    showSelection();
}

// Columns

void TourTableView::restoreColumns()
{
    const auto stored = _defaults.valueForKey(DefaultsKeys::mainTableColumns).toByteArray();
    if (stored.isEmpty() || !horizontalHeader()->restoreState(stored) ||
        horizontalHeader()->hiddenSectionCount() == TourColumns::count())
        showColumnsAtFirst();
    horizontalHeader()->setSectionsClickable(true);
}

void TourTableView::showColumnsAtFirst()
{
    const QFontMetrics metrics(font());
    for (int column = 0; column < TourColumns::count(); ++column) {
        const auto name = model()->headerData(column, Qt::Horizontal).toString();
        const auto key = TourColumns::keyOf(column);
        auto width = metrics.horizontalAdvance(name) + 2 * columnMargin;
        if (key == TourKey::date)
            width = std::max(width, metrics.horizontalAdvance(widestDate()) + columnMargin);
        if (key == TourKey::type)
            width = std::max(width, metrics.horizontalAdvance(QStringLiteral("Ski-Bike")) + 2 * columnMargin);
        if (key == TourKey::title)
            width = titleWidth;
        setColumnWidth(column, width);
        setColumnHidden(column, !TourColumns::isShownAtFirst(column));
    }
    _columnsAreNew = true;
}

/// Titles get the room that is left at first.
void TourTableView::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    if (!std::exchange(_columnsAreNew, false))
        return;
    const auto title = TourColumns::columnWithKey(TourKey::title);
    setColumnWidth(
        title, std::max(titleWidth, columnWidth(title) + viewport()->width() - horizontalHeader()->length()));
}

void TourTableView::storeColumns() const
{
    _defaults.setValue(DefaultsKeys::mainTableColumns, horizontalHeader()->saveState());
}

void TourTableView::askForColumns(QPoint position)
{
    QMenu menu;
    fillColumnsMenu(menu);
    menu.exec(horizontalHeader()->mapToGlobal(position));
}

void TourTableView::fillColumnsMenu(QMenu& menu)
{
    for (int column = 0; column < TourColumns::count(); ++column) {
        auto* action = menu.addAction(model()->headerData(column, Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(!isColumnHidden(column));
        // Without any column there would be no header to ask for them again.
        action->setEnabled(isColumnHidden(column) ||
                           horizontalHeader()->hiddenSectionCount() + 1 < TourColumns::count());
        connect(action, &QAction::toggled, this,
                [this, column](bool shown) { setColumnHidden(column, !shown); });
    }
}

void TourTableView::fillOrderMenu(QMenu& menu)
{
    const auto first = horizontalHeader()->sortIndicatorSection();
    for (int column = 0; column < TourColumns::count(); ++column) {
        auto* action = menu.addAction(model()->headerData(column, Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(column == first);
        connect(action, &QAction::triggered, this,
                [this, column] { model()->sort(column, Qt::AscendingOrder); });
    }
    menu.addSeparator();
    auto* reverse = menu.addAction(tr("&Reverse Order"));
    reverse->setEnabled(first >= 0);
    connect(reverse, &QAction::triggered, this, [this, first] {
        const auto isAscending = horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder;
        model()->sort(first, isAscending ? Qt::DescendingOrder : Qt::AscendingOrder);
    });
}

void TourTableView::showOrder()
{
    const auto& descriptors = _controller.sortDescriptors();
    const auto column = descriptors.empty() ? -1 : TourColumns::columnWithKey(descriptors.front().key);
    const auto order =
        !descriptors.empty() && descriptors.front().ascending ? Qt::AscendingOrder : Qt::DescendingOrder;
    horizontalHeader()->setSortIndicator(column, order);
}

// Selection

void TourTableView::showSelection()
{
    if (_isFollowing)
        return;
    const QScopedValueRollback following(_isFollowing, true);
    const auto& rows = _controller.selectedRows();
    // Rows that follow each other are selected as one range: there may be thousands.
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();) {
        auto last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(model()->index(rows[first], 0),
                         model()->index(rows[last], model()->columnCount() - 1));
        first = last + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.empty() && !selectionModel()->isRowSelected(currentIndex().row()))
        selectionModel()->setCurrentIndex(model()->index(rows.front(), 0), QItemSelectionModel::NoUpdate);
}

void TourTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (_isFollowing)
        return;
    const QScopedValueRollback following(_isFollowing, true);
    std::vector<int> rows;
    for (const auto& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    _controller.selectRows(std::move(rows));
}

void TourTableView::scrollToSelection()
{
    if (!_controller.selectedRows().empty())
        scrollTo(model()->index(_controller.selectedRows().front(), 0));
}

// Editing

void TourTableView::editTitle()
{
    if (!_controller.selectedTour())
        return;
    const auto column = TourColumns::columnWithKey(TourKey::title);
    setColumnHidden(column, false);
    const auto title = model()->index(_controller.selectedRows().front(), column);
    scrollTo(title);
    setCurrentIndex(title);
    edit(title);
}

void TourTableView::finishEditing()
{
    if (state() != EditingState)
        return;
    if (auto* field = indexWidget(currentIndex())) {
        commitData(field);
        closeEditor(field, QAbstractItemDelegate::NoHint);
    }
}

} // namespace ridelog
