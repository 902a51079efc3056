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
    // A wrapped line keeps room for another one, so that only a long text is.
    constexpr int longest = 50; // characters
    hint->setWordWrap(text.size() > longest);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    _form->addRow(QString(), hint);
}

QPushButton* PreferencesPage::makeResetButton(const QString& text, const QStringList& keys)
{
    auto* button = new QPushButton(text);
    // Return in a field is the field's.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, button, keys] {
        // What is being typed is given up as well, and not stored later on.
        button->setFocus();
        for (const auto& key : keys)
            _defaults.remove(key);
        Q_EMIT reset();
    });
    return button;
}

void PreferencesPage::addResetButton()
{
    auto* rows = static_cast<QVBoxLayout*>(layout());
    rows->addWidget(makeResetButton(tr("Reset to &Defaults"), _keys), 0, Qt::AlignRight);
}

} // namespace ridelog
