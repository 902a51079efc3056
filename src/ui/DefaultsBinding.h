#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QWidget;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;

// Ties a control to a choice of the user, both ways: the control shows the value of the key, whoever changes
// it, and what the user does with the control is stored under the key, after which the control is named.

/// A bool.
void bind(QCheckBox& box, Defaults& defaults, const QString& key);

/// Lets the control be used only while the bool of this key is true.
void enableWhile(QWidget& control, const Defaults& defaults, const QString& key);

} // namespace ridelog
