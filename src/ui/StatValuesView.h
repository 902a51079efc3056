#pragma once

#include "ui/StatValues.h"
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

private:
    QFormLayout* _form;
    std::vector<ValueRow> _rows; ///< in the order of the values
};

} // namespace ridelog
