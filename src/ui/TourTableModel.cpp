#include "ui/TourTableModel.h"

#include "ui/Contrast.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace ridelog {
namespace {

constexpr auto numberAlignment = Qt::AlignRight | Qt::AlignVCenter;
constexpr auto textAlignment = Qt::AlignLeft | Qt::AlignVCenter;

/// By more than the last three columns that were clicked nobody thinks a table to be sorted.
constexpr std::size_t mostDescriptors = 3;

/// No screen shows more characters of a cell, and laying out a longer title for nothing takes its time.
constexpr qsizetype mostShown = 1000;

} // namespace

TourTableModel::TourTableModel(TourArrayController& controller, const Defaults& defaults, QObject* parent)
    : QAbstractTableModel(parent), _controller(controller), _defaults(defaults), _columns(defaults)
{
    connect(&_controller, &TourArrayController::aboutToRearrange, this, [this] { beginResetModel(); });
    connect(&_controller, &TourArrayController::rearranged, this, [this] { endResetModel(); });
    connect(&_controller, &TourArrayController::tourChanged, this,
            [this](int row) { Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1)); });
}

const OdoTour& TourTableModel::tourAt(int row) const
{
    return *_controller.arrangedObjects()[static_cast<std::size_t>(row)];
}

int TourTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_controller.arrangedObjects().size());
}

int TourTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : TourColumns::count();
}

QVariant TourTableModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return _columns.text(index.column(), tourAt(index.row())).left(mostShown);
    case Qt::EditRole:
        return _columns.text(index.column(), tourAt(index.row()));
    case Qt::TextAlignmentRole:
        return QVariant(TourColumns::isNumber(index.column()) ? numberAlignment : textAlignment);
    case Qt::ForegroundRole:
        return tourAt(index.row()).removed() ? QVariant(subduedTextColour(QGuiApplication::palette()))
                                             : QVariant();
    default:
        return {};
    }
}

QVariant TourTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(TourColumns::isNumber(section) ? numberAlignment : textAlignment);
    return role == Qt::DisplayRole ? _columns.header(section) : QVariant();
}

Qt::ItemFlags TourTableModel::flags(const QModelIndex& index) const
{
    const auto usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    const bool isTitle = TourColumns::keyOf(index.column()) == TourKey::title;
    return isTitle ? usual | Qt::ItemIsEditable : usual;
}

bool TourTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const auto tour = _controller.arrangedObjects()[static_cast<std::size_t>(index.row())];
    const auto typed = value.toString();
    const auto title = typed.trimmed();
    // An untitled tour is shown without a title, and stays one when nothing was typed.
    if (const auto shown = _columns.text(index.column(), *tour); typed == shown || title == shown)
        return false;
    tour->setTitle(title.isEmpty() ? OdoTour::untitled() : title);
    Q_EMIT textEdited();
    return true;
}

void TourTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= TourColumns::count())
        return;
    const SortDescriptor first{.key = TourColumns::keyOf(column), .ascending = order == Qt::AscendingOrder};
    auto descriptors = _controller.sortDescriptors();
    std::erase_if(descriptors, [&](const auto& one) { return one.key == first.key; });
    descriptors.insert(descriptors.begin(), first);
    descriptors.resize(std::min(descriptors.size(), mostDescriptors));
    if (descriptors != _controller.sortDescriptors())
        _controller.setSortDescriptors(std::move(descriptors));
}

void TourTableModel::reformat()
{
    _columns = TourColumns(_defaults);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

} // namespace ridelog
