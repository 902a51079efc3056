#include "ui/SegmentedControl.h"

#include "ui/ToggleButton.h"

#include <QHBoxLayout>

#include <algorithm>

namespace ridelog {

SegmentedControl::SegmentedControl(Choice choice, QWidget* parent)
    : QWidget(parent), _choice(choice), _layout(new QHBoxLayout(this))
{
    _layout->setContentsMargins(0, 0, 0, 0);
    _layout->setSpacing(0);
}

void SegmentedControl::addSegment(const QString& label, int tag)
{
    auto* button = new ToggleButton(label);
    button->setAutoExclusive(_choice == Choice::one);
    const auto index = count();
    connect(button, &QToolButton::clicked, this, [this, index] { Q_EMIT clicked(index); });
    _layout->addWidget(button);
    _segments.push_back({.button = button, .tag = tag});
}

int SegmentedControl::segmentWithTag(int tag) const
{
    const auto found = std::ranges::find(_segments, tag, &Segment::tag);
    return found == _segments.end() ? -1 : static_cast<int>(found - _segments.begin());
}

bool SegmentedControl::isSelected(int index) const
{
    return segment(index).isChecked();
}

void SegmentedControl::setSelected(int index, bool selected)
{
    segment(index).setChecked(selected);
}

std::vector<int> SegmentedControl::selectedTags() const
{
    std::vector<int> tags;
    for (const auto& [button, tag] : _segments) {
        if (button->isChecked())
            tags.push_back(tag);
    }
    return tags;
}

} // namespace ridelog
