#pragma once

#include <QColor>
#include <QPushButton>

namespace ridelog {

/// Shows a colour, and asks for another one when it is pressed.
class ColourButton : public QPushButton {
    Q_OBJECT

public:
    /// Of what the colour is, in the words of the question.
    explicit ColourButton(const QString& name);

    const QColor& colour() const { return _colour; }
    void setColour(const QColor& colour);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user wants this one.
    void chosen(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ask();

    QColor _colour;
};

} // namespace ridelog
