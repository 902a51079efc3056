#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <sys/syscall.h>

namespace ridelog {

// What the system says of this process.

inline qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

inline QStringList threads()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

/// Whether a thread is in the middle of a system call of this number.
inline bool isAnyThreadIn(long call)
{
    for (const auto& thread : threads()) {
        QFile file(QStringLiteral("/proc/self/task/%1/syscall").arg(thread));
        if (file.open(QIODevice::ReadOnly) &&
            file.readAll().startsWith(QByteArray::number(qint64{call}) + ' '))
            return true;
    }
    return false;
}

/// Whether a thread waits for something to come from a descriptor.
inline bool isAnyThreadPolling()
{
#ifdef SYS_poll
    if (isAnyThreadIn(SYS_poll))
        return true;
#endif
    return isAnyThreadIn(SYS_ppoll);
}

} // namespace ridelog
