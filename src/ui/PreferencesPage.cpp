#include "ui/PreferencesPage.h"

#include "platform/Defaults.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ridelog {

PreferencesPage::PreferencesPage(Defaults& defaults) : _defaults(defaults), _form(new QFormLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(_form);
    layout->addStretch();
}

void PreferencesPage::addHint(const QString& text)
{
    auto* hint = new QLabel(text);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    _form->addRow(QString(), hint);
}

void PreferencesPage::addResetButton()
{
    auto* button = new QPushButton(tr("Reset to &Defaults"));
    // Return in a field is the field's.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this] {
        for (const auto& key : _keys)
            _defaults.remove(key);
    });
    static_cast<QVBoxLayout*>(layout())->addWidget(button, 0, Qt::AlignRight);
}

} // namespace ridelog
