#include "ui/AltitudeRange.h"

#include "format/ReadableUnits.h"
#include "format/UnitFormatters.h"
#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/DefaultsBinding.h"
#include "ui/RangeLimits.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace ridelog {
namespace {

// Metres: nobody rides further down or up.
constexpr float lowest = -1000;
constexpr float highest = 10000;
/// Characters: more than any number needs, and few enough to be said in a message.
constexpr int longest = 24;
/// Metres: what is left of a range at least when one limit pushes the other.
constexpr float leastExtent = 100;

} // namespace

AltitudeRange::AltitudeRange(Defaults& defaults)
    : _defaults(defaults),
      _useManualRange(new QCheckBox(tr("&Altitudes from"))),
      _minRangeTextField(makeField(tr("Lowest altitude of the chart"), DefaultsKeys::minRange)),
      _maxRangeTextField(makeField(tr("Highest altitude of the chart"), DefaultsKeys::maxRange)),
      _unit(new QLabel)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_useManualRange);
    layout->addWidget(_minRangeTextField);
    layout->addWidget(new QLabel(tr("to")));
    layout->addWidget(_maxRangeTextField);
    layout->addWidget(_unit);
    layout->addStretch();

    bind(*_useManualRange, _defaults, DefaultsKeys::useManualRange);
    for (auto* field : {_minRangeTextField, _maxRangeTextField})
        enableWhile(*field, _defaults, DefaultsKeys::useManualRange);
    for (const auto& key : {DefaultsKeys::minRange, DefaultsKeys::maxRange, DefaultsKeys::useMiles})
        _defaults.observe(key, this, [this] { showRange(); });
    showRange();
}

QLineEdit* AltitudeRange::makeField(const QString& name, const QString& key)
{
    auto* field = new QLineEdit;
    field->setObjectName(key);
    field->setAccessibleName(name);
    field->setMaxLength(longest);
    field->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-00000.00")));
    connect(field, &QLineEdit::editingFinished, this, [this, field] { commit(*field); });
    return field;
}

void AltitudeRange::finishEditing()
{
    for (auto* field : {_minRangeTextField, _maxRangeTextField})
        commit(*field);
}

void AltitudeRange::commit(QLineEdit& field)
{
    // What nobody has typed is not read back: the text may say less than the value.
    if (!field.isModified())
        return;
    field.setModified(false);
    auto formatter = UnitFormatters::manualRange(_defaults);
    // There is room for the other one.
    const bool isLower = &field == _minRangeTextField;
    const float least = isLower ? lowest : lowest + leastExtent;
    const float most = isLower ? highest - leastExtent : highest;
    // It reads in the units that it last wrote with.
    const auto leastText = formatter.stringForObjectValue(least);
    const auto mostText = formatter.stringForObjectValue(most);
    QVariant metres;
    QString refusal;
    if (!formatter.getObjectValue(&metres, field.text(), nullptr))
        refusal = tr("“%1” is no altitude. Write a number, like 850.").arg(field.text());
    else if (metres.toFloat() < least || metres.toFloat() > most)
        refusal = tr("“%1” is out of range. It has to be between %2 and %3 %4.")
                      .arg(field.text(), leastText, mostText, _unit->text());
    else
        setLimit(field, metres.toDouble());
    showRange();
    Q_EMIT edited(refusal);
}

void AltitudeRange::setLimit(const QLineEdit& field, double metres)
{
    const RangeLimits before{static_cast<double>(_defaults.floatForKey(DefaultsKeys::minRange)),
                             static_cast<double>(_defaults.floatForKey(DefaultsKeys::maxRange))};
    const auto after = &field == _minRangeTextField ? before.withLow(metres, leastExtent, highest)
                                                    : before.withHigh(metres, leastExtent, lowest);
    // The one that is pushed goes first: the range is never the wrong way round.
    if (after.high > before.high)
        _defaults.setValue(DefaultsKeys::maxRange, after.high);
    _defaults.setValue(DefaultsKeys::minRange, after.low);
    _defaults.setValue(DefaultsKeys::maxRange, after.high);
}

void AltitudeRange::showRange()
{
    _unit->setText(ReadableUnits(_defaults.boolForKey(DefaultsKeys::useMiles)).altitudeUnit());
    auto formatter = UnitFormatters::manualRange(_defaults);
    for (auto* field : {_minRangeTextField, _maxRangeTextField}) {
        // What is being typed is not taken away.
        if (!field->isModified())
            field->setText(formatter.stringForObjectValue(_defaults.floatForKey(field->objectName())));
    }
}

} // namespace ridelog
