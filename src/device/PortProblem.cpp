#include "device/PortProblem.h"

#include "platform/Languages.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <grp.h>
#include <sys/stat.h>

namespace ridelog {
namespace {

struct PortProblem {
    Q_DECLARE_TR_FUNCTIONS(PortProblem)
};

/// A group of people whom the device's permissions let read and write, by name; empty if there is none.
QString helpfulGroup(const struct stat& device)
{
    constexpr mode_t wanted = S_IRGRP | S_IWGRP;
    const auto* group = (device.st_mode & wanted) == wanted ? getgrgid(device.st_gid) : nullptr;
    return group && device.st_gid != 0 ? QString::fromLocal8Bit(group->gr_name) : QString();
}

QString whyNoPermission(const struct stat& device)
{
    const auto group = helpfulGroup(device);
    if (group.isEmpty())
        return PortProblem::tr("permission denied");
    return PortProblem::tr(
               "permission denied. Add yourself to the group %1 (sudo usermod -aG %1 $USER), then log "
               "out and in again")
        .arg(group);
}

QString ofWhole(qsizetype received, qsizetype whole)
{
    const auto locale = messageLocale();
    return PortProblem::tr("%1 of %2 bytes").arg(locale.toString(received), locale.toString(whole));
}

} // namespace

QString whyPortFailed(const QString& path, int error)
{
    struct stat found {};
    const bool isThere = stat(QFile::encodeName(path).constData(), &found) == 0;
    if (isThere && S_ISDIR(found.st_mode))
        return PortProblem::tr("a folder, not a serial port");
    if (isThere && !S_ISCHR(found.st_mode))
        return PortProblem::tr("not a serial port");
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENODEV:
    case ENXIO:
        return PortProblem::tr("there is no such port");
    case EACCES:
    case EPERM:
        return isThere ? whyNoPermission(found) : PortProblem::tr("permission denied");
    case EBUSY:
        return PortProblem::tr("in use by another program");
    case ENOTTY:
        return PortProblem::tr("not a serial port");
    case EALREADY:
        return PortProblem::tr("a transfer from it is under way");
    case EIO:
        return PortProblem::tr("the port does not answer");
    case EINVAL:
        return PortProblem::tr("the port cannot be set to 9,600 bit/s");
    default:
        return QString::fromLocal8Bit(std::strerror(error));
    }
}

QString whyTransferBrokeOff(qsizetype received, qsizetype whole)
{
    if (received == 0)
        return PortProblem::tr("the port was closed or unplugged before anything arrived");
    return PortProblem::tr("the port was closed or unplugged after %1").arg(ofWhole(received, whole));
}

QString whyTransferWasStopped(qsizetype received, qsizetype whole)
{
    if (received == 0)
        return PortProblem::tr("stopped before anything arrived");
    return PortProblem::tr("stopped after %1").arg(ofWhole(received, whole));
}

QString whyTransferFellSilent(qsizetype received, qsizetype whole, double seconds)
{
    const auto waited = messageLocale().toString(seconds, 'g', 12);
    if (received == 0)
        return PortProblem::tr("nothing arrived within %1 s").arg(waited);
    return PortProblem::tr("the device fell silent after %1: nothing for %2 s")
        .arg(ofWhole(received, whole), waited);
}

} // namespace ridelog
