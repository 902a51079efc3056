#pragma once

#include "chart/BarScaling.h"
#include "chart/ChartPicture.h"

#include <QWidget>

#include <optional>

namespace ridelog {

/// A chart of bars that can be pointed at and chosen, with the mouse or with keys.
class BarChartView : public QWidget {
    Q_OBJECT

public:
    explicit BarChartView(QWidget* parent = nullptr);

    /// Shows at once. `current` is the bar from which the keys go on; none to begin at an end.
    void setChart(const BarChart& chart, std::optional<int> current);
    const BarChart& chart() const { return _scaling.chart(); }
    const BarScaling& scaling() const { return _scaling; }
    /// The bar under the mouse, or else, while the chart gets the keys, the one they have led to.
    std::optional<int> markedBar() const;

    /// What is drawn, in another size.
    PictureContent picture(QSize size) const;

    QSize sizeHint() const override { return {480, 320}; }
    QSize minimumSizeHint() const override { return {160, 100}; }

Q_SIGNALS:
    /// Another bar is marked, or none.
    void pointedAt(std::optional<int> bar);
    void chosen(int bar);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void scale(const BarChart& chart);
    void showMark();
    std::optional<int> barAfterKey(int key) const;

    BarScaling _scaling;
    std::optional<int> _current;
    std::optional<int> _pressed;   ///< the bar on which the mouse button went down
    std::optional<QPointF> _mouse; ///< where it is, as long as no key is pressed
};

} // namespace ridelog
