#include "ui/PeriodStepper.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace ridelog {
namespace {

QToolButton* arrow(Qt::ArrowType type)
{
    auto* button = new QToolButton;
    button->setArrowType(type);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRepeat(true);
    return button;
}

} // namespace

PeriodStepper::PeriodStepper(Period period, QWidget* parent)
    : QWidget(parent),
      _period(period),
      _minus(arrow(Qt::LeftArrow)),
      _title(new QLabel),
      _plus(arrow(Qt::RightArrow))
{
    _title->setAlignment(Qt::AlignCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (QWidget* part :
         {static_cast<QWidget*>(_minus), static_cast<QWidget*>(_title), static_cast<QWidget*>(_plus)})
        layout->addWidget(part);
}

void PeriodStepper::showPeriod(QDate day, WeekRule weekRule)
{
    const auto title = [&](QDate of) { return periodTitle(_period, of, weekRule, QLocale()); };
    // The button that has been pressed stays under the mouse, whatever the period is called.
    constexpr int margin = 8;
    int widest = _title->minimumWidth();
    for (int month = 1; month <= 12; ++month) {
        const QDate lateInMonth(day.year(), month, 28); // in a week of two digits as well
        widest = std::max(widest, _title->fontMetrics().horizontalAdvance(title(lateInMonth)) + margin);
    }
    _title->setMinimumWidth(widest);
    _title->setText(title(day));
}

QString PeriodStepper::title() const
{
    return _title->text();
}

} // namespace ridelog
