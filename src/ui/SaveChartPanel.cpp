#include "ui/SaveChartPanel.h"

#include "chart/ChartPicture.h"
#include "ui/ManualHelp.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>
#include <array>

namespace ridelog {
namespace {

QSpinBox* sideField(const QString& name, int pixels)
{
    auto* field = new QSpinBox;
    field->setAccessibleName(name);
    field->setRange(1, largestChartPicture);
    field->setValue(pixels);
    return field;
}

struct Type {
    QString filter;
    QString ending; ///< that names get of themselves
};

const std::array types{Type{QStringLiteral("JPEG (*.jpeg *.jpg)"), QStringLiteral("jpeg")},
                       Type{QStringLiteral("PNG (*.png)"), QStringLiteral("png")},
                       Type{QStringLiteral("SVG (*.svg)"), QStringLiteral("svg")},
                       Type{QStringLiteral("PDF (*.pdf)"), QStringLiteral("pdf")}};

bool isPictureName(const QString& name)
{
    return chartPictureEndings().contains(QFileInfo(name).suffix().toLower());
}

} // namespace

SaveChartPanel::SaveChartPanel(QWidget* over, const QString& name, QSize size)
    : QFileDialog(over, tr("Save Chart")),
      _chartSaveWidth(sideField(tr("Width in pixels"), size.width())),
      _chartSaveHeight(sideField(tr("Height in pixels"), size.height())),
      _setAsDefaultBtn(new QCheckBox(tr("&Use as default size")))
{
    setManualSection(*this, QStringLiteral("tour-window.html#pictures-and-paper"));
    // The desktop's own panel has no room for the size.
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptSave);
    QStringList filters;
    for (const auto& type : types)
        filters << type.filter;
    setNameFilters(filters);
    connect(this, &QFileDialog::filterSelected, this, &SaveChartPanel::takeEnding);
    selectFile(name + u'.' + types.front().ending);

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

QString SaveChartPanel::ending() const
{
    const auto* type = std::ranges::find(types, selectedNameFilter(), &Type::filter);
    return (type == types.end() ? types.front() : *type).ending;
}

/// The name goes over to the chosen type.
void SaveChartPanel::takeEnding()
{
    const auto name = selectedFiles().value(0);
    const auto whole = isPictureName(name) ? name.left(name.lastIndexOf(u'.')) : name;
    if (!name.isEmpty() && !QFileInfo(name).isDir())
        selectFile(whole + u'.' + ending());
}

/// A name that ends otherwise gets the ending of the chosen type, which is asked for then if it is taken.
void SaveChartPanel::accept()
{
    const auto name = selectedFiles().value(0);
    if (!name.isEmpty() && !isPictureName(name) && !QFileInfo(name).isDir())
        selectFile(name + u'.' + ending());
    QFileDialog::accept();
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
