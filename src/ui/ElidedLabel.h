#pragma once

#include <QLabel>

namespace ridelog {

/// A line of plain text that is shortened to the room there is, and whole in its tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

    void setText(const QString& text)
    {
        QLabel::setText(text);
        setToolTip(text.isEmpty() ? text : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
    }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ridelog
