#pragma once

#include <QObject>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace ridelog {

/// The part of the manual that belongs to this widget and to what lies in it and over it:
/// "preferences.html#chart".
void setManualSection(QWidget& widget, const QString& section);
/// Empty where no part of the manual belongs to it.
QString manualSection(const QWidget& widget);
/// Shows the part of the manual that belongs to the widget, as F1 in it does.
void askForManual(QWidget& widget);

/// Hears of everybody who wants the manual, in every window: panels that keep the keys from the menus
/// included.
class ManualRequests : public QObject {
    Q_OBJECT

public:
    explicit ManualRequests(QObject* parent);

Q_SIGNALS:
    /// `section` is empty where no part of the manual belongs to the place.
    void asked(const QString& section);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ridelog
