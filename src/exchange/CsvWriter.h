#pragma once

#include "platform/NumberText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <concepts>
#include <optional>
#include <utility>

namespace ridelog {

/// Collects lines of comma-separated values (RFC 4180): UTF-8, a decimal point whatever the language, line
/// ends of two characters.
class CsvWriter {
public:
    void cell(const QString& text);
    /// Of text without anything that would have to be quoted.
    void plainCell(QByteArrayView text) { start() += text; }
    /// The shortest text that reads back to the same number.
    template <typename Number>
    requires std::integral<Number> || std::floating_point<Number>
    void cell(Number number) { appendShortest(start(), number); }
    template <typename Value>
    void cell(const std::optional<Value>& maybe)
    {
        if (maybe)
            cell(*maybe);
        else
            emptyCell();
    }
    void emptyCell() { start(); }
    void endLine();

    /// What has come together since the last call.
    QByteArray take() { return std::exchange(_bytes, QByteArray()); }

private:
    QByteArray& start();

    QByteArray _bytes;
    bool _isAtStart = true;
};

} // namespace ridelog
