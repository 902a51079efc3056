#include "ui/MessageLine.h"

#include <QAccessible>

namespace ridelog {

void MessageLine::tell(const QString& message)
{
    setText(message);
    if (message.isEmpty())
        return;
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

} // namespace ridelog
