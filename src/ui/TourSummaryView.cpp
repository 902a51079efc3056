#include "ui/TourSummaryView.h"

#include "exchange/TourSummary.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace ridelog {

TourSummaryView::TourSummaryView(std::shared_ptr<const OdoTour> tour, const Defaults& defaults,
                                 QWidget* parent)
    : ValuesArea(parent), _tour(std::move(tour)), _defaults(defaults)
{
    auto* groups = new QWidget;
    auto* layout = new QVBoxLayout(groups);
    for (const auto& group : tourSummary(*_tour, _defaults)) {
        auto* box = new QGroupBox(group.name);
        auto* form = new QFormLayout(box);
        for (const auto& value : group.values)
            _rows.emplace_back(*form, value.key);
        layout->addWidget(box);
    }
    layout->addStretch();
    setContent(*groups);
    setAccessibleName(tr("Summary"));
    refresh();
}

void TourSummaryView::refresh()
{
    auto row = _rows.begin();
    for (const auto& group : tourSummary(*_tour, _defaults)) {
        for (const auto& value : group.values) {
            row->show(value.name, value.text);
            ++row;
        }
    }
    updateGeometry();
}

} // namespace ridelog
