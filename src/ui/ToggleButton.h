#pragma once

#include <QToolButton>

namespace ridelog {

/// A button that stays down. Styles show that so faintly, in dark themes above all, that its colours say it.
class ToggleButton : public QToolButton {
    Q_OBJECT

public:
    explicit ToggleButton(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showState();
};

} // namespace ridelog
