#include "cli/TextTable.h"

#include "cli/Wording.h"

#include <algorithm>
#include <utility>

namespace ridelog {

TextTable::TextTable(QList<Column> columns) : _columns(std::move(columns)) {}

void TextTable::addRow(const QStringList& cells)
{
    QStringList row;
    for (const auto& cell : cells)
        row.append(printable(cell));
    _rows.append(row);
}

QString TextTable::text() const
{
    QStringList titles;
    for (const auto& column : _columns)
        titles.append(column.title);

    auto lines = _rows;
    if (std::ranges::any_of(titles, [](const auto& title) { return !title.isEmpty(); }))
        lines.prepend(titles);

    QList<qsizetype> widths(_columns.size(), 0);
    for (const auto& line : lines) {
        for (qsizetype column = 0; column < _columns.size(); ++column)
            widths[column] = std::max(widths[column], line.value(column).size());
    }

    QString text;
    for (const auto& line : lines) {
        QString row;
        for (qsizetype column = 0; column < _columns.size(); ++column) {
            const auto cell = line.value(column);
            row += QString(_columns[column].gap, u' ');
            row += _columns[column].align == Align::left ? cell.leftJustified(widths[column])
                                                         : cell.rightJustified(widths[column]);
        }
        while (row.endsWith(u' '))
            row.chop(1);
        text += row + u'\n';
    }
    return text;
}

} // namespace ridelog
