#pragma once

#include <QFileDialog>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QSpinBox;
QT_END_NAMESPACE

namespace ridelog {

/// Asks where a picture of a chart is to be saved, of which type, and how large.
class SaveChartPanel : public QFileDialog {
    Q_OBJECT

public:
    /// Offers this name, without an ending, and this size in pixels.
    SaveChartPanel(QWidget* over, const QString& name, QSize size);

    QSize chartSaveSize() const;
    /// Whether the size is to be offered the next time.
    bool setAsDefault() const;

    QSpinBox& chartSaveWidth() { return *_chartSaveWidth; }
    QSpinBox& chartSaveHeight() { return *_chartSaveHeight; }
    QCheckBox& setAsDefaultBtn() { return *_setAsDefaultBtn; }

public Q_SLOTS:
    void accept() override;

private:
    QString ending() const;
    void takeEnding();

    QSpinBox* _chartSaveWidth;
    QSpinBox* _chartSaveHeight;
    QCheckBox* _setAsDefaultBtn;
};

} // namespace ridelog
