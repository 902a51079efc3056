#include "ui/ValuesArea.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QScrollBar>

namespace ridelog {

void ValuesArea::setContent(QWidget& content)
{
    setWidget(&content);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Where nothing scrolls there is nothing to do for the keys.
    const auto follow = [this](int, int most) { setFocusPolicy(most > 0 ? Qt::StrongFocus : Qt::NoFocus); };
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, follow);
    follow(0, verticalScrollBar()->maximum());
}

bool ValuesArea::eventFilter(QObject* watched, QEvent* event)
{
    const bool isHandled = QScrollArea::eventFilter(watched, event);
    // The values need another room, as soon as they are shown, or when others are.
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return isHandled;
}

QSize ValuesArea::minimumSizeHint() const
{
    const auto width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width + 2 * frameWidth(), QScrollArea::minimumSizeHint().height()};
}

ValueRow::ValueRow(QFormLayout& form, const QString& key) : _name(new QLabel), _field(new QLabel)
{
    _field->setObjectName(key);
    _field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    _field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _name->setBuddy(_field);
    form.addRow(_name, _field);
}

void ValueRow::show(const QString& name, const QString& text)
{
    _name->setText(name + u':');
    _field->setText(text);
}

} // namespace ridelog
