#include "ui/ColourButton.h"

#include <QColorDialog>
#include <QPainter>

namespace ridelog {

ColourButton::ColourButton(const QString& name)
{
    setAccessibleName(name);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColourButton::ask);
}

void ColourButton::setColour(const QColor& colour)
{
    _colour = colour;
    setAccessibleDescription(colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb));
    update();
}

QSize ColourButton::sizeHint() const
{
    const auto height = QPushButton::sizeHint().height();
    return {3 * height, height};
}

void ColourButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    const int margin = fontMetrics().height() / 3;
    const auto swatch = rect().adjusted(margin, margin, -margin, -margin);
    QPainter painter(this);
    // As a chart has it, which is white paper.
    painter.fillRect(swatch, Qt::white);
    painter.fillRect(swatch, _colour);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch);
}

void ColourButton::ask()
{
    auto* panel = new QColorDialog(_colour, this);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(accessibleName());
    panel->setOption(QColorDialog::ShowAlphaChannel);
    connect(panel, &QColorDialog::colorSelected, this, &ColourButton::chosen);
    panel->open();
}

} // namespace ridelog
