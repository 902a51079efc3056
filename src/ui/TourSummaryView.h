#pragma once

#include <QScrollArea>

#include <memory>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QLabel)

namespace ridelog {

class Defaults;
class OdoTour;

/// All summary values of a tour, in groups, in the units that the user has chosen.
class TourSummaryView : public QScrollArea {
    Q_OBJECT

public:
    /// `defaults` have to outlive it.
    TourSummaryView(std::shared_ptr<const OdoTour> tour, const Defaults& defaults, QWidget* parent = nullptr);

    /// Shows the values as they are now, in the units chosen now.
    void refresh();

    /// As wide as its values are.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::shared_ptr<const OdoTour> _tour;
    const Defaults& _defaults;
    /// A name and what it is the name of.
    struct Row {
        QLabel* name;
        QLabel* field; ///< its object name is the value's key
    };
    std::vector<Row> _rows; ///< in the order of the values
};

} // namespace ridelog
