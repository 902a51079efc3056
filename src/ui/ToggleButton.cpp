#include "ui/ToggleButton.h"

#include <QEvent>
#include <QGuiApplication>

namespace ridelog {

ToggleButton::ToggleButton(const QString& text, QWidget* parent) : QToolButton(parent)
{
    setText(text);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::toggled, this, &ToggleButton::showState);
}

void ToggleButton::showState()
{
    auto colours = QGuiApplication::palette();
    if (isChecked()) {
        colours.setBrush(QPalette::Button, colours.highlight());
        colours.setBrush(QPalette::ButtonText, colours.highlightedText());
    }
    setPalette(colours);
}

void ToggleButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        showState();
}

} // namespace ridelog
