#include "ui/MessageLine.h"

#include <QAccessible>

namespace ridelog {

void announce(QLabel& label)
{
    if (label.text().isEmpty())
        return;
    QAccessibleEvent announcement(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

void MessageLine::tell(const QString& message)
{
    setText(message);
    announce(*this);
}

} // namespace ridelog
