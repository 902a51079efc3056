#pragma once

#include <QObject>

namespace ridelog {

class OdoTour;

/// Where tours tell that they were edited, to whoever shows them. A document has one for all of its tours.
class TourChanges : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// Title, description, removed mark or date of the tour is another one now.
    void changed(const ridelog::OdoTour& tour);
};

} // namespace ridelog
