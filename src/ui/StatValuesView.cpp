#include "ui/StatValuesView.h"

#include <QFormLayout>

#include <algorithm>

namespace ridelog {

StatValuesView::StatValuesView(QWidget* parent) : ValuesArea(parent)
{
    auto* content = new QWidget;
    _form = new QFormLayout(content);
    setContent(*content);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Values"));
}

void StatValuesView::showValues(const std::vector<StatValue>& values)
{
    for (auto row = _rows.size(); row < values.size(); ++row)
        _rows.emplace_back(*_form, values[row].key);
    auto row = _rows.begin();
    for (const auto& value : values) {
        row->show(value.name, value.text.isEmpty() ? QStringLiteral("–") : value.text);
        ++row;
    }
    updateGeometry();
}

QSize StatValuesView::minimumSizeHint() const
{
    const auto needed = ValuesArea::minimumSizeHint();
    _widest = std::max(_widest, needed.width());
    return {_widest, needed.height()};
}

} // namespace ridelog
