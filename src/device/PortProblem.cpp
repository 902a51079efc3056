#include "device/PortProblem.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <cstring>
#include <grp.h>
#include <sys/stat.h>

namespace ridelog {
namespace {

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
        return QStringLiteral("permission denied");
    return QStringLiteral(
               "permission denied. Add yourself to the group %1 (sudo usermod -aG %1 $USER), then log "
               "out and in again")
        .arg(group);
}

QString ofWhole(qsizetype received, qsizetype whole)
{
    const QLocale english(QLocale::English);
    return QStringLiteral("%1 of %2 bytes").arg(english.toString(received), english.toString(whole));
}

} // namespace

QString whyPortFailed(const QString& path, int error)
{
    struct stat found {};
    const bool isThere = stat(QFile::encodeName(path).constData(), &found) == 0;
    if (isThere && S_ISDIR(found.st_mode))
        return QStringLiteral("a folder, not a serial port");
    if (isThere && !S_ISCHR(found.st_mode))
        return QStringLiteral("not a serial port");
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENODEV:
    case ENXIO:
        return QStringLiteral("there is no such port");
    case EACCES:
    case EPERM:
        return isThere ? whyNoPermission(found) : QStringLiteral("permission denied");
    case EBUSY:
        return QStringLiteral("in use by another program");
    case ENOTTY:
        return QStringLiteral("not a serial port");
    case EALREADY:
        return QStringLiteral("a transfer from it is under way");
    case EIO:
        return QStringLiteral("the port does not answer");
    case EINVAL:
        return QStringLiteral("the port cannot be set to 9,600 bit/s");
    default:
        return QString::fromLocal8Bit(std::strerror(error));
    }
}

QString whyTransferBrokeOff(qsizetype received, qsizetype whole)
{
    if (received == 0)
        return QStringLiteral("the port was closed or unplugged before anything arrived");
    return QStringLiteral("the port was closed or unplugged after %1").arg(ofWhole(received, whole));
}

QString whyTransferWasStopped(qsizetype received, qsizetype whole)
{
    if (received == 0)
        return QStringLiteral("stopped before anything arrived");
    return QStringLiteral("stopped after %1").arg(ofWhole(received, whole));
}

QString whyTransferFellSilent(qsizetype received, qsizetype whole, double seconds)
{
    const auto waited =
        QStringLiteral("%1 second%2")
            .arg(QString::number(seconds, 'g', 12), seconds == 1 ? QString() : QStringLiteral("s"));
    if (received == 0)
        return QStringLiteral("nothing arrived within %1").arg(waited);
    return QStringLiteral("the device fell silent after %1: nothing for %2")
        .arg(ofWhole(received, whole), waited);
}

} // namespace ridelog
