#pragma once

#include "simulator/DeviceSimulator.h"

#include <QObject>

#include <memory>

namespace ridelog {

/// A cycle computer for those who have none at hand: as long as it is plugged in there is a port of the
/// program's own, from which a year of made-up rides comes.
class SimulatedDevice : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// None, or why it cannot be plugged in.
    std::optional<QString> plugIn();
    void unplug();
    bool isPluggedIn() const { return _simulator != nullptr; }
    /// Of its port; empty while it is not plugged in.
    QString path() const;

    /// How much faster than the device's line it sends from the next time on, 0 for as fast as it is read. A
    /// rider waits 85 seconds for the real one; trying things out is no reason to.
    void setSpeed(double speed) { _speed = speed; }

Q_SIGNALS:
    /// It was plugged in or taken out, or came back with another port.
    void changed();

private:
    double _speed = 10;
    std::unique_ptr<DeviceSimulator> _simulator;
};

} // namespace ridelog
