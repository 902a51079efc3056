#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

#include <optional>

namespace ridelog {

/// A colour as numbers from 0 to 1, for code that draws nothing.
struct ColourComponents {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    /// "r,g,b,a": decimal, in the shortest form that reads back to the same numbers.
    QString text() const;
    /// None unless the text is four numbers from 0 to 1 with commas between; blanks around them do not
    /// matter.
    static std::optional<ColourComponents> fromText(const QString& text);

    operator QVariant() const { return QVariant::fromValue(*this); }
    bool operator==(const ColourComponents&) const = default;
};

} // namespace ridelog

Q_DECLARE_METATYPE(ridelog::ColourComponents)
