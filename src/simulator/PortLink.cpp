#include "simulator/PortLink.h"

#include "platform/SystemCall.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#include <utility>

namespace ridelog {
namespace {

/// The device numbers that the system keeps for pseudo-terminals.
constexpr unsigned firstTerminalMajor = 136;
constexpr unsigned lastTerminalMajor = 143;

/// Whether nothing is lost with what has this name: it is a link that a run may have left behind.
bool isLeftBehind(const QByteArray& name)
{
    struct stat link {};
    struct stat target {};
    if (::lstat(name.constData(), &link) != 0 || !S_ISLNK(link.st_mode))
        return false;
    // The terminal that it led to may be gone.
    if (::stat(name.constData(), &target) != 0)
        return QFile::symLinkTarget(QFile::decodeName(name)).startsWith(QStringLiteral("/dev/pts/"));
    const auto number = major(target.st_rdev);
    return S_ISCHR(target.st_mode) && number >= firstTerminalMajor && number <= lastTerminalMajor;
}

/// The name leads somewhere all the time, for those who open it again and again.
std::optional<QString> replaceLink(const QByteArray& name, const QByteArray& target)
{
    const auto passing = QFile::encodeName(QFileInfo(QFile::decodeName(name)).path()) + "/.ridelog-" +
                         QByteArray::number(QRandomGenerator::system()->generate64(), 36);
    if (::symlink(target.constData(), passing.constData()) == 0) {
        if (::rename(passing.constData(), name.constData()) == 0)
            return std::nullopt;
        auto error = systemError();
        ::unlink(passing.constData());
        return error;
    }
    return systemError();
}

std::optional<QString> makeLink(const QByteArray& name, const QByteArray& target)
{
    if (::symlink(target.constData(), name.constData()) == 0)
        return std::nullopt;
    if (errno != EEXIST)
        return systemError();
    if (isLeftBehind(name))
        return replaceLink(name, target);
    return QStringLiteral("something else has that name");
}

} // namespace

PortLink::~PortLink()
{
    if (!_port.isEmpty() && QFile::symLinkTarget(_path) == _port)
        QFile::remove(_path);
}

std::optional<QString> PortLink::pointTo(const QString& port)
{
    if (const auto error = makeLink(QFile::encodeName(_path), QFile::encodeName(port)))
        return QStringLiteral("the link %1 cannot be made: %2").arg(_path, *error);
    _port = port;
    return std::nullopt;
}

} // namespace ridelog
