#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace ridelog {

/// A serial device as the system tells of it.
struct SerialDevice {
    QString name;    ///< of the terminal device: "ttyUSB0"
    QString path;    ///< of the node to open: "/dev/ttyUSB0"
    QString product; ///< what people know it by; empty if the system knows no better
};

/// Where the serial devices of a machine are found.
class SerialDeviceRegistry {
public:
    virtual ~SerialDeviceRegistry() = default;
    /// All that are there now, in an order that is the same each time. None where that cannot be found out.
    virtual std::vector<SerialDevice> devices() const = 0;
};

/// The devices of a Linux machine: those that the kernel lists with hardware behind them, and paths that the
/// user adds.
class LinuxSerialDevices : public SerialDeviceRegistry {
public:
    /// `terminals` is the kernel's list, one folder for every terminal; `nodes` has their device nodes.
    explicit LinuxSerialDevices(const QStringList& addedPaths = pathsFromEnvironment(),
                                const QString& terminals = QStringLiteral("/sys/class/tty"),
                                const QString& nodes = QStringLiteral("/dev"));
    std::vector<SerialDevice> devices() const override;

    /// The paths in RIDELOG_PORTS, with colons between them.
    static QStringList pathsFromEnvironment();

private:
    QStringList _addedPaths;
    QString _terminals;
    QString _nodes;
};

} // namespace ridelog
