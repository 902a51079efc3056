#pragma once

#include <QLabel>

namespace ridelog {

/// A line of plain text that is shortened to the room there is. Its tool tip shows more, up to `longest`.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    /// As many characters as a screen has room for: laying out a million would take seconds.
    static constexpr qsizetype longest = 4000;

    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

    /// What is longer than the longest is cut off.
    void setText(const QString& whole)
    {
        const auto text = whole.left(longest);
        QLabel::setText(text);
        setToolTip(text.isEmpty() ? text : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
    }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ridelog
