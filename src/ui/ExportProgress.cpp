#include "ui/ExportProgress.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QVBoxLayout>

namespace ridelog {
namespace {

/// Of characters: it does not grow with the numbers.
constexpr int widthOfBar = 40;

} // namespace

ExportProgress::ExportProgress(QWidget* over, std::size_t tours)
    : QDialog(over), _text(new QLabel), _bar(new QProgressBar)
{
    setWindowTitle(tr("Export"));
    setWindowModality(Qt::WindowModal);
    _bar->setAccessibleName(tr("Exported tours"));
    _bar->setRange(0, static_cast<int>(tours));
    _bar->setMinimumWidth(widthOfBar * fontMetrics().averageCharWidth());
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_text);
    layout->addWidget(_bar);
    layout->addWidget(buttons);
    setTours(0);
}

void ExportProgress::setTours(std::size_t done)
{
    _bar->setValue(static_cast<int>(done));
    const auto all = _bar->maximum();
    _text->setText(tr("%1 of %Ln tour(s)", "number of tours done", all).arg(QLocale().toString(done)));
}

QString ExportProgress::text() const
{
    return _text->text();
}

} // namespace ridelog
