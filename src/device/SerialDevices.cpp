#include "device/SerialDevices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ridelog {
namespace {

/// The first line of one of the small files in which the kernel tells about a device; empty without it.
QString attribute(const QString& folder, const QString& name)
{
    QFile file(QDir(folder).filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine(4096)).trimmed() : QString();
}

/// Slots for chips that are not there are listed as well, with a type of 0.
bool hasHardware(const QString& terminal)
{
    return QFileInfo::exists(QDir(terminal).filePath(QStringLiteral("device"))) &&
           attribute(terminal, QStringLiteral("type")) != u"0";
}

/// The name that the maker gave to the USB device that the terminal is on, which is some levels above it in
/// the kernel's tree.
QString productOf(const QString& terminal)
{
    constexpr int highest = 5;
    auto device = QFileInfo(QDir(terminal).filePath(QStringLiteral("device"))).canonicalFilePath();
    for (int level = 0; level < highest && device.size() > 1; ++level) {
        if (auto product = attribute(device, QStringLiteral("product")); !product.isEmpty())
            return product;
        device = QFileInfo(device).path();
    }
    return {};
}

/// Puts ttyUSB2 before ttyUSB10.
std::pair<QString, int> orderOf(const SerialDevice& device)
{
    auto kind = device.name;
    while (!kind.isEmpty() && kind.back().isDigit())
        kind.chop(1);
    return {kind, device.name.mid(kind.size()).toInt()};
}

} // namespace

LinuxSerialDevices::LinuxSerialDevices(const QStringList& addedPaths, const QString& terminals,
                                       const QString& nodes)
    : _addedPaths(addedPaths), _terminals(terminals), _nodes(nodes)
{
}

QStringList LinuxSerialDevices::pathsFromEnvironment()
{
    auto paths = qEnvironmentVariable("RIDELOG_PORTS").split(u':', Qt::SkipEmptyParts);
    std::ranges::transform(paths, paths.begin(), &QDir::cleanPath);
    paths.removeAll(QStringLiteral("/"));
    return paths;
}

std::vector<SerialDevice> LinuxSerialDevices::devices() const
{
    std::vector<SerialDevice> found;
    const QDir terminals(_terminals);
    for (const auto& name : terminals.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const auto terminal = terminals.filePath(name);
        if (hasHardware(terminal))
            found.push_back({name, QDir(_nodes).filePath(name), productOf(terminal)});
    }
    std::ranges::sort(found, {}, &orderOf);
    for (const auto& path : _addedPaths) {
        if (std::ranges::find(found, path, &SerialDevice::path) == found.end())
            found.push_back({QFileInfo(path).fileName(), path, {}});
    }
    return found;
}

} // namespace ridelog
