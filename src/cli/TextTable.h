#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace ridelog {

/// A table for people at a terminal: columns as wide as their widest cell.
class TextTable {
public:
    enum class Align { left, right };
    struct Column {
        QString title = {};
        Align align = Align::right;
        int gap = 2; ///< blanks before it
    };

    explicit TextTable(QList<Column> columns);

    /// Cells from the left; missing ones are empty. What would break the line is shown by its code.
    void addRow(const QStringList& cells);

    /// All lines, each ended; the first has the titles, unless no column has one.
    QString text() const;

private:
    QList<Column> _columns;
    QList<QStringList> _rows;
};

} // namespace ridelog
