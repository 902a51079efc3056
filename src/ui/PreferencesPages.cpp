// What stands on the pages of the preferences panel. The letters that lead to the controls are those of a
// page, and differ from those of the tabs and of the button below.

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "platform/Languages.h"
#include "ui/AltitudeRange.h"
#include "ui/ColourButton.h"
#include "ui/PreferencesController.h"
#include "ui/PreferencesPage.h"
#include "ui/RangeLimits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace ridelog {
namespace {

constexpr int mostDays = 365;
constexpr int mostBeats = 250; // no heart beats faster
constexpr int leastBeats = 10; ///< what is left of a pulse range at least when one limit pushes the other

QSpinBox* numberField(const QString& name, int least, int most)
{
    auto* field = new QSpinBox;
    field->setAccessibleName(name);
    field->setRange(least, most);
    // Half a number is none.
    field->setKeyboardTracking(false);
    field->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return field;
}

} // namespace

PreferencesPage* PreferencesController::makeGeneralPage()
{
    auto* page = new PreferencesPage(_defaults);
    auto& form = page->form();

    auto* units = new QComboBox;
    units->addItem(tr("Kilometres, km/h and metres"), false);
    units->addItem(tr("Miles, mph and feet"), true);
    form.addRow(tr("&Units:"), page->tied(units, DefaultsKeys::useMiles,
                                          [this] { return _defaults.boolForKey(DefaultsKeys::useMiles); }));

    form.addRow(tr("Transfers:"),
                page->tied(new QCheckBox(tr("&Save the raw dump that arrives")), DefaultsKeys::saveRawData));
    page->addHint(tr("As odoData.odo in your home folder."));

    form.addRow(tr("Newer versions:"),
                page->tied(new QCheckBox(tr("Look for them &automatically")), DefaultsKeys::automaticCheck));
    auto* days = numberField(tr("Days between two looks for newer versions"), 1, mostDays);
    enableWhile(*days, _defaults, DefaultsKeys::automaticCheck);
    form.addRow(tr("&Every:"), page->tied(days, DefaultsKeys::checkForUpdateAfterDays));
    const auto showUnit = [days] { days->setSuffix(tr(" day(s)", "after the number", days->value())); };
    _defaults.observe(DefaultsKeys::checkForUpdateAfterDays, days, showUnit);
    showUnit();
    enableWhile(*form.labelForField(days), _defaults, DefaultsKeys::automaticCheck);

    auto* language = new QComboBox;
    language->addItem(tr("System language"));
    for (const auto& one : languages)
        language->addItem(one.name, one.code);
    form.addRow(tr("La&nguage:"), page->tied(language, DefaultsKeys::language, [this] {
        return _defaults.valueForKey(DefaultsKeys::language);
    }));
    page->addHint(tr("Counts from the next start on."));
    page->addResetButton();
    return page;
}

