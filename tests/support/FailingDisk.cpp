#include "tests/support/FailingDisk.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ridelog {
namespace {

FailingDisk* disk = nullptr;

} // namespace

FailingDisk::FailingDisk(const QString& folder, FileSystem knows)
    : _folder(QFile::encodeName(QDir(folder).canonicalPath()) + '/'), _knows(knows)
{
    disk = this;
}

FailingDisk::~FailingDisk()
{
    disk = nullptr;
}

FailingDisk* FailingDisk::of(const char* path)
{
    return disk && (QByteArray(path) + '/').startsWith(disk->_folder) ? disk : nullptr;
}

FailingDisk* FailingDisk::of(int descriptor)
{
    return disk && disk->_descriptors.contains(descriptor) ? disk : nullptr;
}

void FailingDisk::plan(Plan plan)
{
    _plan = plan;
    _failed.reset();
}

bool FailingDisk::fails(Call call)
{
    _calls.push_back(call);
    if (_event.second && _event.first == call)
        std::exchange(_event.second, nullptr)();
    if (_plan.call == never || _plan.call-- != 0)
        return false;
    _plan.call = never;
    return fail(call);
}

bool FailingDisk::fail(Call call)
{
    errno = _plan.error;
    _failed = _failed.value_or(call);
    return true;
}

std::size_t FailingDisk::takeRoom(std::size_t bytes)
{
    if (_plan.room == 0)
        fail(Call::write);
    const auto taken = std::min({static_cast<qint64>(bytes), _plan.room, _mostBytes});
    _plan.room -= taken;
    return static_cast<std::size_t>(taken);
}

} // namespace ridelog

// The linker leads here what the code that is linked statically calls; see tests/CMakeLists.txt.

using ridelog::FailingDisk;
using Call = FailingDisk::Call;

namespace {

bool isFolder(int descriptor)
{
    struct stat found {};
    return ::fstat(descriptor, &found) == 0 && S_ISDIR(found.st_mode);
}

} // namespace

extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_fchown(int descriptor, uid_t owner, gid_t group);
int __real_fchmod(int descriptor, mode_t mode);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
int __real_fsync(int descriptor);
int __real_close(int descriptor);
int __real_link(const char* oldPath, const char* newPath);
int __real_linkat(int oldFolder, const char* oldPath, int newFolder, const char* newPath, int flags);
int __real_rename(const char* oldPath, const char* newPath);
int __real_renameat2(int oldFolder, const char* oldPath, int newFolder, const char* newPath, unsigned flags);

int __wrap_open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const mode_t mode = (flags & O_CREAT) != 0 || unnamed ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    auto* on = FailingDisk::of(path);
    if (on && unnamed && !on->knows().unnamedFiles) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if (on && on->fails(Call::open))
        return -1;
    const int descriptor = __real_open(path, flags, mode);
    if (on && descriptor >= 0)
        on->opened(descriptor);
    return descriptor;
}

int __wrap_fchown(int descriptor, uid_t owner, gid_t group)
{
    auto* on = FailingDisk::of(descriptor);
    return on && on->fails(Call::setOwner) ? -1 : __real_fchown(descriptor, owner, group);
}

int __wrap_fchmod(int descriptor, mode_t mode)
{
    auto* on = FailingDisk::of(descriptor);
    return on && on->fails(Call::setMode) ? -1 : __real_fchmod(descriptor, mode);
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size)
{
    auto* on = FailingDisk::of(descriptor);
    if (!on)
        return __real_write(descriptor, bytes, size);
    const auto room = on->fails(Call::write) ? 0 : on->takeRoom(size);
    return room == 0 ? -1 : __real_write(descriptor, bytes, room);
}

int __wrap_fsync(int descriptor)
{
    auto* on = FailingDisk::of(descriptor);
    if (!on)
        return __real_fsync(descriptor);
    return on->fails(isFolder(descriptor) ? Call::syncFolder : Call::sync) ? -1 : 0;
}

int __wrap_close(int descriptor)
{
    auto* on = FailingDisk::of(descriptor);
    // A folder that is closed has nothing to lose.
    const bool mayFail = on && !isFolder(descriptor);
    const int closed = __real_close(descriptor);
    if (on)
        on->closed(descriptor);
    return mayFail && on->fails(Call::close) ? -1 : closed;
}

int __wrap_link(const char* oldPath, const char* newPath)
{
    auto* on = FailingDisk::of(newPath);
    if (on && !on->knows().hardLinks) {
        errno = EPERM;
        return -1;
    }
    return on && on->fails(Call::link) ? -1 : __real_link(oldPath, newPath);
}

int __wrap_linkat(int oldFolder, const char* oldPath, int newFolder, const char* newPath, int flags)
{
    auto* on = FailingDisk::of(newPath);
    return on && on->fails(Call::link) ? -1 : __real_linkat(oldFolder, oldPath, newFolder, newPath, flags);
}

int __wrap_rename(const char* oldPath, const char* newPath)
{
    auto* on = FailingDisk::of(newPath);
    return on && on->fails(Call::rename) ? -1 : __real_rename(oldPath, newPath);
}

int __wrap_renameat2(int oldFolder, const char* oldPath, int newFolder, const char* newPath, unsigned flags)
{
    auto* on = FailingDisk::of(newPath);
    if (on && !on->knows().freeNames) {
        errno = EINVAL;
        return -1;
    }
    return on && on->fails(Call::rename) ? -1
                                         : __real_renameat2(oldFolder, oldPath, newFolder, newPath, flags);
}

} // extern "C"
