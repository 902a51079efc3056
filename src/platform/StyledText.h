#pragma once

#include <QString>

#include <utility>

namespace ridelog {

/// A text for people.
class StyledText {
public:
    StyledText() = default;
    explicit StyledText(QString text) : _text(std::move(text)) {}

    const QString& text() const { return _text; }

    bool operator==(const StyledText&) const = default;

private:
    QString _text;
};

} // namespace ridelog
