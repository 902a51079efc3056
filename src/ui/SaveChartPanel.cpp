#include "ui/SaveChartPanel.h"

#include "chart/ChartPicture.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace ridelog {
namespace {

const QString usualEnding = QStringLiteral("jpeg");

QSpinBox* sideField(const QString& name, int pixels)
{
    auto* field = new QSpinBox;
    field->setAccessibleName(name);
    field->setRange(1, largestChartPicture);
    field->setValue(pixels);
    return field;
}

/// The first ending that a filter of names like "PNG (*.png)" lets through.
QString endingOf(const QString& filter)
{
    for (const auto& ending : chartPictureEndings()) {
        if (filter.contains(QStringLiteral("(*.") + ending))
            return ending;
    }
    return usualEnding;
}

} // namespace

SaveChartPanel::SaveChartPanel(QWidget* over, const QString& name, QSize size)
    : QFileDialog(over, tr("Save Chart")),
      _chartSaveWidth(sideField(tr("Width in pixels"), size.width())),
      _chartSaveHeight(sideField(tr("Height in pixels"), size.height())),
      _setAsDefaultBtn(new QCheckBox(tr("&Use as default size")))
{
    // The desktop's own panel has no room for the size.
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptSave);
    setNameFilters({tr("JPEG (*.jpeg *.jpg)"), tr("PNG (*.png)"), tr("SVG (*.svg)"), tr("PDF (*.pdf)"),
                    tr("All files (*)")});
    setDefaultSuffix(usualEnding);
    connect(this, &QFileDialog::filterSelected, this,
            [this](const QString& filter) { setDefaultSuffix(endingOf(filter)); });
    selectFile(name);

    auto* row = new QHBoxLayout;
    row->addWidget(_chartSaveWidth);
    row->addWidget(new QLabel(QStringLiteral("×")));
    row->addWidget(_chartSaveHeight);
    row->addWidget(new QLabel(tr("pixels")));
    row->addSpacing(12);
    row->addWidget(_setAsDefaultBtn);
    row->addStretch();
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        const auto last = grid->rowCount();
        grid->addWidget(new QLabel(tr("Size:")), last, 0);
        grid->addLayout(row, last, 1);
    }
}

QSize SaveChartPanel::chartSaveSize() const
{
    return {_chartSaveWidth->value(), _chartSaveHeight->value()};
}

bool SaveChartPanel::setAsDefault() const
{
    return _setAsDefaultBtn->isChecked();
}

} // namespace ridelog
