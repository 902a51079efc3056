#include "ui/PreferencesController.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/MessageLine.h"
#include "ui/WindowFrame.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ridelog {

PreferencesController::PreferencesController(Defaults& defaults)
    : _defaults(defaults), _pages(new QTabWidget), _message(new QLabel)
{
    setWindowTitle(tr("Preferences"));
    // The application ends with its last document, whether the panel is shown or not.
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_pages, 1);
    _pages->addTab(makeGeneralPage(), tr("&General"));
    _pages->addTab(makeChartPage(), tr("&Chart"));
    _pages->addTab(makePulsePage(), tr("&Pulse"));
    _pages->addTab(makeDevicePage(), tr("De&vice"));
    _message->setTextFormat(Qt::PlainText);
    _message->setWordWrap(true);
    // The panel keeps its size when there is something to say.
    _message->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* closeButton = new QPushButton(tr("C&lose"));
    // Return in a field is the field's.
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* foot = new QHBoxLayout;
    foot->addWidget(_message, 1);
    foot->addWidget(closeButton);
    layout->addLayout(foot);

    restoreFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
}

PreferencesController::~PreferencesController()
{
    storeFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
    // What is still being typed counts, and is told to a panel that is still whole.
    hide();
    _defaults.synchronize();
}

QString PreferencesController::message() const
{
    return _message->text();
}

void PreferencesController::showMessage(const QString& message)
{
    _message->setText(message);
    announce(*_message);
}

} // namespace ridelog