PreferencesPage* PreferencesController::makeChartPage()
{
    auto* page = new PreferencesPage(_defaults);
    auto* group = new QGroupBox(tr("Colours"));
    auto* grid = new QGridLayout(group);
    QStringList keys;
    const auto add = [&](int row, int column, const QString& text, const QString& question,
                         const QString& key) {
        auto* label = new QLabel(text);
        auto* button = page->tied(new ColourButton(question), key);
        label->setBuddy(button);
        grid->addWidget(label, row, column);
        grid->addWidget(button, row, column + 1);
        keys << key;
    };
    using namespace DefaultsKeys;
    add(0, 0, tr("Al&titude:"), tr("Colour of the Altitude"), colorAltitude);
    add(1, 0, tr("&Speed:"), tr("Colour of the Speed"), colorSpeed);
    add(2, 0, tr("P&ulse:"), tr("Colour of the Pulse"), colorPulse);
    add(0, 3, tr("&Below the pulse range:"), tr("Colour below the Pulse Range"), pulseBelowColor);
    add(1, 3, tr("&Within the pulse range:"), tr("Colour within the Pulse Range"), pulseInColor);
    add(2, 3, tr("Ab&ove the pulse range:"), tr("Colour above the Pulse Range"), pulseAboveColor);
    grid->setColumnMinimumWidth(2, 24);
    grid->setColumnStretch(5, 1);
    grid->addWidget(page->makeResetButton(tr("&Reset Colours"), keys), 3, 0, 1, -1, Qt::AlignRight);
    page->form().addRow(group);

    page->form().addRow(page->tied(new QCheckBox(tr("Speed has an a&xis of its own beside another series")),
                                   DefaultsKeys::speed2ndAxis));
    auto* range = new AltitudeRange(_defaults);
    connect(range, &AltitudeRange::edited, this, &PreferencesController::showMessage);
    page->addKeys({DefaultsKeys::useManualRange, DefaultsKeys::minRange, DefaultsKeys::maxRange});
    auto* line = new QHBoxLayout;
    line->addWidget(range);
    line->addStretch();
    page->form().addRow(line);
    page->addResetButton();
    return page;
}

PreferencesPage* PreferencesController::makePulsePage()
{
    auto* page = new PreferencesPage(_defaults);
    auto* least = numberField(tr("Lowest pulse of the range"), 0, mostBeats - leastBeats);
    auto* most = numberField(tr("Highest pulse of the range"), leastBeats, mostBeats);
    // Each pushes the other one along; its own key is bound to it.
    const auto limits = [this] {
        return RangeLimits{static_cast<double>(_defaults.integerForKey(DefaultsKeys::pulseMinPulse)),
                           static_cast<double>(_defaults.integerForKey(DefaultsKeys::pulseMaxPulse))};
    };
    connect(least, &QSpinBox::valueChanged, this, [this, limits](int pulse) {
        const auto after = limits().withLow(pulse, leastBeats, mostBeats);
        if (after.high != limits().high)
            _defaults.setValue(DefaultsKeys::pulseMaxPulse, static_cast<int>(after.high));
    });
    connect(most, &QSpinBox::valueChanged, this, [this, limits](int pulse) {
        const auto after = limits().withHigh(pulse, leastBeats, 0);
        if (after.low != limits().low)
            _defaults.setValue(DefaultsKeys::pulseMinPulse, static_cast<int>(after.low));
    });
    auto* range = new QHBoxLayout;
    range->addWidget(page->tied(least, DefaultsKeys::pulseMinPulse));
    auto* to = new QLabel(tr("&to"));
    to->setBuddy(most);
    range->addWidget(to);
    range->addWidget(page->tied(most, DefaultsKeys::pulseMaxPulse));
    range->addWidget(new QLabel(tr("beats per minute")));
    range->addStretch();
    auto* label = new QLabel(tr("&Range:"));
    label->setBuddy(least);
    auto& form = page->form();
    form.addRow(label, range);

    form.addRow(tr("Zones:"), page->tied(new QCheckBox(tr("Draw them &behind the pulse")),
                                         DefaultsKeys::pulseDrawPulseRange));
    auto* gradient = new QCheckBox(tr("&Fade those outside the range"));
    enableWhile(*gradient, _defaults, DefaultsKeys::pulseDrawPulseRange);
    form.addRow(QString(), page->tied(gradient, DefaultsKeys::pulseUseGradient));
    page->addResetButton();
    return page;
}

PreferencesPage* PreferencesController::makeDevicePage()
{
    auto* page = new PreferencesPage(_defaults);
    page->form().addRow(tr("Serial line:"),
                        page->tied(new QCheckBox(tr("&Alternate transfer settings (two stop bits)")),
                                   DefaultsKeys::useAlternateTransferSettings));
    page->addHint(
        tr("Try them when what arrives is no dump of the device. They count from the next transfer on."));
    page->addResetButton();
    return page;
}

} // namespace ridelog
