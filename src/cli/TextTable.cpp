#include "cli/TextTable.h"

#include <algorithm>
#include <utility>

namespace ridelog {

TextTable::TextTable(QList<Column> columns) : _columns(std::move(columns)) {}

void TextTable::addRow(const QStringList& cells)
{
    _rows.append(cells);
}

QString TextTable::text() const
{
    QStringList titles;
    for (const auto& column : _columns)
        titles.append(column.title);

    auto lines = _rows;
    if (std::ranges::any_of(titles, [](const auto& title) { return !title.isEmpty(); }))
        lines.prepend(titles);

    QString text;
    for (const auto& line : lines) {
        QString row;
        for (qsizetype column = 0; column < _columns.size(); ++column) {
            qsizetype width = 0;
            for (const auto& other : lines)
                width = std::max(width, other.value(column).size());
            const auto cell = line.value(column);
            row += QStringLiteral("  ");
            row += _columns[column].align == Align::left ? cell.leftJustified(width)
                                                         : cell.rightJustified(width);
        }
        while (row.endsWith(u' '))
            row.chop(1);
        text += row + u'\n';
    }
    return text;
}

} // namespace ridelog
