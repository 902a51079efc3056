#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)

namespace ridelog {

class ApplicationWindows;

/// Shown only when there is no document to show: says why, and what can be done.
class StartWindow : public QWidget {
    Q_OBJECT

public:
    explicit StartWindow(ApplicationWindows& windows);

    void showMessage(const QString& message);
    QString message() const;

private:
    ApplicationWindows& _windows;
    QLabel* _message;
};

} // namespace ridelog
