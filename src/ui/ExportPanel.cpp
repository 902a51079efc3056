#include "ui/ExportPanel.h"

#include "library/DefaultsKeys.h"
#include "platform/Defaults.h"
#include "ui/ElidedLabel.h"
#include "ui/FolderField.h"
#include "ui/ManualHelp.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

/// Of characters: most paths can be read in whole.
constexpr int usualLengthOfPath = 48;

/// A label whose letter leads to the control beside it.
void addRow(QFormLayout& form, const QString& name, QWidget& control, QLayout* row = nullptr)
{
    auto* label = new QLabel(name);
    label->setBuddy(&control);
    control.setAccessibleName(QString(name).remove(u'&').remove(u':'));
    if (row)
        form.addRow(label, row);
    else
        form.addRow(label, &control);
}

} // namespace

ExportPanel::ExportPanel(QWidget* over, Defaults& defaults, const ExportFormats& formats, ExportSource source,
                         const Tours& selected, const Tours& all)
    : QDialog(over),
      _defaults(defaults),
      _formats(formats),
      _source(std::move(source)),
      _wantsTogether(defaults.boolForKey(DefaultsKeys::exportTogether))
{
    setWindowTitle(tr("Export"));
    setWindowModality(Qt::WindowModal);
    setManualSection(*this, QStringLiteral("export.html"));
    // In this order Tab goes from one to the next.
    auto& form = *new QFormLayout(this);
    form.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addTours(form, selected, all);
    addFormats(form, formats);
    addFolder(form);
    addTogether(form);
    addButtons(form);
    showOutcome();
}

/// The selected ones are chosen at first, be it one: they are what other actions of the window are about, and
/// who wanted all of them has lost nothing.
void ExportPanel::addTours(QFormLayout& form, const Tours& selected, const Tours& all)
{
    _tours = new QComboBox;
    _tours->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const auto offer = [this](const QString& name, const Tours& tours) {
        _tours->addItem(name.arg(QLocale().toString(tours.size())));
        _choices.push_back(tours);
    };
    if (!selected.empty() && selected.size() < all.size())
        offer(tr("Selected tours (%1)"), selected);
    offer(tr("All tours (%1)"), all);
    addRow(form, tr("&Tours:"), *_tours);
    form.setRowVisible(_tours, _choices.size() > 1);
    connect(_tours, &QComboBox::currentIndexChanged, this, &ExportPanel::showOutcome);
}

void ExportPanel::addFormats(QFormLayout& form, const ExportFormats& formats)
{
    _format = new QComboBox;
    for (const auto& format : formats)
        _format->addItem(format->description(), format->name());
    const auto last = _format->findData(_defaults.valueForKey(DefaultsKeys::exportFormat).toString());
    _format->setCurrentIndex(std::max(0, last));
    addRow(form, tr("&Format:"), *_format);
    connect(_format, &QComboBox::currentIndexChanged, this, &ExportPanel::showOutcome);
}

void ExportPanel::addFolder(QFormLayout& form)
{
    _folder = new FolderField;
    _folder->setMinimumWidth(usualLengthOfPath * fontMetrics().averageCharWidth());
    _folder->setPath(_defaults.textForKey(DefaultsKeys::exportFolder).value_or(QString()));
    _chooseButton = new QPushButton(tr("C&hoose…"));
    _chooseButton->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(_folder, 1);
    row->addWidget(_chooseButton);
    addRow(form, tr("Fo&lder:"), *_folder, row);
    connect(_folder, &QLineEdit::textChanged, this, &ExportPanel::showOutcome);
    connect(_chooseButton, &QPushButton::clicked, this, &ExportPanel::chooseFolder);
}

void ExportPanel::addTogether(QFormLayout& form)
{
    _together = new QCheckBox(tr("&All tours in one file"));
    form.addRow(QString(), _together);
    connect(_together, &QCheckBox::clicked, this, [this](bool together) {
        _wantsTogether = together;
        showOutcome();
    });
}

void ExportPanel::addButtons(QFormLayout& form)
{
    _outcome = new ElidedLabel;
    form.addRow(_outcome);
    auto* buttons = new QDialogButtonBox;
    _exportButton = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    _exportButton->setDefault(true);
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    const auto* helpButton = buttons->addButton(tr("Hel&p"), QDialogButtonBox::HelpRole);
    connect(helpButton, &QPushButton::clicked, this, [this] { askForManual(*this); });
    form.addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportPanel::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportPanel::reject);
}

void ExportPanel::chooseFolder()
{
    auto* panel = new QFileDialog(this, tr("Choose Folder"), _folder->path());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    connect(panel, &QFileDialog::fileSelected, _folder, &FolderField::setPath);
    panel->open();
}

void ExportPanel::showOutcome()
{
    _together->setEnabled(mayChooseTogether());
    _together->setChecked(isTogether());
    const auto problem = _folder->whyUnusable();
    _exportButton->setEnabled(!problem);
    _outcome->setText(problem ? *problem : files());
    _exportButton->setAccessibleDescription(_outcome->text());
    _folder->setAccessibleDescription(problem.value_or(QString()));
}

/// What will be written.
QString ExportPanel::files() const
{
    // The first one is called the same however many there are.
    const TourExport first(chosenFormat(), _source, {chosenTours().front()}, _folder->path(),
                           isTogether() ? TourExport::Layout::oneFile : TourExport::Layout::filePerTour);
    const auto name = QFileInfo(first.files().front().path).fileName();
    const auto count = isTogether() ? 1 : chosenTours().size();
    return count == 1 ? name : tr("%Ln file(s), such as %1", nullptr, static_cast<int>(count)).arg(name);
}

const Tours& ExportPanel::chosenTours() const
{
    return _choices[static_cast<std::size_t>(_tours->currentIndex())];
}

const ExportFormat& ExportPanel::chosenFormat() const
{
    return *_formats[static_cast<std::size_t>(_format->currentIndex())];
}

bool ExportPanel::mayChooseTogether() const
{
    return mayHoldOneTour(chosenFormat()) && mayHoldSeveralTours(chosenFormat()) && chosenTours().size() > 1;
}

bool ExportPanel::isTogether() const
{
    return mayChooseTogether() ? _wantsTogether : !mayHoldOneTour(chosenFormat());
}

TourExport ExportPanel::tourExport() const
{
    return {chosenFormat(), _source, chosenTours(), _folder->path(),
            isTogether() ? TourExport::Layout::oneFile : TourExport::Layout::filePerTour};
}

QString ExportPanel::outcome() const
{
    return _outcome->text();
}

void ExportPanel::accept()
{
    _defaults.setValue(DefaultsKeys::exportFormat, chosenFormat().name());
    if (mayChooseTogether())
        _defaults.setValue(DefaultsKeys::exportTogether, _wantsTogether);
    _defaults.synchronize();
    QDialog::accept();
}

} // namespace ridelog
