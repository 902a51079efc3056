#pragma once

#include "model/Period.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace ridelog {

/// A period by name, and beside it two buttons that step it back and forth.
class PeriodStepper : public QWidget {
    Q_OBJECT

public:
    explicit PeriodStepper(Period period, QWidget* parent = nullptr);

    /// Shows the period of this day.
    void showPeriod(QDate day, WeekRule weekRule);
    QString title() const;

    // What a click does, and how the buttons are called, is up to the window.

    QToolButton& minus() { return *_minus; }
    QToolButton& plus() { return *_plus; }

private:
    Period _period;
    QToolButton* _minus;
    QLabel* _title;
    QToolButton* _plus;
};

} // namespace ridelog
