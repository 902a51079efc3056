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
    const QLocale locale;
    _text->setText(all == 1 ? tr("%1 of 1 tour").arg(locale.toString(done))
                            : tr("%1 of %2 tours").arg(locale.toString(done), locale.toString(all)));
}

QString ExportProgress::text() const
{
    return _text->text();
}

} // namespace ridelog
