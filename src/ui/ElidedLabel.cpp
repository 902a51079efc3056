#include "ui/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace ridelog {

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

} // namespace ridelog
