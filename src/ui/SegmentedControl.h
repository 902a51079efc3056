#pragma once

#include <QWidget>

#include <vector>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QToolButton;
QT_END_NAMESPACE

namespace ridelog {

/// A row of buttons of which one, or several, are selected. Segments count from 0, from left to right.
class SegmentedControl : public QWidget {
    Q_OBJECT

public:
    enum class Choice { one, several };

    explicit SegmentedControl(Choice choice, QWidget* parent = nullptr);

    void addSegment(const QString& label, int tag);
    int count() const { return static_cast<int>(_segments.size()); }
    /// Its button, for a mouse or a menu.
    QToolButton& segment(int index) const { return *_segments[static_cast<std::size_t>(index)].button; }
    int tagOf(int index) const { return _segments[static_cast<std::size_t>(index)].tag; }
    /// -1 for a tag of none.
    int segmentWithTag(int tag) const;

    bool isSelected(int index) const;
    void setSelected(int index, bool selected);
    /// Of all that are selected, in the order of the segments.
    std::vector<int> selectedTags() const;

Q_SIGNALS:
    /// The user has selected the segment or taken it out.
    void clicked(int index);

private:
    struct Segment {
        QToolButton* button;
        int tag;
    };

    Choice _choice;
    QHBoxLayout* _layout;
    std::vector<Segment> _segments;
};

} // namespace ridelog
