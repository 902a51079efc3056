#pragma once

#include "ui/DefaultsBinding.h"

#include <QStringList>
#include <QWidget>

#include <utility>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QPushButton;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;

/// A page of the preferences panel: controls that are tied to the user's choices, and a button that gives
/// these up.
class PreferencesPage : public QWidget {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    explicit PreferencesPage(Defaults& defaults);

    QFormLayout& form() { return *_form; }
    /// Ties the control to a choice of this page, as `bind` does.
    template <typename Control, typename... More>
    Control* tied(Control* control, const QString& key, More&&... more)
    {
        bind(*control, _defaults, key, std::forward<More>(more)...);
        addKeys({key});
        return control;
    }
    /// Choices of this page whose control is tied to them already.
    void addKeys(const QStringList& keys) { _keys << keys; }
    /// What there is to know of the row above.
    void addHint(const QString& text);
    /// Gives up what the user has stored under these keys.
    QPushButton* makeResetButton(const QString& text, const QStringList& keys);
    /// For the whole page, which is complete then: the keys come to it last.
    void addResetButton();

Q_SIGNALS:
    /// What the user has stored, or part of it, was given up.
    void reset();

private:
    Defaults& _defaults;
    QStringList _keys;
    QFormLayout* _form;
};

} // namespace ridelog
