#pragma once

#include <QString>
#include <QVariant>

#include <functional>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QSpinBox;
class QWidget;
QT_END_NAMESPACE

namespace ridelog {

class ColourButton;
class Defaults;

// Ties a control to a choice of the user, both ways: the control shows the value of the key, whoever changes
// it, and what the user does with the control is stored under the key, after which the control is named. A
// value that the control cannot show stays as it is until the user changes it.

/// A bool.
void bind(QCheckBox& box, Defaults& defaults, const QString& key);
/// An integer; one beyond the field's range is shown as its nearest.
void bind(QSpinBox& field, Defaults& defaults, const QString& key);
/// A colour.
void bind(ColourButton& button, Defaults& defaults, const QString& key);
/// The data of one of the entries. `read` answers the value as such data; where no entry has it, the first is
/// shown. To choose an entry without data removes what is stored.
void bind(QComboBox& box, Defaults& defaults, const QString& key, const std::function<QVariant()>& read);

/// Lets the control be used only while the bool of this key is true.
void enableWhile(QWidget& control, const Defaults& defaults, const QString& key);

} // namespace ridelog
