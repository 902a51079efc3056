#pragma once

#include "exchange/StatValues.h"
#include "ui/ValuesArea.h"

#include <vector>

namespace ridelog {

/// All values of one period.
class StatValuesView : public ValuesArea {
    Q_OBJECT

public:
    /// Empty until values are shown for the first time.
    explicit StatValuesView(QWidget* parent = nullptr);

    /// They may be other ones the next time, but as many.
    void showValues(const std::vector<StatValue>& values);

    /// As wide as the values have ever been: what stands beside them does not move when one gets shorter.
    QSize minimumSizeHint() const override;

private:
    QFormLayout* _form;
    std::vector<ValueRow> _rows; ///< in the order of the values
    mutable int _widest = 0;
};

} // namespace ridelog
