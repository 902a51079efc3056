#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
QT_END_NAMESPACE

namespace ridelog {

/// Shows over a window how many of so many tours are exported, until the rider cancels it.
class ExportProgress : public QDialog {
    Q_OBJECT

public:
    ExportProgress(QWidget* over, std::size_t tours);

    void setTours(std::size_t done);
    /// How far it has come, in words.
    QString text() const;

private:
    QLabel* _text;
    QProgressBar* _bar;
};

} // namespace ridelog
