#include "ui/TourSummaryView.h"

#include "ui/TourSummary.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace ridelog {

TourSummaryView::TourSummaryView(std::shared_ptr<const OdoTour> tour, const Defaults& defaults,
                                 QWidget* parent)
    : QScrollArea(parent), _tour(std::move(tour)), _defaults(defaults)
{
    auto* groups = new QWidget;
    auto* layout = new QVBoxLayout(groups);
    for (const auto& group : tourSummary(*_tour, _defaults)) {
        auto* box = new QGroupBox(group.name);
        auto* form = new QFormLayout(box);
        for (const auto& value : group.values) {
            auto* field = new QLabel;
            field->setObjectName(value.key);
            field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
            auto* name = new QLabel;
            name->setBuddy(field);
            form->addRow(name, field);
            _rows.push_back({.name = name, .field = field});
        }
        layout->addWidget(box);
    }
    layout->addStretch();
    setWidget(groups);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Summary"));
    refresh();
}

void TourSummaryView::refresh()
{
    auto row = _rows.begin();
    for (const auto& group : tourSummary(*_tour, _defaults)) {
        for (const auto& value : group.values) {
            row->name->setText(value.name + u':');
            row->field->setText(value.text);
            ++row;
        }
    }
    updateGeometry();
}

void TourSummaryView::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    // Only what is shown has its style, and with it the room that it takes.
    updateGeometry();
}

QSize TourSummaryView::minimumSizeHint() const
{
    const auto width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width + 2 * frameWidth(), QScrollArea::minimumSizeHint().height()};
}

} // namespace ridelog
