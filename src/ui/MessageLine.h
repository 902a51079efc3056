#pragma once

#include "ui/ElidedLabel.h"

namespace ridelog {

/// Has what the label says read out to those who do not see it.
void announce(QLabel& label);

/// What has just happened, in words, at the foot of a window.
class MessageLine : public ElidedLabel {
    Q_OBJECT

public:
    using ElidedLabel::ElidedLabel;

    /// Shows it, and has it read out to those who do not see it.
    void tell(const QString& message);
};

} // namespace ridelog
