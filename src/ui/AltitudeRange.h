#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

namespace ridelog {

class Defaults;

/// The rider's range for the altitudes of all charts, and whether it is used. What is typed counts at once,
/// in the rider's units.
class AltitudeRange : public QWidget {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    explicit AltitudeRange(Defaults& defaults);

    QCheckBox& useManualRange() { return *_useManualRange; }
    QLineEdit& minRangeTextField() { return *_minRangeTextField; }
    QLineEdit& maxRangeTextField() { return *_maxRangeTextField; }

    /// What is still being typed counts.
    void finishEditing();

Q_SIGNALS:
    /// What was typed has been read. If it is no altitude, `refusal` says why, and it is gone.
    void edited(const QString& refusal);

private:
    QLineEdit* makeField(const QString& name, const QString& key);
    void commit(QLineEdit& field);
    void setLimit(const QLineEdit& field, double metres);
    void showRange();

    Defaults& _defaults;
    QCheckBox* _useManualRange;
    QLineEdit* _minRangeTextField;
    QLineEdit* _maxRangeTextField;
    QLabel* _unit;
};

} // namespace ridelog
