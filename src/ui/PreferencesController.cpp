#include "ui/PreferencesController.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/ManualHelp.h"
#include "ui/MessageLine.h"
#include "ui/PreferencesPage.h"
#include "ui/WindowFrame.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
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
    addPage(makeGeneralPage(), tr("&General"), QStringLiteral("preferences.html#general"));
    addPage(makeChartPage(), tr("&Chart"), QStringLiteral("preferences.html#chart"));
    addPage(makePulsePage(), tr("&Pulse"), QStringLiteral("preferences.html#pulse"));
    addPage(makeDevicePage(), tr("De&vice"), QStringLiteral("preferences.html#device"));
    _message->setTextFormat(Qt::PlainText);
    _message->setWordWrap(true);
    // The panel keeps its size when there is something to say.
    _message->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* closeButton = new QPushButton(tr("C&lose"));
    // Return in a field is the field's.
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* helpButton = new QPushButton(tr("&Help"));
    helpButton->setAutoDefault(false);
    connect(helpButton, &QPushButton::clicked, this, [this] { askForManual(*_pages); });
    auto* foot = new QHBoxLayout;
    foot->addWidget(_message, 1);
    foot->addWidget(helpButton);
    foot->addWidget(closeButton);
    layout->addLayout(foot);
    // What was refused was on the page before.
    connect(_pages, &QTabWidget::currentChanged, this, [this] { showMessage({}); });
    // Also where the keys go to the tabs, or to a button below.
    const auto tellOfPage = [this] { setManualSection(*this, manualSection(*_pages->currentWidget())); };
    tellOfPage();
    connect(_pages, &QTabWidget::currentChanged, this, tellOfPage);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QDialog::reject);

    connect(&_defaults, &Defaults::failingChanged, this, [this] { showMessage({}); });
    showMessage({});
    restoreFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
}

PreferencesController::~PreferencesController()
{
    storeFrame(*this, _defaults, DefaultsKeys::preferencesPanelFrame);
    // What is still being typed counts, and is told to a panel that is still whole.
    hide();
    _defaults.synchronize();
}

void PreferencesController::addPage(PreferencesPage* page, const QString& name, const QString& section)
{
    setManualSection(*page, section);
    connect(page, &PreferencesPage::reset, this, [this] { showMessage({}); });
    _pages->addTab(page, name);
}

void PreferencesController::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    showMessage({});
    comeBackWhereItIs(*this);
}

QString PreferencesController::message() const
{
    return _message->text();
}

void PreferencesController::showMessage(const QString& message)
{
    const bool isLost = message.isEmpty() && _defaults.isFailing();
    _message->setText(isLost ? tr("What you choose lasts until ridelog ends: %1 cannot be written.")
                                   .arg(QDir::toNativeSeparators(_defaults.path()))
                             : message);
    announce(*_message);
}

} // namespace ridelog
