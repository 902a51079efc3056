// What the chart of a tour window shows, and over what.

#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "model/SeriesNames.h"
#include "platform/Defaults.h"
#include "ui/SampleTableModel.h"
#include "ui/SegmentedControl.h"
#include "ui/TourOverX.h"
#include "ui/TourSummaryView.h"
#include "ui/TourWindowController.h"
#include "ui/UiLog.h"

#include <QBoxLayout>
#include <QToolButton>

#include <algorithm>

namespace ridelog {
namespace {

enum XAxisTag { distanceTag, timeTag };

/// What a segment of this tag shows.
struct SeriesSegment {
    int tag;
    QString name;
    const char* label;
};

const SeriesSegment seriesSegments[] = {
    {0, SeriesNames::altitude, QT_TRANSLATE_NOOP("ridelog::TourWindowController", "Altitude")},
    {1, SeriesNames::speed, QT_TRANSLATE_NOOP("ridelog::TourWindowController", "Speed")},
    {2, SeriesNames::pulse, QT_TRANSLATE_NOOP("ridelog::TourWindowController", "Pulse")},
};

const QString* seriesWithTag(int tag)
{
    const auto* found = std::ranges::find(seriesSegments, tag, &SeriesSegment::tag);
    return found == std::end(seriesSegments) ? nullptr : &found->name;
}

/// For the log.
QString textOf(const QList<int>& tags)
{
    QStringList numbers;
    for (const auto tag : tags)
        numbers << QString::number(tag);
    return numbers.join(QStringLiteral(", "));
}

} // namespace

void TourWindowController::addAxisControls(QBoxLayout& layout)
{
    _xSegmentControl = new SegmentedControl(SegmentedControl::Choice::one);
    _xSegmentControl->setAccessibleName(tr("Horizontal axis"));
    _xSegmentControl->addSegment(tr("Distance"), distanceTag);
    _xSegmentControl->addSegment(tr("Time"), timeTag);
    connect(_xSegmentControl, &SegmentedControl::clicked, this,
            [this](int segment) { setXAxisTag(_xSegmentControl->tagOf(segment)); });
    layout.addWidget(_xSegmentControl);
    layout.addSpacing(12);

    _ySegmentControl = new SegmentedControl(SegmentedControl::Choice::several);
    _ySegmentControl->setAccessibleName(tr("Series"));
    for (const auto& segment : seriesSegments)
        _ySegmentControl->addSegment(tr(segment.label), segment.tag);
    connect(_ySegmentControl, &SegmentedControl::clicked, this,
            &TourWindowController::ySegmentedControlClicked);
    layout.addWidget(_ySegmentControl);
}

void TourWindowController::restoreAxes()
{
    const auto xAxis = _defaults.textForKey(DefaultsKeys::selectedXAxisValue(_odoTour->description()));
    const auto tag = xAxis == SeriesNames::time ? timeTag : distanceTag;
    _xSegmentControl->setSelected(_xSegmentControl->segmentWithTag(tag), true);
    setXAxisTag(tag);

    const auto tags = _defaults.integerListForKey(DefaultsKeys::selectedYAxisValues(_odoTour->description()))
                          .value_or(QList<int>());
    qCDebug(lcUi, "array: %s", qPrintable(textOf(tags)));
    for (const auto one : tags) {
        if (const auto segment = _ySegmentControl->segmentWithTag(one); segment >= 0)
            _ySegmentControl->setSelected(segment, true);
    }
    if (_ySegmentControl->selectedTags().empty())
        _ySegmentControl->setSelected(0, true);
    keepOneSeriesSelected();
}

void TourWindowController::setXAxisTag(int tag)
{
    qCDebug(lcUi, "setXAxisTag %d", tag);
    _xAxisTag = tag;
    const auto& name = tag == distanceTag ? SeriesNames::distance : SeriesNames::time;
    if (_selectedXAxisValue == name)
        return;
    _selectedXAxisValue = name;
    selectedXAxisValueDidChange();
}

void TourWindowController::selectedXAxisValueDidChange()
{
    qCDebug(lcUi, "[observeValueForKeyPath:ofObject:change:context:] selectedXAxisValue");
    qCDebug(lcUi, "Change of selectedXAxisValue detected");
    _chart->setDataProvider(std::make_shared<TourOverX>(_odoTour, _selectedXAxisValue));
    _chart->setUseTimeFormatForX(_xAxisTag != distanceTag);
    showIndicator();
    _chart->update();
    _defaults.setValue(DefaultsKeys::selectedXAxisValue(_odoTour->description()), _selectedXAxisValue);
}

void TourWindowController::ySegmentedControlClicked()
{
    qCDebug(lcUi, "ySegmentedControlClicked");
    keepOneSeriesSelected();
    setYFormatter();
    const auto selected = _ySegmentControl->selectedTags();
    const QList<int> tags(selected.begin(), selected.end());
    qCDebug(lcUi, "array: %s", qPrintable(textOf(tags)));
    _defaults.setValue(DefaultsKeys::selectedYAxisValues(_odoTour->description()), tags);
    readLabelsAndSetChartNames();
    _chart->update();
}

/// The last series that is shown cannot be switched off.
void TourWindowController::keepOneSeriesSelected()
{
    const bool isLast = _ySegmentControl->selectedTags().size() == 1;
    for (int segment = 0; segment < _ySegmentControl->count(); ++segment)
        _ySegmentControl->segment(segment).setEnabled(!isLast || !_ySegmentControl->isSelected(segment));
}

void TourWindowController::readLabelsAndSetChartNames()
{
    qCDebug(lcUi, "[readLabelsAndSetChartNames]");
    QStringList names;
    for (const auto tag : _ySegmentControl->selectedTags()) {
        if (const auto* name = seriesWithTag(tag))
            names << *name;
        else
            qCWarning(lcUi, "ERROR wrong tag");
    }
    _chart->setShowNames(names);
}

void TourWindowController::setYFormatter()
{
    const auto tags = _ySegmentControl->selectedTags();
    const auto* first = tags.empty() ? nullptr : seriesWithTag(tags.front());
    _chart->setMpFormatterForYAxis(
        UnitFormatters::chartYAxis(_defaults, first ? *first : SeriesNames::altitude));
}

void TourWindowController::useMilesDidChange()
{
    _samples->reformat();
    _summary->refresh();
    _chart->setMpFormatterForXAxis(UnitFormatters::chartXAxis(_defaults));
    setYFormatter();
    _chart->update();
}

} // namespace ridelog
