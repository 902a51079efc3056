#pragma once

#include <QLabel>
#include <QMessageBox>

namespace ridelog {

/// Takes nothing of what the box says for markup, which could show pictures and open links. The box's own
/// text format leaves out its informative text, which has to be set before.
inline void showPlainTexts(QMessageBox& box)
{
    const auto labels = box.findChildren<QLabel*>();
    for (auto* label : labels)
        label->setTextFormat(Qt::PlainText);
}

} // namespace ridelog
