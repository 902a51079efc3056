#include "ui/DefaultsBinding.h"

#include "chart/ChartPaper.h"
#include "platform/Defaults.h"
#include "ui/ColourButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace ridelog {
namespace {

/// Calls `show` now and after each change of the key, as long as the control lives.
template <typename Show>
void follow(QWidget& control, const Defaults& defaults, const QString& key, Show show)
{
    show();
    defaults.observe(key, &control, show);
}

} // namespace

void bind(QCheckBox& box, Defaults& defaults, const QString& key)
{
    box.setObjectName(key);
    follow(box, defaults, key, [&box, &defaults, key] { box.setChecked(defaults.boolForKey(key)); });
    QObject::connect(&box, &QCheckBox::clicked, &defaults,
                     [&defaults, key](bool isChecked) { defaults.setValue(key, isChecked); });
}

void bind(QSpinBox& field, Defaults& defaults, const QString& key)
{
    field.setObjectName(key);
    follow(field, defaults, key, [&field, &defaults, key] {
        const QSignalBlocker blocker(field);
        field.setValue(defaults.integerForKey(key));
    });
    QObject::connect(&field, &QSpinBox::valueChanged, &defaults,
                     [&defaults, key](int value) { defaults.setValue(key, value); });
}

void bind(ColourButton& button, Defaults& defaults, const QString& key)
{
    button.setObjectName(key);
    follow(button, defaults, key, [&button, &defaults, key] {
        button.setColour(chartColor(defaults.colourForKey(key).value_or(ColourComponents())));
    });
    QObject::connect(&button, &ColourButton::chosen, &defaults, [&defaults, key](const QColor& colour) {
        // The components as they were chosen: those of QColor have 16 bits, or single precision.
        defaults.setValue(key, ColourComponents{colour.red() / 255.0, colour.green() / 255.0,
                                                colour.blue() / 255.0, colour.alpha() / 255.0});
    });
}

void bind(QComboBox& box, Defaults& defaults, const QString& key, const std::function<QVariant()>& read)
{
    box.setObjectName(key);
    follow(box, defaults, key, [&box, read] { box.setCurrentIndex(std::max(box.findData(read()), 0)); });
    QObject::connect(&box, &QComboBox::activated, &defaults,
                     [&box, &defaults, key](int entry) { defaults.setValue(key, box.itemData(entry)); });
}

void enableWhile(QWidget& control, const Defaults& defaults, const QString& key)
{
    follow(control, defaults, key,
           [&control, &defaults, key] { control.setEnabled(defaults.boolForKey(key)); });
}

} // namespace ridelog
