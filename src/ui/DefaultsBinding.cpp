#include "ui/DefaultsBinding.h"

#include "platform/Defaults.h"

#include <QCheckBox>

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

void enableWhile(QWidget& control, const Defaults& defaults, const QString& key)
{
    follow(control, defaults, key,
           [&control, &defaults, key] { control.setEnabled(defaults.boolForKey(key)); });
}

} // namespace ridelog
