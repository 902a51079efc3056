#pragma once

#include <QMessageBox>

namespace ridelog {

/// A question, or word of a failure. Its texts are plain, whatever characters a file's name has.
class Sheet : public QMessageBox {
    Q_OBJECT

public:
    /// Without buttons.
    Sheet(QWidget* over, Icon icon, const QString& text, const QString& information)
        : QMessageBox(icon, QString(), text, NoButton, over)
    {
        setTextFormat(Qt::PlainText);
        setInformativeText(information);
    }
};

} // namespace ridelog
