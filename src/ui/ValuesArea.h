#pragma once

#include <QScrollArea>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QLabel;
QT_END_NAMESPACE

namespace ridelog {

/// Values to be read, below each other: they scroll up and down, and have the width that they need.
class ValuesArea : public QScrollArea {
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    /// It owns the content.
    void setContent(QWidget& content);
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A value, and its name before it. The value can be selected, with the mouse and with keys.
class ValueRow {
public:
    /// Adds it to the form. `key` is the object name of the value's label.
    ValueRow(QFormLayout& form, const QString& key);

    void show(const QString& name, const QString& text);

private:
    QLabel* _name;
    QLabel* _field;
};

} // namespace ridelog
