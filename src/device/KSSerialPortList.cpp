#include "device/KSSerialPortList.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace ridelog {
namespace {

template <typename Property>
KSSerialPortList::Port firstWith(const KSSerialPortList::Ports& ports, Property property,
                                 const QString& value)
{
    const auto found = std::ranges::find(
        ports, value, [property](const auto& port) { return std::invoke(property, *port); });
    return found == ports.end() ? nullptr : *found;
}

} // namespace

std::shared_ptr<KSSerialPortList> KSSerialPortList::sharedPortList()
{
    // Never destroyed: its ports are not to go after the application.
    static const auto& list = *new std::shared_ptr<KSSerialPortList>(
        std::make_shared<KSSerialPortList>(std::make_shared<LinuxSerialDevices>()));
    return list;
}

KSStandardEnumerator<KSSerialPortList::Port> KSSerialPortList::portEnumerator()
{
    return {sharedPortList(), &KSSerialPortList::count, &KSSerialPortList::objectAtIndex};
}

KSSerialPortList::KSSerialPortList(std::shared_ptr<const SerialDeviceRegistry> registry)
    : _registry(std::move(registry))
{
    init();
}

void KSSerialPortList::init()
{
    setOldPortList(std::exchange(_portList, {}));
    _products.clear();
    for (const auto& device : _registry->devices()) {
        // A registry that knows only half of a device is not to be trusted from there on.
        if (device.name.isEmpty() || device.path.isEmpty())
            break;
        _portList.push_back(_portOf(device));
        _products.insert(device.path, device.product);
    }
}

KSSerialPortList::Port KSSerialPortList::_portOf(const SerialDevice& device) const
{
    const auto known = oldPortByPath(device.path);
    return known ? known : KSSerialPort::init(device.path, device.name);
}

KSSerialPortList::Port KSSerialPortList::objectWithName(const QString& name) const
{
    return firstWith(_portList, &KSSerialPort::name, name);
}

KSSerialPortList::Port KSSerialPortList::oldPortByPath(const QString& path) const
{
    return firstWith(_oldPortList, &KSSerialPort::bsdPath, path);
}

} // namespace ridelog
