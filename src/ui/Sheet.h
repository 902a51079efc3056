#pragma once

#include <QLabel>
#include <QMessageBox>

namespace ridelog {

/// A question, or word of something, over one window: the others can be worked with meanwhile. Nothing of
/// what it says is taken for markup, which could show pictures and open links.
class Sheet : public QMessageBox {
    Q_OBJECT

public:
    /// Without buttons.
    Sheet(QWidget* over, Icon icon, const QString& text, const QString& information)
        : QMessageBox(icon, QString(), text, NoButton, over)
    {
        setInformativeText(information);
        // The box's own text format leaves out its informative text.
        const auto labels = findChildren<QLabel*>();
        for (auto* label : labels)
            label->setTextFormat(Qt::PlainText);
        setWindowModality(Qt::WindowModal);
    }
};

} // namespace ridelog
