#include "ui/SimulatedDevice.h"

#include "simulator/RideGenerator.h"

#include <QDate>

namespace ridelog {

std::optional<QString> SimulatedDevice::plugIn()
{
    if (_simulator)
        return std::nullopt;
    // The same rides all day: a second transfer finds them there already.
    const auto seed = static_cast<std::uint32_t>(QDate::currentDate().toJulianDay());
    auto simulator = std::make_unique<DeviceSimulator>(
        DeviceSimulator::Settings{.dump = RideGenerator{.seed = seed}.dump(), .speed = _speed});
    if (auto error = simulator->start())
        return error;
    connect(simulator.get(), &DeviceSimulator::pathChanged, this, &SimulatedDevice::changed);
    connect(simulator.get(), &DeviceSimulator::failed, this, &SimulatedDevice::unplug, Qt::QueuedConnection);
    _simulator = std::move(simulator);
    Q_EMIT changed();
    return std::nullopt;
}

void SimulatedDevice::unplug()
{
    if (!_simulator)
        return;
    _simulator.reset();
    Q_EMIT changed();
}

QString SimulatedDevice::path() const
{
    return _simulator ? _simulator->path() : QString();
}

} // namespace ridelog
