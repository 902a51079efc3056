#pragma once

#include <QString>

namespace ridelog {

/// A question to the user, of plain text.
struct UpdateAlert {
    QString title;
    QString message; ///< may be empty, and have several lines
    QString defaultButton;
    QString otherButton; ///< empty: there is none
};

/// Who shows the outcome of an update check to the user.
class UpdateAlerts {
public:
    virtual ~UpdateAlerts() = default;
    /// Waits for the user. True exactly when the other button is pressed.
    virtual bool runModal(const UpdateAlert& alert) = 0;
};

} // namespace ridelog
