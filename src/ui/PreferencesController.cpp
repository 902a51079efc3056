#include "ui/PreferencesController.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/WindowFrame.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ridelog {

PreferencesController::PreferencesController(Defaults& defaults) : _defaults(defaults), _pages(new QTabWidget)
{
    setWindowTitle(tr("Preferences"));
    // The application ends with its last document, whether the panel is shown or not.
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_pages, 1);
    _pages->addTab(makeGeneralPage(), tr("&General"));
    _pages->addTab(makePulsePage(), tr("&Pulse"));
    _pages->addTab(makeDevicePage(), tr("De&vice"));
    auto* closeButton = new QPushButton(tr("C&lose"));
    // Return in a field is the field's.
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(closeButton);
    layout->addLayout(foot);

    restoreFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
}

PreferencesController::~PreferencesController()
{
    storeFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
    // What is still being typed counts.
    hide();
    _defaults.synchronize();
}

} // namespace ridelog
