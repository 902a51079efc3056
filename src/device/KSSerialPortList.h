#pragma once

#include "device/KSSerialPort.h"
#include "device/KSStandardEnumerator.h"
#include "device/SerialDevices.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace ridelog {

/// The serial ports of the machine, closed. For the main thread.
class KSSerialPortList {
public:
    using Port = std::shared_ptr<KSSerialPort>;
    using Ports = std::vector<Port>;

    /// The one list of the program; made and scanned when it is first asked for.
    static std::shared_ptr<KSSerialPortList> sharedPortList();
    /// Over the shared list, which is not scanned again.
    static KSStandardEnumerator<Port> portEnumerator();

    /// A list of its own over other devices, scanned.
    explicit KSSerialPortList(std::shared_ptr<const SerialDeviceRegistry> registry);
    KSSerialPortList(const KSSerialPortList&) = delete;
    KSSerialPortList& operator=(const KSSerialPortList&) = delete;

    /// Scans (again). Ports that are still there stay the same objects.
    void init();

    /// In the registry's order.
    const Ports& getPortList() const { return _portList; }
    std::size_t count() const { return _portList.size(); }
    Port objectAtIndex(std::size_t index) const { return _portList.at(index); }
    /// The first of this name; none if there is none.
    Port objectWithName(const QString& name) const;
    /// What people know the device at this path by; empty if the system knows no better.
    QString productAtPath(const QString& path) const { return _products.value(path); }

    /// Those of the scan before.
    const Ports& oldPortList() const { return _oldPortList; }
    void setOldPortList(Ports ports) { _oldPortList = std::move(ports); }
    Port oldPortByPath(const QString& path) const;

private:
    Port _portOf(const SerialDevice& device) const;

    std::shared_ptr<const SerialDeviceRegistry> _registry;
    Ports _portList;
    Ports _oldPortList;
    QHash<QString, QString> _products; ///< by path
};

} // namespace ridelog
